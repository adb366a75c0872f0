// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/model/KOBCellTraduction.h>
#include <kobtraduction/model/NameIndex.h>

#include <bit>
#include <utility>

namespace kob {

NameIndex::NameIndex(std::size_t cells) : slots_(std::bit_ceil(2 * cells)) {}

std::optional<KOBCellTraduction*> NameIndex::find(TextView name) const noexcept {
  const std::size_t mask = slots_.size() - 1;
  const std::uint32_t hash = hashUpper(name);
  KOBCellTraduction* found = nullptr;
  for (std::size_t i = hash & mask; slots_[i].cell != nullptr; i = (i + 1) & mask) {
    if (slots_[i].hash == hash && equalUpper(slots_[i].cell->nom(), name)) {
      if (!hasTwins_) {
        return slots_[i].cell;
      }
      if (found != nullptr) {
        return std::nullopt;
      }
      found = slots_[i].cell;
    }
  }
  return found;
}

void NameIndex::makeRoom() {
  if ((used_ + 1) * 4 <= slots_.size() * 3) {
    return;
  }
  // By the hashes that are known: reading all the names again would cost more than what is inserted.
  std::vector<Slot> former(slots_.size() * 2);
  former.swap(slots_);
  for (const Slot& slot : former) {
    if (slot.cell != nullptr) {
      put(slot);
    }
  }
}

void NameIndex::add(KOBCellTraduction& cell) noexcept {
  put({hashUpper(cell.nom()), &cell});
  ++used_;
}

void NameIndex::put(const Slot& slot) noexcept {
  const std::size_t mask = slots_.size() - 1;
  std::size_t i = slot.hash & mask;
  for (; slots_[i].cell != nullptr; i = (i + 1) & mask) {
    hasTwins_ |= slots_[i].hash == slot.hash;
  }
  slots_[i] = slot;
}

void NameIndex::remove(KOBCellTraduction& cell) noexcept {
  const std::size_t mask = slots_.size() - 1;
  std::size_t hole = hashUpper(cell.nom()) & mask;
  while (slots_[hole].cell != &cell) {
    hole = (hole + 1) & mask;
  }
  // Entries behind the hole that probed past it move up, so that no look-up stops short of them.
  for (std::size_t i = (hole + 1) & mask; slots_[i].cell != nullptr; i = (i + 1) & mask) {
    const std::size_t home = slots_[i].hash & mask;
    if (((i - home) & mask) >= ((i - hole) & mask)) {
      slots_[hole] = slots_[i];
      hole = i;
    }
  }
  slots_[hole] = {};
  --used_;
}

}  // namespace kob
