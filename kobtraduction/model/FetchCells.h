// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Fetch.h>
#include <kobtraduction/model/KOBCellTraduction.h>

#include <cstddef>
#include <memory>

namespace kob {

// What is read of a cell is found only through what was read before. So some cells are fetched together, one
// step of the way for all of them after the other, and the waiting is shared.

inline constexpr int cellsFetchedTogether = 16;

/// Fetches the cells of a list that come next into `cells`, and returns how many: 0 at the end. Internal.
inline int fetchNext(CellList::const_iterator next, const CellList& list,
                     const KOBCellTraduction* (&cells)[cellsFetchedTogether]) noexcept {
  int count = 0;
  for (; count < cellsFetchedTogether && next != list.end(); ++next) {
    cells[count] = (*next).get();
    fetch(cells[count++]);
  }
  return count;
}

/// The same, and of each cell's first entry so many bytes of its texts. Internal.
inline int fetchCells(CellList::const_iterator next, const CellList& list, std::size_t textBytes) noexcept {
  const KOBCellTraduction* cells[cellsFetchedTogether];
  const int count = fetchNext(next, list, cells);
  const std::shared_ptr<KOBTraductionObj>* firstEntries[cellsFetchedTogether];
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

/// The same, and of each node where its first children are. Internal.
inline int fetchNodes(CellList::const_iterator next, const CellList& list) noexcept {
  constexpr std::size_t firstItems = 160;
  const KOBCellTraduction* cells[cellsFetchedTogether];
  const int count = fetchNext(next, list, cells);
  const auto eachList = [&](auto&& fetchStep) {
    for (int i = 0; i < count; ++i) {
      if (cells[i] != nullptr && cells[i]->ColCell() != nullptr) {
        fetchStep(*cells[i]->ColCell());
      }
    }
  };
  eachList([](const CellList& children) { fetch(&children); });
  eachList([](const CellList& children) { fetchBytes(children.chunks(), sizeof(void*)); });
  eachList([](const CellList& children) { fetchBytes(children.firstItem(), firstItems); });
  return count;
}

}  // namespace kob
