// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ToolBarObject.h"

#include <memory>

namespace kob::qt {

namespace {

HostRef collection(std::vector<HostRef> members) {
  return std::make_shared<HostCollection>(std::move(members));
}

}  // namespace

ToolBarObject::ToolBarObject(QWidget& toolBar, HostRef owner)
    : WidgetObject(toolBar, Kind::ToolBar, std::move(owner), Link::Container), buttons_(collection({})) {}

void ToolBarObject::setButtons(std::vector<HostRef> buttons) {
  buttons_ = collection(std::move(buttons));
}

bool ToolBarObject::mayHave(Property property) const noexcept {
  return property == Property::Buttons || LiveObject::mayHave(property);
}

std::optional<Value> ToolBarObject::read(Property property) {
  return property == Property::Buttons ? Value(buttons_) : WidgetObject::read(property);
}

ButtonObject::ButtonObject(QWidget& button, HostRef toolBar)
    : WidgetObject(button, Kind::ToolButton, toolBar, toolBar == nullptr ? Link::None : Link::Container),
      menus_(collection({})) {}

void ButtonObject::setMenus(std::vector<HostRef> menus) {
  menus_ = collection(std::move(menus));
}

std::optional<Value> ButtonObject::read(Property property) {
  switch (property) {
    case Property::Key:
      return Value(nameInPath());
    case Property::ButtonMenus:
      return Value(menus_);
    case Property::Left:
    case Property::Width:
      return std::nullopt;
    case Property::Caption:
    case Property::ToolTipText: {
      // Both are always answered: a tool bar's buttons are read without asking what they have.
      std::optional<Value> text = WidgetObject::read(property);
      return text ? std::move(text) : Value(Text());
    }
    default:
      return WidgetObject::read(property);
  }
}

bool ButtonObject::write(Property property, const Value& value) {
  return property != Property::Left && property != Property::Width && WidgetObject::write(property, value);
}

std::optional<Value> ButtonObject::readIndexed(Property property, std::int32_t index) {
  return property == Property::ButtonMenus ? menus_->item(index) : std::nullopt;
}

}  // namespace kob::qt
