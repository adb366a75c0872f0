// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>

#include <algorithm>
#include <string>

/// Texts are UTF-16 on both sides: units are copied, nothing is transcoded.
namespace kob::win32 {

/// What stands for a NUL on the screen, where the system would end the text: the symbol of it.
inline constexpr char16_t shownNul = 0x2400;

/// A text as the system shows it.
inline std::wstring shown(TextView text) {
  std::wstring result(text.begin(), text.end());
  std::replace(result.begin(), result.end(), L'\0', static_cast<wchar_t>(shownNul));
  return result;
}

inline Text textOf(std::wstring_view text) {
  return {text.begin(), text.end()};
}

}  // namespace kob::win32
