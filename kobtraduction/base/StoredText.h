// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/ImageRef.h>
#include <kobtraduction/base/Text.h>

#include <cstdint>
#include <utility>

namespace kob {

/// A text of the model as it is kept: its own copy, or a view, which costs no allocation. Internal to the
/// model's classes.
class KOB_EXPORT StoredText {
 public:
  StoredText() noexcept = default;
  /// A copy of the text.
  explicit StoredText(TextView text);
  /// A text that stays where it is: in an image that is kept alive, or, without one, in static storage.
  static StoredText view(TextView text, ImageRef image = {});
  StoredText(StoredText&& other) noexcept;
  StoredText& operator=(StoredText&& other) noexcept {
    swap(other);
    return *this;
  }
  ~StoredText() {
    if (isOwned_) {
      delete[] data_;
    }
  }

  void swap(StoredText& other) noexcept {
    std::swap(data_, other.data_);
    image_.swap(other.image_);
    std::swap(length_, other.length_);
    std::swap(isOwned_, other.isOwned_);
  }

  TextView text() const noexcept { return {data_, length_}; }

 private:
  const char16_t* data_ = nullptr;
  ImageRef image_;
  std::uint32_t length_ = 0;
  bool isOwned_ = false;
};

}  // namespace kob
