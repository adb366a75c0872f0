// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Fetch.h>
#include <kobtraduction/model/KOBCellTraduction.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace kob {

// What is read of a cell is found only through what was read before. So some cells are fetched together, one
// step of the way for all of them after the other, and the waiting is shared.

inline constexpr int cellsFetchedTogether = 16;

/// Puts the cells of a list that come next into `cells`, calls fetchCell(cell) for each, null for nothing,
/// and returns how many: 0 at the end. Internal.
template <class FetchCell>
int fetchNext(CellList::const_iterator next, const CellList& list,
              const KOBCellTraduction* (&cells)[cellsFetchedTogether], FetchCell&& fetchCell) noexcept {
  const CellList::const_iterator end = list.end();
  int count = 0;
  for (; count < cellsFetchedTogether && next != end; ++next) {
    cells[count] = (*next).get();
    fetchCell(cells[count++]);
  }
  return count;
}

/// The part of a cell that leads to its children and its entries, which is all but the names. Internal.
inline void fetchLists(const KOBCellTraduction* cell) noexcept {
  if (cell != nullptr) {
    const auto* const lists = reinterpret_cast<const char*>(&cell->ColCell());
    fetchBytes(lists, static_cast<std::size_t>(reinterpret_cast<const char*>(cell + 1) - lists));
  }
}

/// Fetches the cells of a list that come next, and of each its name and its first entries, a caption and a
/// tool tip; then calls fetchTexts(entry) for these. Internal.
template <class FetchTexts>
int fetchCells(CellList::const_iterator next, const CellList& list, FetchTexts&& fetchTexts) noexcept {
  constexpr std::int32_t entriesFetched = 2;
  constexpr std::size_t usualName = 32;
  const KOBCellTraduction* cells[cellsFetchedTogether];
  const int count = fetchNext(next, list, cells, [](const KOBCellTraduction* cell) { fetch(cell); });
  const std::shared_ptr<KOBTraductionObj>* entries[cellsFetchedTogether * entriesFetched];
  int found = 0;
  for (int i = 0; i < count; ++i) {
    if (cells[i] == nullptr) {
      continue;
    }
    fetchBytes(cells[i]->nom().data(), usualName);
    const EntryList* const held = cells[i]->entries();
    const std::int32_t few = held != nullptr ? std::min(held->Count(), entriesFetched) : 0;
    for (std::int32_t entry = 0; entry < few; ++entry) {
      entries[found++] = &*held->begin() + entry;
    }
    if (few > 0) {
      fetch(&*held->begin());
    }
  }
  for (int i = 0; i < found; ++i) {
    fetch(entries[i]->get());
  }
  for (int i = 0; i < found; ++i) {
    if (*entries[i] != nullptr) {
      fetchTexts(**entries[i]);
    }
  }
  return count;
}

/// The same, and where the texts of these entries begin. Internal.
inline int fetchCells(CellList::const_iterator next, const CellList& list) noexcept {
  return fetchCells(next, list,
                    [](const KOBTraductionObj& entry) { fetchBytes(entry.textUnits(), sizeof(char16_t)); });
}

/// Fetches the cells that come next but for their names, and of each node where its first children are;
/// returns how many. Internal.
inline int fetchNodes(CellList::const_iterator next, const CellList& list) noexcept {
  constexpr std::size_t firstItems = 160;
  const KOBCellTraduction* cells[cellsFetchedTogether];
  const int count = fetchNext(next, list, cells, fetchLists);
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
