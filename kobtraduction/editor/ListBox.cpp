// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/ListBox.h>

namespace kob {

ListBox::~ListBox() = default;

void ListBox::clear() {
  if (lines_.empty()) {
    return;
  }
  lines_.clear();
  listIndex_ = -1;
  showCleared();
}

void ListBox::add(TextView line) {
  lines_.emplace_back(line);
  showAdded(lines_.back());
}

void ListBox::setListIndex(std::int32_t index) {
  const std::int32_t line = index >= 0 && index < count() ? index : -1;
  if (listIndex_ != line) {
    listIndex_ = line;
    showListIndex(line);
    raise(onClick_);
  }
}

void ListBox::personClicked(std::int32_t index) noexcept {
  listIndex_ = index;
  raiseForPerson(onClick_);
}

}  // namespace kob
