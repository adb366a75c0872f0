// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ActionObject.h"

#include "QtValue.h"
#include "ToolTip.h"

#include <kobtraductionqt/KOBTraductionQt.h>

namespace kob::qt {

ActionObject::ActionObject(QAction& action, Role role, HostRef owner, Link link)
    : LiveObject(action, std::move(owner), link), role_(role) {}

std::optional<Value> ActionObject::read(Property property) {
  switch (property) {
    case Property::Caption:
      return Value(toText(action().text()));
    case Property::ToolTipText:
      return Value(toText(ownToolTip(action())));
    case Property::Visible:
      return Value(action().isVisible());
    case Property::Key:
      return role_ == Role::ButtonMenu ? std::optional<Value>(nameInPath()) : std::nullopt;
    default:
      return std::nullopt;
  }
}

bool ActionObject::writeText(Property property, const QString& text) {
  if (property == Property::Caption) {
    setTextWithDerived(action(), text);
  } else {
    setOwnToolTip(action(), text);
  }
  return true;
}

}  // namespace kob::qt
