// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/model/KOBCellTraduction.h>
#include <kobtraduction/model/PathMemo.h>

#include <utility>

namespace kob {

namespace {

constexpr std::size_t smallestTable = 64;
/// Longer paths are not kept: in a tree thousands of levels deep their total length would grow with the
/// square of the depth.
constexpr std::size_t longestKept = 1024;
/// Units of all paths: where each begins is a number of 32 bits.
constexpr std::size_t mostKept = std::size_t(1) << 30;

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

KOBCellTraduction* PathMemo::Node::find(TextView name) const {
  return children_.cells != nullptr ? children_.find(name) : cell_->findCell(name);
}

bool PathMemo::isAt(const Node& node, TextView path) const noexcept {
  return equalToUpper(path, TextView(paths_).substr(node.start_ + 1, paths_[node.start_]));
}

const PathMemo::Node* PathMemo::find(TextView path) const noexcept {
  if (used_ == 0 || state_ != treeState) {
    return nullptr;
  }
  if (isAt(nodes_[last_], path)) {
    return &nodes_[last_];
  }
  const std::size_t mask = nodes_.size() - 1;
  const std::uint32_t hash = hashUpper(path);
  for (std::size_t i = hash & mask; nodes_[i].cell_ != nullptr; i = (i + 1) & mask) {
    if (nodes_[i].hash_ == hash && isAt(nodes_[i], path)) {
      last_ = i;
      return &nodes_[i];
    }
  }
  return nullptr;
}

void PathMemo::remember(TextView path, KOBCellTraduction& cell) {
  if (path.size() > longestKept || paths_.size() > mostKept || !isPlain(path)) {
    return;
  }
  if (state_ != treeState) {
    nodes_.clear();
    paths_.clear();
    used_ = 0;
    state_ = treeState;
  }
  if ((used_ + 1) * 4 > nodes_.size() * 3) {
    grow();
  }
  Node node;
  node.cell_ = &cell;
  if (cell.TypeCell() == 1 && cell.ColCell() != nullptr) {
    const MarkedCells* const children = cell.ColCell()->marked();
    node.children_ = children != nullptr ? *children : MarkedCells();
  }
  node.start_ = static_cast<std::uint32_t>(paths_.size());
  node.hash_ = hashUpper(path);
  paths_ += static_cast<char16_t>(path.size());
  paths_ += upper(path);
  put(node);
  ++used_;
}

void PathMemo::put(const Node& node) noexcept {
  const std::size_t mask = nodes_.size() - 1;
  std::size_t i = node.hash_ & mask;
  while (nodes_[i].cell_ != nullptr) {
    i = (i + 1) & mask;
  }
  nodes_[i] = node;
  last_ = i;
}

void PathMemo::grow() {
  const std::vector<Node> old = std::exchange(nodes_, {});
  nodes_.resize(old.empty() ? smallestTable : old.size() * 2);
  for (const Node& node : old) {
    if (node.cell_ != nullptr) {
      put(node);
    }
  }
}

}  // namespace kob
