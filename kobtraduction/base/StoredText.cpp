// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/StoredText.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <new>
#include <utility>

namespace kob {

StoredText::StoredText(TextView text, bool isOwned) noexcept
    : data_(text.data()), length_(static_cast<std::uint32_t>(text.size())), isOwned_(isOwned) {}

StoredText::StoredText(TextView text) {
  if (text.size() > std::numeric_limits<std::uint32_t>::max()) {
    throw std::bad_alloc();
  }
  if (!text.empty()) {
    auto units = std::make_unique<char16_t[]>(text.size());
    std::copy(text.begin(), text.end(), units.get());
    data_ = units.release();
    length_ = static_cast<std::uint32_t>(text.size());
    isOwned_ = true;
  }
}

StoredText::StoredText(StoredText&& other) noexcept
    : data_(std::exchange(other.data_, nullptr)),
      length_(std::exchange(other.length_, 0)),
      isOwned_(std::exchange(other.isOwned_, false)) {}

StoredText& StoredText::operator=(StoredText&& other) noexcept {
  std::swap(data_, other.data_);
  std::swap(length_, other.length_);
  std::swap(isOwned_, other.isOwned_);
  return *this;
}

StoredText::~StoredText() {
  if (isOwned_) {
    delete[] data_;
  }
}

}  // namespace kob
