// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/ComboBox.h>

namespace kob {

ComboBox::~ComboBox() = default;

void ComboBox::add(TextView line) {
  lines_.emplace_back(line);
  showAdded(lines_.back());
}

void ComboBox::setListIndex(std::int32_t index) {
  const std::int32_t line = index >= 0 && index < count() ? index : -1;
  if (listIndex_ != line) {
    listIndex_ = line;
    showListIndex(line);
  }
}

void ComboBox::personChose(std::int32_t index) noexcept {
  listIndex_ = index;
}

}  // namespace kob
