// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>
#include <kobtraduction/model/MarkedCells.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kob {

class KOBCellTraduction;

/// Tells that a tree of the calling thread changed its shape or a name: what any PathMemo of the thread knows
/// is void from now on. Internal.
void treeChanged() noexcept;

/// How often that was told on the calling thread. Internal.
std::uint64_t treeChanges() noexcept;

/// Remembers to which node a whole path led, case ignored, until a tree of the thread changes. Most paths
/// that are asked for are those of its children, so they are at hand as well. Internal.
class PathMemo {
 public:
  class Node {
   public:
    /// The child of that name, as the cell itself finds it.
    KOBCellTraduction* find(TextView name) const;

   private:
    friend class PathMemo;

    KOBCellTraduction* cell_ = nullptr;
    MarkedCells children_;
    /// Where the path is, and its hash.
    std::uint32_t start_ = 0;
    std::uint32_t hash_ = 0;
  };

  /// The node, or null when it has to be looked for. It lives until the next one is remembered.
  const Node* find(TextView path) const noexcept;
  void remember(TextView path, KOBCellTraduction& cell);

 private:
  bool isAt(const Node& node, TextView path) const noexcept;
  void put(const Node& node) noexcept;
  void grow();

  /// Open addressing, at most three quarters full; the size is a power of two, or 0.
  std::vector<Node> nodes_;
  std::size_t used_ = 0;
  /// The upper-cased paths, one behind the other, each with its length in front.
  Text paths_;
  /// The node found last: its children are mostly asked for in one go.
  mutable std::size_t last_ = 0;
  std::uint64_t state_ = 0;
};

}  // namespace kob
