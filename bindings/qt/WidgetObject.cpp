// SPDX-FileCopyrightText: The KOBTraduction authors
#include "WidgetObject.h"

#include "Geometry.h"
#include "QtValue.h"
#include "WidgetCaption.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QAction>
#include <QMenu>

namespace kob::qt {

namespace {

std::optional<Value> textValue(const std::optional<QString>& text) {
  return text ? std::optional<Value>(toText(*text)) : std::nullopt;
}

}  // namespace

WidgetObject::WidgetObject(QWidget& widget, Kind kind, HostRef owner, Link link)
    : LiveObject(widget, std::move(owner), link), kind_(kind) {}

// A form is moved as the form, and menus appear where they are opened.
bool WidgetObject::movable() const noexcept {
  return kind_ != Kind::Menu && !isSecondFace();
}

std::optional<Value> WidgetObject::read(Property property) {
  const bool isMenu = kind_ == Kind::Menu;
  switch (property) {
    case Property::Caption:
      return textValue(widgetCaption(widget(), kind_));
    case Property::ToolTipText:
      return textValue(widgetToolTip(widget(), kind_));
    case Property::Left:
      return movable() ? std::optional<Value>(widget().x()) : std::nullopt;
    case Property::Width:
      return movable() ? std::optional<Value>(widget().width()) : std::nullopt;
    case Property::Visible:
      // A menu is shown where its action is.
      return isMenu ? static_cast<QMenu&>(widget()).menuAction()->isVisible() : isVisibleItself(widget());
    default:
      return std::nullopt;
  }
}

bool WidgetObject::write(Property property, const Value& value) {
  switch (property) {
    case Property::Left:
      return movable() && setLeft(widget(), value);
    case Property::Width:
      return movable() && setWidth(widget(), value);
    default:
      return false;
  }
}

bool WidgetObject::writeText(Property property, const QString& text) {
  return property == Property::Caption ? setWidgetCaption(widget(), kind_, text)
                                       : setWidgetToolTip(widget(), kind_, text);
}

}  // namespace kob::qt
