// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/editor/Widget.h>

#include <utility>

namespace kob {

/// A push button.
class KOB_EXPORT Button : public Widget {
 public:
  using Widget::Widget;
  ~Button() override;

  /// The one handler of the click.
  void onClick(WidgetHandler handler) { onClick_ = std::move(handler); }

  /// A person has pressed the button, by mouse or key.
  void personClicked() noexcept { raiseForPerson(onClick_); }

 private:
  WidgetHandler onClick_;
};

}  // namespace kob
