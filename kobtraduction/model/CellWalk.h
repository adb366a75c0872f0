// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Failure.h>
#include <kobtraduction/base/Fetch.h>
#include <kobtraduction/model/KOBCellTraduction.h>

#include <cstddef>
#include <memory>
#include <type_traits>
#include <vector>

namespace kob {

/// The walk of every whole-tree operation: depth first, a cell before its children, children in list order.
/// It keeps its own stack, so that the depth of a tree is never the depth of the call stack, and it does not
/// enter a cell that it is already inside of (a host can put a cell below itself). A node without a list, or
/// an item that is nothing, fails with ObjectNotSet when it is reached. Lists must not change during the
/// walk. Internal.
class CellWalk {
 public:
  CellWalk() = default;
  CellWalk(const CellWalk&) = delete;
  CellWalk& operator=(const CellWalk&) = delete;
  ~CellWalk() {
    while (!open_.empty()) {
      leave();
    }
  }

  /// Calls visit(cell), or visit(cell, depth), for `root` (depth 0) and every cell below it.
  template <class Visit>
  static void each(KOBCellTraduction& root, Visit&& visit) {
    CellWalk walk;
    for (KOBCellTraduction* cell = &root; cell != nullptr; cell = walk.next()) {
      if constexpr (std::is_invocable_v<Visit, KOBCellTraduction&, std::size_t>) {
        visit(*cell, walk.open_.size());
      } else {
        visit(*cell);
      }
      walk.enter(*cell);
    }
  }

 private:
  struct Level {
    KOBCellTraduction* cell;
    std::shared_ptr<CellList> children;
    CellList::const_iterator next;
    /// How many children are fetched and not walked yet.
    int fetched = 0;
  };

  void enter(KOBCellTraduction& cell) {
    if (cell.TypeCell() != 1 || cell.isWalked_) {
      return;
    }
    if (cell.ColCell() == nullptr) {
      throw Failure(FailureKind::ObjectNotSet);
    }
    open_.push_back({&cell, cell.ColCell(), cell.ColCell()->begin(), 0});
    cell.isWalked_ = true;
  }

  KOBCellTraduction* next() {
    while (!open_.empty() && open_.back().next == open_.back().children->end()) {
      leave();
    }
    if (open_.empty()) {
      return nullptr;
    }
    if (open_.back().fetched == 0) {
      fetchChildren(open_.back());
    }
    --open_.back().fetched;
    KOBCellTraduction* const cell = (*open_.back().next).get();
    ++open_.back().next;
    if (cell == nullptr) {
      throw Failure(FailureKind::ObjectNotSet);
    }
    return cell;
  }

  /// What a walk reads of a child it finds only through what it has read before. So the next children are
  /// fetched together, one step of the way for all of them after the other, and the waiting is shared.
  static void fetchChildren(Level& level) {
    constexpr int together = 16;
    KOBCellTraduction* cells[together];
    int count = 0;
    for (auto next = level.next; count < together && next != level.children->end(); ++next) {
      cells[count] = (*next).get();
      fetch(cells[count++]);
    }
    level.fetched = count;
    const std::shared_ptr<KOBTraductionObj>* firstEntries[together];
    for (int i = 0; i < count; ++i) {
      const EntryList* const list = cells[i] != nullptr ? cells[i]->entries() : nullptr;
      firstEntries[i] = list != nullptr && list->Count() > 0 ? &*list->begin() : nullptr;
      fetch(firstEntries[i]);
    }
    for (int i = 0; i < count; ++i) {
      if (firstEntries[i] != nullptr) {
        fetch(firstEntries[i]->get());
      }
    }
    for (int i = 0; i < count; ++i) {
      if (firstEntries[i] != nullptr && *firstEntries[i] != nullptr) {
        fetch((*firstEntries[i])->textUnits());
      }
    }
  }

  void leave() noexcept {
    open_.back().cell->isWalked_ = false;
    open_.pop_back();
  }

  std::vector<Level> open_;
};

}  // namespace kob
