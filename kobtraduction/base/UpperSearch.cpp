// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/UpperSearch.h>

namespace kob {

UpperSearch::UpperSearch(TextView sought) : sought_(upper(sought)) {}

bool UpperSearch::isIn(TextView text) const noexcept {
  if (sought_.empty()) {
    return true;
  }
  const char16_t first = sought_.front();
  for (std::size_t start = 0; start + sought_.size() <= text.size(); ++start) {
    if (upperUnit(text[start]) == first && equalToUpper(text.substr(start, sought_.size()), sought_)) {
      return true;
    }
  }
  return false;
}

}  // namespace kob
