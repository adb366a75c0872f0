// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/Text.h>

#include <cstdint>

namespace kob {

/// A text of the model as it is kept: its own copy, or a view of characters that somebody else keeps alive
/// (the image of a loaded file), which costs no allocation. Two words. Internal to the model's classes.
class KOB_EXPORT StoredText {
 public:
  StoredText() noexcept = default;
  /// A copy of the text.
  explicit StoredText(TextView text);
  /// A text that stays where it is.
  static StoredText view(TextView text) noexcept { return {text, false}; }
  StoredText(StoredText&& other) noexcept;
  StoredText& operator=(StoredText&& other) noexcept;
  ~StoredText();

  TextView text() const noexcept { return {data_, length_}; }

 private:
  StoredText(TextView text, bool isOwned) noexcept;

  const char16_t* data_ = nullptr;
  std::uint32_t length_ = 0;
  bool isOwned_ = false;
};

}  // namespace kob
