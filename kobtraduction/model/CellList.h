// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/Text.h>
#include <kobtraduction/model/MarkedCells.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kob {

class KOBCellTraduction;
class NameIndex;

/// A cell's children: an ordered list numbered from 1 like OrderedList, that also finds a child by name in
/// constant time and inserts by name in logarithmic time (the first time behind what was put anywhere else,
/// in linear time). Both answers are those of a walk from the first item, whatever a host does to the list or
/// to the names of the cells in it: the cells tell the lists that hold them when they are renamed. An item
/// may be nothing (a host can add it); a walk that meets it fails with ObjectNotSet. A position
/// outside 1..count fails with InvalidIndex and changes nothing. Used on one thread.
class KOB_EXPORT CellList {
 public:
  class const_iterator;

  CellList();
  CellList(const CellList&) = delete;
  CellList& operator=(const CellList&) = delete;
  ~CellList();

  std::int32_t Count() const noexcept { return static_cast<std::int32_t>(count_); }

  /// The cell at a position; the reference lives until the list is changed.
  const std::shared_ptr<KOBCellTraduction>& Item(std::int32_t position) const;

  /// Makes room for the first items, when they are few; nothing that can be asked for changes.
  void Reserve(std::int32_t count);

  void Add(std::shared_ptr<KOBCellTraduction> cell);
  /// Inserts in front of the item at `before`.
  void Add(std::shared_ptr<KOBCellTraduction> cell, std::int32_t before);
  void Remove(std::int32_t position);

  const_iterator begin() const noexcept;
  const_iterator end() const noexcept;

  // Internal: for who wants to fetch the first cells before they are read.

  /// What leads to the first item, and the item; null for an empty list.
  const void* chunks() const noexcept { return chunks_.data(); }
  const void* firstItem() const noexcept { return chunks_.empty() ? nullptr : chunks_.front().data(); }

  // Internal: for the cell.

  /// The first cell in list order whose upper-cased name equals the upper-cased `name`, or null. Fails with
  /// ObjectNotSet when an item that is nothing stands before it.
  KOBCellTraduction* find(TextView name) const;
  /// Inserts before the first cell whose upper-cased name is greater, else appends. Fails with ObjectNotSet,
  /// unchanged, when an item that is nothing stands before that place.
  void insertSorted(std::shared_ptr<KOBCellTraduction> cell);
  /// A cell of the list is about to lose its present name / has its new name.
  void beforeRename(KOBCellTraduction& cell) noexcept;
  void afterRename(KOBCellTraduction& cell);
  /// The cells marked, or null for a list that is long or damaged.
  const MarkedCells* marked() const noexcept;

 private:
  /// Items are kept in chunks of bounded size, so that an insertion in the middle moves few of them.
  using Chunk = std::vector<std::shared_ptr<KOBCellTraduction>>;
  struct Place {
    std::size_t chunk;
    std::size_t offset;
  };

  Place locate(std::int32_t position) const;
  Place endPlace() const noexcept;
  void insert(Place place, std::shared_ptr<KOBCellTraduction> cell);
  /// Makes room in a full chunk; the place where the insertion now goes.
  Place splitAt(Place place);
  KOBCellTraduction* walkTo(TextView name) const;
  bool isSorted() const;
  /// The place before the first greater name: by halving in a sorted list, by a walk in any other.
  Place upperBound(TextView name) const;
  Place firstGreater(TextView name) const;
  /// Whether all cells can be marked; they are in a single chunk then, where an offset is a position.
  bool isShort() const noexcept {
    return count_ <= MarkedCells::most && chunks_.size() == 1 && nothingCount_ == 0;
  }
  /// Keeps the marks right once a cell was put there.
  void markInserted(Place place) noexcept;
  void buildIndex() const;

  std::vector<Chunk> chunks_;
  /// None until the first look-up of a long list.
  mutable std::unique_ptr<NameIndex> index_;
  std::uint32_t count_ = 0;
  std::uint32_t nothingCount_ = 0;
  /// The chunk that was read last and the position of its first item: reading by position in order is
  /// constant.
  mutable std::uint32_t cursorChunk_ = 0;
  mutable std::uint32_t cursorFirst_ = 0;
  /// So many cells at the front are in the order of their names, unless the list is known to be unsorted:
  /// what is appended is not looked at before the order is asked for.
  mutable std::uint32_t compared_ = 0;
  mutable bool isUnsorted_ = false;
  /// Since the first look-up of a short list.
  mutable MarkedCells marked_;
};

/// Walks the list in order; invalid once the list is changed.
class CellList::const_iterator {
 public:
  const std::shared_ptr<KOBCellTraduction>& operator*() const noexcept {
    return list_->chunks_[chunk_][offset_];
  }
  const_iterator& operator++() noexcept {
    if (++offset_ == list_->chunks_[chunk_].size()) {
      ++chunk_;
      offset_ = 0;
    }
    return *this;
  }
  bool operator==(const const_iterator& other) const noexcept {
    return chunk_ == other.chunk_ && offset_ == other.offset_;
  }

 private:
  friend class CellList;
  const_iterator(const CellList& list, std::size_t chunk) noexcept : list_(&list), chunk_(chunk) {}

  const CellList* list_;
  std::size_t chunk_;
  std::size_t offset_ = 0;
};

}  // namespace kob
