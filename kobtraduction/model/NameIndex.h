// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace kob {

class KOBCellTraduction;

/// Cells by their names, case ignored: finds, adds and removes in constant time. It knows no order and owns
/// nothing: a cell is removed before it is renamed or dies. The same cell may be in it several times.
/// Internal to the list of children.
class NameIndex {
 public:
  /// With room for so many cells.
  explicit NameIndex(std::size_t cells);

  /// The cell of that name, or null; empty when several cells bear it.
  std::optional<KOBCellTraduction*> find(TextView name) const noexcept;

  /// Makes room for one more cell.
  void makeRoom();
  /// There must be room.
  void add(KOBCellTraduction& cell) noexcept;
  /// One time; the cell must be there, by its present name.
  void remove(KOBCellTraduction& cell) noexcept;

 private:
  struct Slot {
    std::uint32_t hash = 0;
    KOBCellTraduction* cell = nullptr;
  };

  void put(const Slot& slot) noexcept;

  /// Open addressing by the hash of the upper-cased name, at most three quarters full; the size is a power of
  /// two.
  std::vector<Slot> slots_;
  std::size_t used_ = 0;
  /// Two cells had one hash, perhaps because of equal names: a look-up does not end with the first it finds.
  bool hasTwins_ = false;
};

}  // namespace kob
