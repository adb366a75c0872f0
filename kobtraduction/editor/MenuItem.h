// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/editor/Widget.h>

#include <utility>

namespace kob {

/// An entry of the menu bar, or of one of its menus; only the latter is clicked.
class KOB_EXPORT MenuItem : public Widget {
 public:
  using Widget::Widget;
  ~MenuItem() override;

  /// The one handler of the click.
  void onClick(WidgetHandler handler) { onClick_ = std::move(handler); }

  /// A person has chosen the entry, from the menu or by its key.
  void personClicked() noexcept { raiseForPerson(onClick_); }

 private:
  WidgetHandler onClick_;
};

}  // namespace kob
