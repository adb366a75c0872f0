// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/editor/Widget.h>

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace kob {

/// Lines of text in the order in which they were added, of which at most one is selected. Lines count from
/// 0; -1 stands for none.
class KOB_EXPORT ListBox : public Widget {
 public:
  using Widget::Widget;
  ~ListBox() override;

  std::int32_t count() const noexcept { return static_cast<std::int32_t>(lines_.size()); }
  /// A line that there is; valid until the list is cleared or added to.
  const Text& line(std::int32_t index) const noexcept { return lines_[static_cast<std::size_t>(index)]; }
  /// Removes all lines and with them the selection; no event.
  void clear();
  /// Appends a line; no event.
  void add(TextView line);

  /// The selected line. Assigning another line, or -1, raises Click; a number that is no line is -1.
  std::int32_t listIndex() const noexcept { return listIndex_; }
  void setListIndex(std::int32_t index);

  /// The one handler of Click.
  void onClick(WidgetHandler handler) { onClick_ = std::move(handler); }

  /// A person has clicked a line or reached it by keys, also the one that is selected already; -1 for a click
  /// below the last line that leaves none selected.
  void personClicked(std::int32_t index) noexcept;

 protected:
  virtual void showCleared() = 0;
  virtual void showAdded(TextView line) = 0;
  virtual void showListIndex(std::int32_t index) = 0;

 private:
  std::vector<Text> lines_;
  WidgetHandler onClick_;
  std::int32_t listIndex_ = -1;
};

}  // namespace kob
