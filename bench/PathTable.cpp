// SPDX-FileCopyrightText: The KOBTraduction authors
#include "PathTable.h"

namespace bench {

PathTable::PathTable(std::size_t expected) {
  std::size_t size = 16;
  while (size < expected * 2) {
    size *= 2;
  }
  slots_.resize(size);
}

void PathTable::add(kob::TextView path, const void* value) {
  const std::uint32_t hash = kob::hashUpper(path);
  const std::size_t mask = slots_.size() - 1;
  std::size_t i = hash & mask;
  while (slots_[i].value != nullptr) {
    i = (i + 1) & mask;
  }
  slots_[i] = {hash, static_cast<std::uint32_t>(path.size()), paths_.size(), value};
  paths_ += kob::upper(path);
}

const void* PathTable::find(kob::TextView path) const noexcept {
  const std::uint32_t hash = kob::hashUpper(path);
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t i = hash & mask; slots_[i].value != nullptr; i = (i + 1) & mask) {
    const Slot& slot = slots_[i];
    if (slot.hash == hash && kob::equalToUpper(path, {paths_.data() + slot.start, slot.length})) {
      return slot.value;
    }
  }
  return nullptr;
}

}  // namespace bench
