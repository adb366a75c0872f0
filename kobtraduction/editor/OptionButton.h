// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/editor/Widget.h>

#include <utility>

namespace kob {

/// One of a group of buttons of which at most one is on.
class KOB_EXPORT OptionButton : public Widget {
 public:
  /// Joins the group of `group`, or starts one when that is null. The buttons of a group live equally long.
  OptionButton(DialogWindow& window, const WidgetId& id, OptionButton* group) noexcept;
  ~OptionButton() override;

  /// No button of a group is on at first.
  bool isOn() const noexcept { return isOn_; }
  /// Switches the others of the group off, which raises nothing, and this one on, which raises its Click; a
  /// button that is on raises nothing.
  void setOn();

  /// The one handler of Click; the group shows its new state already.
  void onClick(WidgetHandler handler) { onClick_ = std::move(handler); }

  /// A person has chosen this button; reported only for one that was off. The toolkit shows the others off
  /// already, or does so now, when showOn is called for them.
  void personChose() noexcept;

 protected:
  virtual void showOn(bool on) = 0;

 private:
  /// The others of the group are off, this one on.
  void choose();

  /// The group is a ring.
  OptionButton* next_;
  WidgetHandler onClick_;
  bool isOn_ = false;
};

}  // namespace kob
