// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <optional>
#include <vector>

namespace kob {

/// Finds for the cells of one tree, told in the order of a walk, the cells at the same paths in another
/// model: exactly what other.GetCell(cell.GetCellPath()) answers, message boxes included, but going on from
/// where the cell's parent was found instead of from the root. Neither tree may change its shape or a name
/// meanwhile. Internal.
class PathTwin {
 public:
  explicit PathTwin(const KOBModeleTraduction& other) noexcept : other_(other) {}

  /// The twin of a cell whose twin is asked for; null for none.
  KOBCellTraduction* find(const KOBCellTraduction& cell);
  /// A node whose twin is not asked for; what is below it may be.
  void pass(const KOBCellTraduction& node);

 private:
  /// A node and the cell that the path of its children begins at.
  struct Level {
    const KOBCellTraduction* node;
    KOBCellTraduction* start;
  };
  /// Empty when only the whole path tells.
  using Found = std::optional<KOBCellTraduction*>;

  /// Where the paths of the children of the cell's parent begin.
  Found startOf(const KOBCellTraduction& cell);
  void open(const KOBCellTraduction& node, const Found& start, const Found& own);

  const KOBModeleTraduction& other_;
  std::vector<Level> levels_;
};

}  // namespace kob
