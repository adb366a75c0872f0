// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/editor/Widget.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kob {

/// A list that folds out, from which one line is chosen; nothing can be typed. Lines count from 0; -1 stands
/// for none. It raises no events.
class KOB_EXPORT ComboBox : public Widget {
 public:
  using Widget::Widget;
  ~ComboBox() override;

  std::int32_t count() const noexcept { return static_cast<std::int32_t>(lines_.size()); }
  /// A line that there is; valid until a line is added.
  const Text& line(std::int32_t index) const noexcept { return lines_[static_cast<std::size_t>(index)]; }
  void add(TextView line);

  /// The chosen line; -1 at first, however many lines there are. A number that is no line is -1.
  std::int32_t listIndex() const noexcept { return listIndex_; }
  void setListIndex(std::int32_t index);

  /// A person has chosen a line.
  void personChose(std::int32_t index) noexcept;

 protected:
  virtual void showAdded(TextView line) = 0;
  virtual void showListIndex(std::int32_t index) = 0;

 private:
  std::vector<Text> lines_;
  std::int32_t listIndex_ = -1;
};

}  // namespace kob
