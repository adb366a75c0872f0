// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/StoredText.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <new>
#include <utility>

namespace kob {

namespace {

std::uint32_t lengthOf(TextView text) {
  if (text.size() > std::numeric_limits<std::uint32_t>::max()) {
    throw std::bad_alloc();
  }
  return static_cast<std::uint32_t>(text.size());
}

}  // namespace

StoredText::StoredText(TextView text) : length_(lengthOf(text)) {
  if (!text.empty()) {
    auto units = std::make_unique_for_overwrite<char16_t[]>(text.size());
    std::copy(text.begin(), text.end(), units.get());
    data_ = units.release();
    isOwned_ = true;
  }
}

StoredText StoredText::view(TextView text, ImageRef image) {
  StoredText stored;
  stored.length_ = lengthOf(text);
  if (!text.empty()) {
    stored.data_ = text.data();
    stored.image_ = std::move(image);
  }
  return stored;
}

StoredText::StoredText(StoredText&& other) noexcept
    : data_(std::exchange(other.data_, nullptr)),
      image_(std::move(other.image_)),
      length_(std::exchange(other.length_, 0)),
      isOwned_(std::exchange(other.isOwned_, false)) {}

}  // namespace kob
