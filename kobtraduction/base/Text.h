// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace kob {

/// The one text type of the component: UTF-16 code units, any sequence of them, unpaired surrogates included.
/// Lengths and "the last three characters" count code units.
using Text = std::u16string;
using TextView = std::u16string_view;

namespace detail {
/// Two-stage upper-case table (generated, see UpperCaseTable.py): page number per high byte; per low byte,
/// how far the upper case lies from the unit, modulo 65536, so that all pages without upper case are one.
KOB_EXPORT extern const std::uint8_t upperCasePage[256];
KOB_EXPORT extern const char16_t upperCaseShift[][256];
}  // namespace detail

/// Unicode's simple upper-case mapping of one code unit, the same on every machine and in every locale. A
/// unit whose full upper case is longer than one unit (the sharp s, U+1F80 and its like) stays, and so does a
/// surrogate: upper-casing never changes a text's length.
inline char16_t upperUnit(char16_t unit) noexcept {
  return static_cast<char16_t>(unit + detail::upperCaseShift[detail::upperCasePage[unit >> 8]][unit & 0xFF]);
}

/// The text with every unit upper-cased.
KOB_EXPORT Text upper(TextView text);

/// Whether both texts are the same, unit by unit: the operator == of texts, in fewer steps, and without a
/// look at the units when both are in one place.
inline bool sameUnits(TextView a, TextView b) noexcept {
  return a.size() == b.size() &&
         (a.data() == b.data() || a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof a[0]) == 0);
}

/// Whether both texts read the same once upper-cased.
KOB_EXPORT bool equalUpper(TextView a, TextView b) noexcept;

/// Whether the upper-cased `text` is `uppered`, which is upper-cased already.
KOB_EXPORT bool equalToUpper(TextView text, TextView uppered) noexcept;

/// Whether a comes before b once both are upper-cased: ordinal by code unit, a prefix before the longer text.
KOB_EXPORT bool lessUpper(TextView a, TextView b) noexcept;

/// A hash of the upper-cased text: equal for texts that are equalUpper.
KOB_EXPORT std::uint32_t hashUpper(TextView text) noexcept;

/// The text in UTF-8; an unpaired surrogate becomes U+FFFD.
KOB_EXPORT std::string toUtf8(TextView text);

/// A number in decimal: no leading zeros, no blanks, "-" in front of a negative one.
KOB_EXPORT Text decimal(std::int64_t number);

}  // namespace kob
