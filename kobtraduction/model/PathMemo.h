// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kob {

class KOBCellTraduction;

/// Tells that a tree of the calling thread changed its shape or a name: what any PathMemo of the thread knows
/// is void from now on. Internal.
void treeChanged() noexcept;

/// How often that was told on the calling thread. Internal.
std::uint64_t treeChanges() noexcept;

/// Remembers to which cell a whole path led, case ignored, until a tree of the thread changes. Internal.
class PathMemo {
 public:
  /// The cell, or null when it has to be looked for.
  KOBCellTraduction* find(TextView path) const noexcept;
  void remember(TextView path, KOBCellTraduction& cell);

 private:
  struct Slot {
    KOBCellTraduction* cell = nullptr;
    std::size_t start = 0;
    std::uint32_t length = 0;
    std::uint32_t hash = 0;
  };

  void put(const Slot& slot) noexcept;
  void grow();

  /// Open addressing, at most half full; the size is a power of two, or 0.
  std::vector<Slot> slots_;
  std::size_t used_ = 0;
  /// The upper-cased paths, one behind the other.
  Text paths_;
  std::uint64_t state_ = 0;
};

}  // namespace kob
