// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace bench {

/// The floor of every look-up: one table of whole upper-cased paths, filled once and never kept up to date.
/// Open addressing, at most half full, the paths one behind the other in one piece of memory.
class PathTable {
 public:
  explicit PathTable(std::size_t expected);

  /// `path` must not be there yet.
  void add(kob::TextView path, const void* value);
  const void* find(kob::TextView path) const noexcept;

 private:
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t length = 0;
    std::size_t start = 0;
    const void* value = nullptr;
  };

  std::vector<Slot> slots_;
  std::u16string paths_;
};

}  // namespace bench
