// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "WidgetObject.h"

#include <vector>

namespace kob::qt {

/// A tool bar: a widget with Buttons. It holds them, so they do not hold it: as members of a tool bar they
/// have no Container.
class ToolBarObject final : public WidgetObject {
 public:
  ToolBarObject(QWidget& toolBar, HostRef owner);
  void setButtons(std::vector<HostRef> buttons);

  bool mayHave(Property property) const noexcept override;

 private:
  std::optional<Value> read(Property property) override;

  HostRef buttons_;
};

/// A tool button that the application put on a tool bar, which decides where the button stands.
class ButtonObject final : public WidgetObject {
 public:
  /// `toolBar` is null for a button that its tool bar holds.
  ButtonObject(QWidget& button, HostRef toolBar);
  void setMenus(std::vector<HostRef> menus);

 private:
  std::optional<Value> read(Property property) override;
  bool write(Property property, const Value& value) override;
  std::optional<Value> readIndexed(Property property, std::int32_t index) override;

  HostRef menus_;
};

}  // namespace kob::qt
