// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FormObject.h"

#include "FormWalk.h"
#include "Geometry.h"
#include "QtValue.h"
#include "WidgetCaption.h"

#include <kobtraductionqt/KOBTraductionQt.h>

namespace kob::qt {

FormObject::FormObject(QWidget& form) : LiveObject(form, nullptr, Link::None) {}

std::optional<Value> FormObject::read(Property property) {
  switch (property) {
    case Property::Caption:
      return Value(toText(form().windowTitle()));
    case Property::ToolTipText:
      return Value(toText(form().toolTip()));
    case Property::Left:
      return Value(form().x());
    case Property::Width:
      return Value(form().width());
    case Property::Visible:
      return Value(isVisibleItself(form()));
    case Property::Controls:
      return Value(std::make_shared<HostCollection>(FormWalk(form(), shared_from_this()).controls()));
    default:
      return std::nullopt;
  }
}

bool FormObject::write(Property property, const Value& value) {
  switch (property) {
    case Property::Left:
      return setLeft(form(), value);
    case Property::Width:
      return setWidth(form(), value);
    default:
      return false;
  }
}

bool FormObject::writeText(Property property, const QString& text) {
  return property == Property::Caption ? setWidgetCaption(form(), Kind::WindowTitle, text)
                                       : setWidgetToolTip(form(), Kind::WindowTitle, text);
}

}  // namespace kob::qt
