// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/model/KOBCellTraduction.h>
#include <kobtraduction/model/MarkedCells.h>

#include <cstring>

namespace kob {

std::uint8_t MarkedCells::markOf(TextView name) noexcept {
  // Siblings mostly begin alike, and differ in their number or in what comes behind the control's kind.
  return name.empty() ? 0
                      : static_cast<std::uint8_t>(name.size() + 3U * upperUnit(name.back()) +
                                                  5U * upperUnit(name[name.size() / 2]));
}

KOBCellTraduction* MarkedCells::find(TextView name) const noexcept {
  const std::uint8_t wanted = markOf(name);
  for (std::size_t at = 0; at < count; ++at) {
    const void* const marked = std::memchr(&marks[at], wanted, count - at);
    if (marked == nullptr) {
      break;
    }
    at = static_cast<std::size_t>(static_cast<const std::uint8_t*>(marked) - marks.data());
    if (equalUpper(cells[at]->nom(), name)) {
      return cells[at].get();
    }
  }
  return nullptr;
}

}  // namespace kob
