// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Geometry.h"

#include <QLayout>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedLayout>
#include <QWidget>
#include <QWizardPage>

namespace kob::qt {

namespace {

bool holds(QLayout& layout, const QWidget& widget) {
  if (layout.menuBar() == &widget) {
    return true;
  }
  for (int i = 0; QLayoutItem* const item = layout.itemAt(i); ++i) {
    if (item->widget() == &widget) {
      return true;
    }
    if (QLayout* const inner = item->layout(); inner != nullptr && holds(*inner, widget)) {
      return true;
    }
  }
  return false;
}

bool isResizedByScrollArea(const QWidget& parent, const QWidget& widget) {
  const auto* const area = qobject_cast<const QScrollArea*>(parent.parentWidget());
  return area != nullptr && area->widget() == &widget && area->widgetResizable();
}

bool isPage(const QWidget& widget) {
  if (qobject_cast<const QWizardPage*>(&widget) != nullptr) {
    return true;
  }
  const QWidget* const parent = widget.parentWidget();
  const auto* const stack =
      parent != nullptr ? qobject_cast<const QStackedLayout*>(parent->layout()) : nullptr;
  return stack != nullptr && stack->indexOf(&widget) >= 0;
}

}  // namespace

bool isPlaced(const QWidget& widget) {
  const QWidget* const parent = widget.parentWidget();
  if (parent == nullptr || widget.isWindow()) {
    return false;
  }
  if (QLayout* const layout = parent->layout(); layout != nullptr && holds(*layout, widget)) {
    return true;
  }
  if (const auto* const splitter = qobject_cast<const QSplitter*>(parent)) {
    return splitter->indexOf(const_cast<QWidget*>(&widget)) >= 0;
  }
  return isResizedByScrollArea(*parent, widget);
}

bool setLeft(QWidget& widget, const Value& value) {
  const std::optional<std::int32_t> left = value.asLong();
  if (!left || isPlaced(widget)) {
    return false;
  }
  widget.move(*left, widget.y());
  return true;
}

bool setWidth(QWidget& widget, const Value& value) {
  const std::optional<std::int32_t> width = value.asLong();
  if (!width || isPlaced(widget)) {
    return false;
  }
  widget.resize(*width, widget.height());
  return true;
}

bool isVisibleItself(const QWidget& widget) {
  const bool hidden = widget.isHidden() && widget.testAttribute(Qt::WA_WState_ExplicitShowHide);
  return !hidden || isPage(widget);
}

}  // namespace kob::qt
