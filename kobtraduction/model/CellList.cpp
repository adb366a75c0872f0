// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/model/CellList.h>
#include <kobtraduction/model/KOBCellTraduction.h>
#include <kobtraduction/model/PathMemo.h>

#include <algorithm>
#include <utility>

namespace kob {

namespace {

constexpr std::size_t chunkCapacity = 256;
/// Below this many children a walk is as fast as the index, and costs no memory.
constexpr std::size_t smallestIndexed = 8;
constexpr std::size_t smallestTable = 16;
/// The counts that files tell are not trusted with more.
constexpr std::size_t mostReserved = 16;

}  // namespace

CellList::CellList() = default;

CellList::~CellList() {
  for (const auto& cell : *this) {
    if (cell != nullptr) {
      cell->removeHolder(*this);
    }
  }
}

CellList::const_iterator CellList::begin() const noexcept {
  // Room may have been made before the first item came.
  return {*this, count_ > 0 ? 0 : chunks_.size()};
}

CellList::const_iterator CellList::end() const noexcept {
  return {*this, chunks_.size()};
}

CellList::Place CellList::locate(std::int32_t position) const {
  if (position < 1 || static_cast<std::size_t>(position) > count_) {
    throw Failure(FailureKind::InvalidIndex);
  }
  const std::size_t wanted = static_cast<std::size_t>(position) - 1;
  if (wanted < cursorFirst_) {
    cursorChunk_ = 0;
    cursorFirst_ = 0;
  }
  while (wanted - cursorFirst_ >= chunks_[cursorChunk_].size()) {
    cursorFirst_ += static_cast<std::uint32_t>(chunks_[cursorChunk_].size());
    ++cursorChunk_;
  }
  return {cursorChunk_, wanted - cursorFirst_};
}

const std::shared_ptr<KOBCellTraduction>& CellList::Item(std::int32_t position) const {
  const Place place = locate(position);
  return chunks_[place.chunk][place.offset];
}

void CellList::Reserve(std::int32_t count) {
  if (chunks_.empty() && count > 0) {
    chunks_.emplace_back().reserve(std::min(static_cast<std::size_t>(count), mostReserved));
  }
}

void CellList::Add(std::shared_ptr<KOBCellTraduction> cell) {
  insert(endPlace(), std::move(cell));
}

void CellList::Add(std::shared_ptr<KOBCellTraduction> cell, std::int32_t before) {
  insert(locate(before), std::move(cell));
}

void CellList::Remove(std::int32_t position) {
  const Place place = locate(position);
  treeChanged();
  entriesChanged();
  Chunk& chunk = chunks_[place.chunk];
  // Kept until the list is whole again: releasing the last reference may run a host's code.
  const std::shared_ptr<KOBCellTraduction> cell = std::move(chunk[place.offset]);
  chunk.erase(chunk.begin() + static_cast<std::ptrdiff_t>(place.offset));
  if (chunk.empty()) {
    chunks_.erase(chunks_.begin() + static_cast<std::ptrdiff_t>(place.chunk));
  }
  --count_;
  cursorChunk_ = 0;
  cursorFirst_ = 0;
  if (cell == nullptr) {
    --nothingCount_;
    return;
  }
  cell->removeHolder(*this);
  if (!index_.empty()) {
    indexRemove(*cell);
  }
}

CellList::Place CellList::endPlace() const noexcept {
  return chunks_.empty() ? Place{0, 0} : Place{chunks_.size() - 1, chunks_.back().size()};
}

void CellList::insert(Place place, std::shared_ptr<KOBCellTraduction> cell) {
  if (!index_.empty()) {
    makeIndexRoom();
  }
  treeChanged();
  entriesChanged();
  if (chunks_.empty()) {
    chunks_.emplace_back();
  }
  if (chunks_[place.chunk].size() == chunkCapacity) {
    place = splitAt(place);
  }
  KOBCellTraduction* const added = cell.get();
  Chunk& chunk = chunks_[place.chunk];
  chunk.insert(chunk.begin() + static_cast<std::ptrdiff_t>(place.offset), std::move(cell));
  ++count_;
  cursorChunk_ = 0;
  cursorFirst_ = 0;
  if (added == nullptr) {
    ++nothingCount_;
    order_ = Order::Unknown;
    return;
  }
  if (order_ == Order::Sorted && !keepsOrder(place)) {
    order_ = Order::Unknown;
  }
  added->addHolder(*this);
  if (!index_.empty()) {
    indexAdd(*added);
  }
}

CellList::Place CellList::splitAt(Place place) {
  // An insertion at the very end starts a new chunk, so that a list that is only appended to has full chunks.
  const bool isAppend = place.chunk + 1 == chunks_.size() && place.offset == chunkCapacity;
  const std::size_t kept = isAppend ? chunkCapacity : chunkCapacity / 2;
  Chunk& chunk = chunks_[place.chunk];
  Chunk tail;
  const auto middle = chunk.begin() + static_cast<std::ptrdiff_t>(kept);
  tail.assign(std::make_move_iterator(middle), std::make_move_iterator(chunk.end()));
  chunk.erase(middle, chunk.end());
  chunks_.insert(chunks_.begin() + static_cast<std::ptrdiff_t>(place.chunk) + 1, std::move(tail));
  return place.offset > kept || isAppend ? Place{place.chunk + 1, place.offset - kept} : place;
}

KOBCellTraduction* CellList::find(TextView name) const {
  if (nothingCount_ != 0 || count_ < smallestIndexed) {
    return walkTo(name);
  }
  if (index_.empty()) {
    buildIndex();
  }
  const std::size_t mask = index_.size() - 1;
  const std::uint32_t hash = hashUpper(name);
  KOBCellTraduction* found = nullptr;
  for (std::size_t i = hash & mask; index_[i].cell != nullptr; i = (i + 1) & mask) {
    if (index_[i].hash == hash && equalUpper(index_[i].cell->nom(), name)) {
      if (found != nullptr) {
        return walkTo(name);
      }
      found = index_[i].cell;
    }
  }
  return found;
}

KOBCellTraduction* CellList::walkTo(TextView name) const {
  for (const auto& cell : *this) {
    if (cell == nullptr) {
      throw Failure(FailureKind::ObjectNotSet);
    }
    if (equalUpper(cell->nom(), name)) {
      return cell.get();
    }
  }
  return nullptr;
}

void CellList::insertSorted(std::shared_ptr<KOBCellTraduction> cell) {
  const Place place = isSorted() ? upperBound(cell->nom()) : firstGreater(cell->nom());
  insert(place, std::move(cell));
}

CellList::Place CellList::upperBound(TextView name) const {
  const auto isGreater = [name](const std::shared_ptr<KOBCellTraduction>& cell) {
    return lessUpper(name, cell->nom());
  };
  if (count_ == 0) {
    return endPlace();
  }
  const auto chunk = std::partition_point(
      chunks_.begin(), chunks_.end(), [&](const auto& candidate) { return !isGreater(candidate.back()); });
  if (chunk == chunks_.end()) {
    return endPlace();
  }
  const auto item = std::partition_point(chunk->begin(), chunk->end(),
                                         [&](const auto& candidate) { return !isGreater(candidate); });
  return {static_cast<std::size_t>(chunk - chunks_.begin()), static_cast<std::size_t>(item - chunk->begin())};
}

CellList::Place CellList::firstGreater(TextView name) const {
  for (std::size_t i = 0; i < chunks_.size(); ++i) {
    const Chunk& chunk = chunks_[i];
    for (std::size_t j = 0; j < chunk.size(); ++j) {
      if (chunk[j] == nullptr) {
        throw Failure(FailureKind::ObjectNotSet);
      }
      if (lessUpper(name, chunk[j]->nom())) {
        return {i, j};
      }
    }
  }
  return endPlace();
}

bool CellList::isSorted() const {
  if (nothingCount_ != 0) {
    return false;
  }
  if (order_ == Order::Unknown) {
    const KOBCellTraduction* previous = nullptr;
    order_ = Order::Sorted;
    for (const auto& cell : *this) {
      if (previous != nullptr && lessUpper(cell->nom(), previous->nom())) {
        order_ = Order::Unsorted;
        break;
      }
      previous = cell.get();
    }
  }
  return order_ == Order::Sorted;
}

bool CellList::keepsOrder(Place place) const {
  const Chunk& chunk = chunks_[place.chunk];
  const KOBCellTraduction* before = nullptr;
  if (place.offset > 0) {
    before = chunk[place.offset - 1].get();
  } else if (place.chunk > 0) {
    before = chunks_[place.chunk - 1].back().get();
  }
  const KOBCellTraduction* after = nullptr;
  if (place.offset + 1 < chunk.size()) {
    after = chunk[place.offset + 1].get();
  } else if (place.chunk + 1 < chunks_.size()) {
    after = chunks_[place.chunk + 1].front().get();
  }
  const TextView name = chunk[place.offset]->nom();
  return (before == nullptr || !lessUpper(name, before->nom())) &&
         (after == nullptr || !lessUpper(after->nom(), name));
}

void CellList::beforeRename(KOBCellTraduction& cell) noexcept {
  treeChanged();
  order_ = Order::Unknown;
  if (!index_.empty()) {
    indexRemove(cell);
  }
}

void CellList::afterRename(KOBCellTraduction& cell) {
  if (!index_.empty()) {
    indexAdd(cell);
  }
}

void CellList::buildIndex() const {
  std::size_t size = smallestTable;
  while (size < count_ * 2) {
    size *= 2;
  }
  index_.assign(size, Slot{0, nullptr});
  indexed_ = 0;
  for (const auto& cell : *this) {
    indexAdd(*cell);
  }
}

void CellList::indexAdd(KOBCellTraduction& cell) const {
  indexPut({hashUpper(cell.nom()), &cell});
  ++indexed_;
}

void CellList::makeIndexRoom() {
  if ((indexed_ + 1) * 4 <= index_.size() * 3) {
    return;
  }
  // By the hashes that are known: reading all the names again would cost more than what is inserted.
  std::vector<Slot> former(index_.size() * 2, Slot{0, nullptr});
  former.swap(index_);
  for (const Slot& slot : former) {
    if (slot.cell != nullptr) {
      indexPut(slot);
    }
  }
}

void CellList::indexPut(const Slot& slot) const noexcept {
  const std::size_t mask = index_.size() - 1;
  std::size_t i = slot.hash & mask;
  while (index_[i].cell != nullptr) {
    i = (i + 1) & mask;
  }
  index_[i] = slot;
}

void CellList::indexRemove(KOBCellTraduction& cell) const noexcept {
  const std::size_t mask = index_.size() - 1;
  std::size_t hole = hashUpper(cell.nom()) & mask;
  while (index_[hole].cell != &cell) {
    hole = (hole + 1) & mask;
  }
  // Entries behind the hole that probed past it move up, so that no look-up stops short of them.
  for (std::size_t i = (hole + 1) & mask; index_[i].cell != nullptr; i = (i + 1) & mask) {
    const std::size_t home = index_[i].hash & mask;
    if (((i - home) & mask) >= ((i - hole) & mask)) {
      index_[hole] = index_[i];
      hole = i;
    }
  }
  index_[hole] = {0, nullptr};
  --indexed_;
}

}  // namespace kob
