// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/editor/Widget.h>

#include <utility>

namespace kob {

/// A box that is checked or not.
class KOB_EXPORT CheckBox : public Widget {
 public:
  using Widget::Widget;
  ~CheckBox() override;

  /// False at first. Assigning the other value raises Click.
  bool isChecked() const noexcept { return isChecked_; }
  void setChecked(bool checked);

  /// The one handler of Click; the box shows its new value already.
  void onClick(WidgetHandler handler) { onClick_ = std::move(handler); }

  /// A person has switched the box to `checked`.
  void personClicked(bool checked) noexcept;

 protected:
  virtual void showChecked(bool checked) = 0;

 private:
  WidgetHandler onClick_;
  bool isChecked_ = false;
};

}  // namespace kob
