// SPDX-FileCopyrightText: The KOBTraduction authors
#include "WidgetCaption.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QToolButton>
#include <QWizard>

namespace kob::qt {

namespace {

template <class Widget>
const Widget& as(const QWidget& widget) {
  return static_cast<const Widget&>(widget);
}

template <class Widget>
Widget& as(QWidget& widget) {
  return static_cast<Widget&>(widget);
}

// Setting a button's text gives it the shortcut of the text's mnemonic. One that was set on its own stays.
void setButtonText(QAbstractButton& button, const QString& text) {
  const QKeySequence shortcut = button.shortcut();
  if (shortcut.isEmpty() && !text.contains(u'&')) {
    button.setText(text);
    return;
  }
  const bool ownShortcut = shortcut != QKeySequence::mnemonic(button.text());
  button.setText(text);
  if (ownShortcut && button.shortcut() != shortcut) {
    button.setShortcut(shortcut);
  }
}

// An editable combo box shows the placeholder of its line edit as long as it has none itself.
QLineEdit* placeholderEdit(const QComboBox& box) {
  return box.placeholderText().isEmpty() ? box.lineEdit() : nullptr;
}

bool standsForAction(const QWidget& widget, Kind kind) {
  switch (kind) {
    case Kind::ToolButton:
      return as<QToolButton>(widget).defaultAction() != nullptr;
    case Kind::Menu:
      return as<QMenu>(widget).menuAction()->parent() != &widget;
    default:
      return false;
  }
}

}  // namespace

std::optional<QString> widgetCaption(const QWidget& widget, Kind kind) {
  switch (kind) {
    case Kind::Label:
      return as<QLabel>(widget).text();
    case Kind::ToolButton:
      if (standsForAction(widget, kind)) {
        return std::nullopt;
      }
      [[fallthrough]];
    case Kind::Button:
      return as<QAbstractButton>(widget).text();
    case Kind::GroupBox:
      return as<QGroupBox>(widget).title();
    case Kind::Menu:
      return standsForAction(widget, kind) ? std::nullopt : std::optional(as<QMenu>(widget).title());
    case Kind::WizardPage:
      return as<QWizardPage>(widget).title();
    case Kind::LineEdit:
      return as<QLineEdit>(widget).placeholderText();
    case Kind::TextEdit:
      return as<QTextEdit>(widget).placeholderText();
    case Kind::PlainTextEdit:
      return as<QPlainTextEdit>(widget).placeholderText();
    case Kind::ComboBox: {
      const QLineEdit* const edit = placeholderEdit(as<QComboBox>(widget));
      return edit != nullptr ? edit->placeholderText() : as<QComboBox>(widget).placeholderText();
    }
    default:
      return widget.windowTitle();
  }
}

bool setWidgetCaption(QWidget& widget, Kind kind, const QString& caption) {
  switch (kind) {
    case Kind::Label:
      as<QLabel>(widget).setText(caption);
      return true;
    case Kind::ToolButton:
      if (standsForAction(widget, kind)) {
        return false;
      }
      [[fallthrough]];
    case Kind::Button:
      setButtonText(as<QAbstractButton>(widget), caption);
      return true;
    case Kind::GroupBox:
      as<QGroupBox>(widget).setTitle(caption);
      return true;
    case Kind::Menu:
      if (standsForAction(widget, kind)) {
        return false;
      }
      as<QMenu>(widget).setTitle(caption);
      return true;
    case Kind::WizardPage:
      as<QWizardPage>(widget).setTitle(caption);
      return true;
    case Kind::LineEdit:
      as<QLineEdit>(widget).setPlaceholderText(caption);
      return true;
    case Kind::TextEdit:
      as<QTextEdit>(widget).setPlaceholderText(caption);
      return true;
    case Kind::PlainTextEdit:
      as<QPlainTextEdit>(widget).setPlaceholderText(caption);
      return true;
    case Kind::ComboBox:
      if (QLineEdit* const edit = placeholderEdit(as<QComboBox>(widget))) {
        edit->setPlaceholderText(caption);
      } else {
        as<QComboBox>(widget).setPlaceholderText(caption);
      }
      return true;
    default:
      widget.setWindowTitle(caption);
      return true;
  }
}

std::optional<QString> widgetToolTip(const QWidget& widget, Kind kind) {
  return kind == Kind::ToolButton && standsForAction(widget, kind) ? std::nullopt
                                                                   : std::optional(widget.toolTip());
}

bool setWidgetToolTip(QWidget& widget, Kind kind, const QString& toolTip) {
  if (kind == Kind::ToolButton && standsForAction(widget, kind)) {
    return false;
  }
  widget.setToolTip(toolTip);
  return true;
}

}  // namespace kob::qt
