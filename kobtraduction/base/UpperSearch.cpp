// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/UpperSearch.h>

namespace kob {

namespace {

/// upperUnit without a look into its table for most units.
char16_t fold(char16_t unit) noexcept {
  constexpr char16_t firstBeyondAscii = 0x80;
  if (unit >= firstBeyondAscii) {
    return upperUnit(unit);
  }
  return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - (u'a' - u'A')) : unit;
}

}  // namespace

UpperSearch::UpperSearch(TextView sought) : sought_(upper(sought)) {}

bool UpperSearch::isIn(TextView text) const noexcept {
  if (sought_.empty()) {
    return true;
  }
  if (text.size() < sought_.size()) {
    return false;
  }
  const char16_t first = sought_.front();
  for (std::size_t start = 0, last = text.size() - sought_.size(); start <= last; ++start) {
    if (fold(text[start]) == first && equalToUpper(text.substr(start, sought_.size()), sought_)) {
      return true;
    }
  }
  return false;
}

}  // namespace kob
