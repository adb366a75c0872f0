// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/model/PathSteps.h>
#include <kobtraduction/model/PathTwin.h>

#include <algorithm>

namespace kob {

KOBCellTraduction* PathTwin::find(const KOBCellTraduction& cell) {
  const Found start = startOf(cell);
  // A name may hold separators: it then is several segments of the path, or none.
  const Found own = start ? followPath(*start, cell.nom()) : std::nullopt;
  open(cell, start, own);
  return own ? *own : other_.findCell(cell.GetCellPath());
}

void PathTwin::pass(const KOBCellTraduction& node) {
  const Found start = startOf(node);
  open(node, start, start ? followPath(*start, node.nom()) : std::nullopt);
}

PathTwin::Found PathTwin::startOf(const KOBCellTraduction& cell) {
  // The parent is who the cell says it is, and not in whose list it stands: paths are written by that link. A
  // level is only ever opened when all links above it are known, so a circle of links never has one.
  const std::shared_ptr<KOBCellTraduction> parent = cell.parentcell();
  if (parent == nullptr) {
    return other_.Racine().get();
  }
  const auto level = std::find_if(levels_.rbegin(), levels_.rend(),
                                  [&parent](const Level& known) { return known.node == parent.get(); });
  if (level == levels_.rend()) {
    return std::nullopt;
  }
  levels_.erase(level.base(), levels_.end());
  return levels_.back().start;
}

void PathTwin::open(const KOBCellTraduction& node, const Found& start, const Found& own) {
  if (node.TypeCell() != 1) {
    return;
  }
  // Whatever bears the root's name is left out of the paths of what is below it.
  const Found& below = node.nom() == u"RACINE" ? start : own;
  if (below) {
    levels_.push_back({&node, *below});
  }
}

}  // namespace kob
