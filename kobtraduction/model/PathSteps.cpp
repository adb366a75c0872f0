// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/model/KOBCellTraduction.h>
#include <kobtraduction/model/PathSteps.h>

#include <algorithm>

namespace kob {

TextView takeSegment(TextView& path) noexcept {
  path.remove_prefix(std::min(path.find_first_not_of(u'\\'), path.size()));
  const TextView segment = path.substr(0, path.find(u'\\'));
  path.remove_prefix(segment.size());
  return segment;
}

std::optional<KOBCellTraduction*> followPath(KOBCellTraduction* start, TextView path) {
  KOBCellTraduction* cell = start;
  while (cell != nullptr && !path.empty()) {
    const TextView segment = takeSegment(path);
    if (segment.empty()) {
      break;
    }
    if (cell->TypeCell() == 2) {
      return nullptr;
    }
    if (cell->ColCell() == nullptr) {
      return std::nullopt;
    }
    try {
      cell = cell->ColCell()->find(segment);
    } catch (const Failure&) {
      return std::nullopt;
    }
  }
  return cell;
}

}  // namespace kob
