// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/model/CellList.h>
#include <kobtraduction/model/KOBCellTraduction.h>
#include <kobtraduction/model/NameIndex.h>
#include <kobtraduction/model/PathMemo.h>

#include <algorithm>
#include <utility>

namespace kob {

namespace {

constexpr std::size_t chunkCapacity = 256;
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
  compared_ = std::min(compared_, static_cast<std::uint32_t>(before) - 1);
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
  compared_ -= static_cast<std::uint32_t>(position) <= compared_ ? 1 : 0;
  cursorChunk_ = 0;
  cursorFirst_ = 0;
  marked_.cells = nullptr;
  if (cell == nullptr) {
    --nothingCount_;
    return;
  }
  cell->removeHolder(*this);
  if (index_ != nullptr) {
    index_->remove(*cell);
  }
}

CellList::Place CellList::endPlace() const noexcept {
  return chunks_.empty() ? Place{0, 0} : Place{chunks_.size() - 1, chunks_.back().size()};
}

void CellList::insert(Place place, std::shared_ptr<KOBCellTraduction> cell) {
  if (index_ != nullptr) {
    index_->makeRoom();
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
    marked_.cells = nullptr;
    return;
  }
  markInserted(place);
  added->addHolder(*this);
  if (index_ != nullptr) {
    index_->add(*added);
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
  if (count_ <= MarkedCells::most || nothingCount_ != 0) {
    const MarkedCells* const cells = marked();
    return cells != nullptr ? cells->find(name) : walkTo(name);
  }
  if (index_ == nullptr) {
    buildIndex();
  }
  const std::optional<KOBCellTraduction*> found = index_->find(name);
  return found ? *found : walkTo(name);
}

const MarkedCells* CellList::marked() const noexcept {
  if (marked_.cells == nullptr) {
    if (!isShort()) {
      return nullptr;
    }
    marked_.count = 0;
    for (const auto& cell : *this) {
      marked_.marks[marked_.count++] = MarkedCells::markOf(cell->nom());
    }
    marked_.cells = chunks_.front().data();
  }
  return &marked_;
}

void CellList::markInserted(Place place) noexcept {
  if (marked_.cells == nullptr) {
    return;
  }
  if (!isShort()) {
    marked_.cells = nullptr;
    return;
  }
  const auto at = marked_.marks.begin() + static_cast<std::ptrdiff_t>(place.offset);
  std::copy_backward(at, marked_.marks.begin() + marked_.count, marked_.marks.begin() + marked_.count + 1);
  *at = MarkedCells::markOf(chunks_.front()[place.offset]->nom());
  ++marked_.count;
  marked_.cells = chunks_.front().data();
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
  const bool wasSorted = isSorted();
  const Place place = wasSorted ? upperBound(cell->nom()) : firstGreater(cell->nom());
  insert(place, std::move(cell));
  compared_ = wasSorted ? count_ : compared_;
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
  const KOBCellTraduction* previous =
      compared_ > 0 ? Item(static_cast<std::int32_t>(compared_)).get() : nullptr;
  while (!isUnsorted_ && compared_ < count_) {
    const KOBCellTraduction* const cell = Item(static_cast<std::int32_t>(compared_) + 1).get();
    isUnsorted_ = previous != nullptr && lessUpper(cell->nom(), previous->nom());
    compared_ += isUnsorted_ ? 0 : 1;
    previous = cell;
  }
  return !isUnsorted_;
}

void CellList::beforeRename(KOBCellTraduction& cell) noexcept {
  treeChanged();
  isUnsorted_ = false;
  compared_ = 0;
  marked_.cells = nullptr;
  if (index_ != nullptr) {
    index_->remove(cell);
  }
}

void CellList::afterRename(KOBCellTraduction& cell) {
  if (index_ != nullptr) {
    index_->add(cell);
  }
}

void CellList::buildIndex() const {
  auto index = std::make_unique<NameIndex>(count_);
  for (const auto& cell : *this) {
    index->add(*cell);
  }
  index_ = std::move(index);
}

}  // namespace kob
