// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Failure.h>
#include <kobtraduction/model/FetchCells.h>
#include <kobtraduction/model/KOBCellTraduction.h>

#include <cstddef>
#include <cstdint>
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

  /// What a walk fetches from memory ahead: cells and the reference texts of their entries, which is what
  /// most walks read, or cells alone.
  enum class Ahead : std::uint8_t { Texts, Cells };

  /// Calls visit(cell), or visit(cell, depth), for `root` (depth 0) and every cell below it.
  template <class Visit>
  static void each(KOBCellTraduction& root, Visit&& visit, Ahead ahead = Ahead::Texts) {
    CellWalk walk;
    walk.ahead_ = ahead;
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
    CellList::const_iterator end;
    /// How many children are fetched and not walked yet.
    int fetched = 0;
    /// The cells below the sibling of `cell` that comes next. One of them is fetched with each child that is
    /// walked: the processor waits for many at once, but hardly for one now and then.
    CellList::const_iterator beside;
    CellList::const_iterator besideEnd;
  };

  void enter(KOBCellTraduction& cell) {
    if (cell.TypeCell() != 1 || cell.isWalked_) {
      return;
    }
    if (cell.ColCell() == nullptr) {
      throw Failure(FailureKind::ObjectNotSet);
    }
    const CellList& children = *cell.ColCell();
    const CellList* const beside = childrenBeside();
    open_.push_back({&cell, cell.ColCell(), children.begin(), children.end(), 0,
                     beside != nullptr ? beside->begin() : children.end(),
                     beside != nullptr ? beside->end() : children.end()});
    cell.isWalked_ = true;
  }

  KOBCellTraduction* next() {
    while (!open_.empty() && open_.back().next == open_.back().end) {
      leave();
    }
    if (open_.empty()) {
      return nullptr;
    }
    if (open_.back().fetched == 0) {
      open_.back().fetched = fetchAhead(open_.back());
    }
    --open_.back().fetched;
    fetchBeside(open_.back());
    KOBCellTraduction* const cell = (*open_.back().next).get();
    ++open_.back().next;
    if (cell == nullptr) {
      throw Failure(FailureKind::ObjectNotSet);
    }
    return cell;
  }

  int fetchAhead(const Level& level) const noexcept {
    return ahead_ == Ahead::Cells ? fetchNodes(level.next, *level.children)
                                  : fetchCells(level.next, *level.children);
  }

  /// The children of the cell that comes after the one which is entered, where they are known; else null.
  const CellList* childrenBeside() const noexcept {
    if (ahead_ != Ahead::Cells || open_.empty() || open_.back().fetched == 0) {
      return nullptr;
    }
    const KOBCellTraduction* const sibling = (*open_.back().next).get();
    return sibling != nullptr ? sibling->ColCell().get() : nullptr;
  }

  static void fetchBeside(Level& level) noexcept {
    if (level.beside != level.besideEnd) {
      fetchLists((*level.beside).get());
      ++level.beside;
    }
  }

  void leave() noexcept {
    open_.back().cell->isWalked_ = false;
    open_.pop_back();
  }

  std::vector<Level> open_;
  Ahead ahead_ = Ahead::Texts;
};

}  // namespace kob
