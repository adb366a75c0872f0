// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Fetch.h>
#include <kobtraduction/model/KOBCellTraduction.h>

#include <cstddef>
#include <memory>

namespace kob {

/// Fetches the cells of a list that come next, and returns how many: 0 at the end. What is read of a cell is
/// found only through what was read before. So some cells are fetched together, one step of the way for all
/// of them after the other, and the waiting is shared. Of each cell's first entry so many bytes of its texts
/// are fetched, too. Internal.
inline int fetchCells(CellList::const_iterator next, const CellList& list, std::size_t textBytes) noexcept {
  constexpr int together = 16;
  const KOBCellTraduction* cells[together];
  int count = 0;
  for (; count < together && next != list.end(); ++next) {
    cells[count] = (*next).get();
    fetch(cells[count++]);
  }
  const std::shared_ptr<KOBTraductionObj>* firstEntries[together];
  for (int i = 0; i < count; ++i) {
    const EntryList* const entries = cells[i] != nullptr ? cells[i]->entries() : nullptr;
    firstEntries[i] = entries != nullptr && entries->Count() > 0 ? &*entries->begin() : nullptr;
    fetch(firstEntries[i]);
  }
  for (int i = 0; i < count; ++i) {
    if (firstEntries[i] != nullptr) {
      fetch(firstEntries[i]->get());
    }
  }
  for (int i = 0; i < count; ++i) {
    if (firstEntries[i] != nullptr && *firstEntries[i] != nullptr) {
      fetchBytes((*firstEntries[i])->textUnits(), textBytes);
    }
  }
  return count;
}

}  // namespace kob
