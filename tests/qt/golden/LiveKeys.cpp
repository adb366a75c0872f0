// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveKeys.h"

#include <kobtraductionqt/KOBTraductionQt.h>
#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTabWidget>
#include <QVariant>
#include <QWidget>

namespace kob::testing {

namespace {

QString textOf(const Value& value) {
  return qt::toQString(value.asText().value_or(Text()));
}

Value valueOf(const QVariant& variant) {
  switch (variant.typeId()) {
    case QMetaType::Bool:
      return variant.toBool();
    case QMetaType::Int:
      return std::int32_t{variant.toInt()};
    case QMetaType::Double:
      return variant.toDouble();
    default:
      return qt::toText(variant.toString());
  }
}

QVariant variantOf(const Value& value) {
  if (value.text() != nullptr) {
    return textOf(value);
  }
  const std::optional<std::int32_t> integer = value.asLong();
  const std::optional<double> number = value.asDouble();
  return integer && *integer == *number ? QVariant(*integer) : number ? QVariant(*number) : QVariant();
}

QTabWidget* tabsOf(QWidget& page) {
  QWidget* parent = page.parentWidget();
  while (parent != nullptr && qobject_cast<QTabWidget*>(parent) == nullptr) {
    parent = parent->parentWidget();
  }
  return qobject_cast<QTabWidget*>(parent);
}

QString caption(const QObject& object) {
  if (const auto* const label = qobject_cast<const QLabel*>(&object)) {
    return label->text();
  }
  if (const auto* const button = qobject_cast<const QAbstractButton*>(&object)) {
    return button->text();
  }
  if (const auto* const box = qobject_cast<const QGroupBox*>(&object)) {
    return box->title();
  }
  if (const auto* const edit = qobject_cast<const QLineEdit*>(&object)) {
    return edit->placeholderText();
  }
  if (const auto* const menu = qobject_cast<const QMenu*>(&object)) {
    return menu->title();
  }
  if (const auto* const action = qobject_cast<const QAction*>(&object)) {
    return action->text();
  }
  return qobject_cast<const QWidget*>(&object)->windowTitle();
}

void setCaption(QObject& object, const QString& text) {
  if (auto* const label = qobject_cast<QLabel*>(&object)) {
    label->setText(text);
  } else if (auto* const button = qobject_cast<QAbstractButton*>(&object)) {
    button->setText(text);
  } else if (auto* const box = qobject_cast<QGroupBox*>(&object)) {
    box->setTitle(text);
  } else if (auto* const edit = qobject_cast<QLineEdit*>(&object)) {
    edit->setPlaceholderText(text);
  } else if (auto* const menu = qobject_cast<QMenu*>(&object)) {
    menu->setTitle(text);
  } else if (auto* const action = qobject_cast<QAction*>(&object)) {
    action->setText(text);
  } else {
    qobject_cast<QWidget*>(&object)->setWindowTitle(text);
  }
}

/// An action without a tip of its own shows its text as one.
QString actionToolTip(const QAction& action) {
  QAction without;
  without.setText(action.text());
  return action.toolTip() == without.toolTip() ? QString() : action.toolTip();
}

bool isShown(const QObject& object) {
  if (const auto* const menu = qobject_cast<const QMenu*>(&object)) {
    return menu->menuAction()->isVisible();
  }
  if (const auto* const action = qobject_cast<const QAction*>(&object)) {
    return action->isVisible();
  }
  const auto& widget = *qobject_cast<const QWidget*>(&object);
  return !(widget.isHidden() && widget.testAttribute(Qt::WA_WState_ExplicitShowHide));
}

void setShown(QObject& object, bool shown) {
  if (auto* const menu = qobject_cast<QMenu*>(&object)) {
    menu->menuAction()->setVisible(shown);
  } else if (auto* const action = qobject_cast<QAction*>(&object)) {
    action->setVisible(shown);
  } else {
    qobject_cast<QWidget*>(&object)->setVisible(shown);
  }
}

void writeWidgetKey(QWidget& widget, const ObjectText& text, const std::string& key, const Value& value) {
  const std::optional<std::int32_t> number = value.asLong();
  QTabWidget* const tabs = text.kind == "page" ? tabsOf(widget) : nullptr;
  if (key == "left" && number) {
    widget.move(*number, widget.y());
  } else if (key == "width" && number) {
    widget.resize(*number, widget.height());
  } else if (key == "Tab" && number && text.kind == "tabs") {
    qobject_cast<QTabWidget*>(&widget)->setCurrentIndex(*number);
  } else if (key == "title" && tabs != nullptr) {
    tabs->setTabText(tabs->indexOf(&widget), textOf(value));
  } else if (key == "tip" && tabs != nullptr) {
    tabs->setTabToolTip(tabs->indexOf(&widget), textOf(value));
  } else {
    badLine(text.line, "a widget takes no such " + key);
  }
}

}  // namespace

std::optional<Value> readKey(QObject& object, const ObjectText& text, const std::string& key) {
  if (key == "tag" || key == "Index") {
    const QVariant variant = object.property(key.c_str());
    return variant.isValid() ? valueOf(variant) : key == "tag" ? std::optional<Value>(Text()) : std::nullopt;
  }
  if (key == "Caption") {
    return qt::toText(caption(object));
  }
  if (key == "visible") {
    return text.kind == "page" || isShown(object);
  }
  auto* const widget = qobject_cast<QWidget*>(&object);
  if (key == "ToolTipText") {
    return qt::toText(widget != nullptr ? widget->toolTip()
                                        : actionToolTip(*qobject_cast<QAction*>(&object)));
  }
  if (widget == nullptr) {
    return std::nullopt;
  }
  if (key == "left") {
    return widget->x();
  }
  if (key == "width") {
    return widget->width();
  }
  if (key == "Tab") {
    return qobject_cast<QTabWidget*>(widget)->currentIndex();
  }
  QTabWidget* const tabs = tabsOf(*widget);
  const int tab = tabs->indexOf(widget);
  return qt::toText(key == "title" ? tabs->tabText(tab) : tabs->tabToolTip(tab));
}

void writeKey(QObject& object, const ObjectText& text, const std::string& key, const Value& value) {
  auto* const widget = qobject_cast<QWidget*>(&object);
  if (key == "tag" || key == "Index") {
    object.setProperty(key.c_str(), variantOf(value));
  } else if (key == "Caption" && text.kind != "tabs") {
    setCaption(object, textOf(value));
  } else if (key == "ToolTipText" && text.kind != "tabs") {
    widget != nullptr ? widget->setToolTip(textOf(value))
                      : qobject_cast<QAction*>(&object)->setToolTip(textOf(value));
  } else if (key == "visible") {
    setShown(object, value.asBoolean().value_or(true));
  } else if (widget != nullptr) {
    writeWidgetKey(*widget, text, key, value);
  } else {
    badLine(text.line, "an action takes no " + key);
  }
}

}  // namespace kob::testing
