// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/model/PathMemo.h>

#include <utility>

namespace kob {

namespace {

constexpr std::size_t smallestTable = 64;
/// Longer paths are not kept: in a tree thousands of levels deep their total length would grow with the
/// square of the depth.
constexpr std::size_t longestKept = 1024;

/// How often a tree of the thread has changed.
thread_local std::uint64_t treeState = 0;

/// Names joined by single separators, at most one in front: of the endless ways to write a path only these
/// two are kept.
bool isPlain(TextView path) noexcept {
  return !path.ends_with(u'\\') && path.find(u"\\\\") == TextView::npos;
}

}  // namespace

void treeChanged() noexcept {
  ++treeState;
}

std::uint64_t treeChanges() noexcept {
  return treeState;
}

KOBCellTraduction* PathMemo::find(TextView path) const noexcept {
  if (used_ == 0 || state_ != treeState) {
    return nullptr;
  }
  const std::size_t mask = slots_.size() - 1;
  const std::uint32_t hash = hashUpper(path);
  for (std::size_t i = hash & mask; slots_[i].cell != nullptr; i = (i + 1) & mask) {
    const Slot& slot = slots_[i];
    if (slot.hash == hash && equalToUpper(path, TextView(paths_).substr(slot.start, slot.length))) {
      return slot.cell;
    }
  }
  return nullptr;
}

void PathMemo::remember(TextView path, KOBCellTraduction& cell) {
  if (path.empty() || path.size() > longestKept || !isPlain(path)) {
    return;
  }
  if (state_ != treeState) {
    slots_.clear();
    paths_.clear();
    used_ = 0;
    state_ = treeState;
  }
  if (used_ * 2 >= slots_.size()) {
    grow();
  }
  const std::size_t start = paths_.size();
  paths_ += upper(path);
  put({&cell, start, static_cast<std::uint32_t>(path.size()), hashUpper(path)});
  ++used_;
}

void PathMemo::put(const Slot& slot) noexcept {
  const std::size_t mask = slots_.size() - 1;
  std::size_t i = slot.hash & mask;
  while (slots_[i].cell != nullptr) {
    i = (i + 1) & mask;
  }
  slots_[i] = slot;
}

void PathMemo::grow() {
  const std::vector<Slot> old = std::exchange(slots_, {});
  slots_.resize(old.empty() ? smallestTable : old.size() * 2);
  for (const Slot& slot : old) {
    if (slot.cell != nullptr) {
      put(slot);
    }
  }
}

}  // namespace kob
