// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/model/KOBCellTraduction.h>
#include <kobtraduction/model/PathSteps.h>

namespace kob {

std::optional<KOBCellTraduction*> followPath(KOBCellTraduction* start, TextView path) {
  KOBCellTraduction* cell = start;
  while (cell != nullptr) {
    const std::size_t segmentStart = path.find_first_not_of(u'\\');
    if (segmentStart == TextView::npos) {
      break;
    }
    path.remove_prefix(segmentStart);
    const TextView segment = path.substr(0, path.find(u'\\'));
    path.remove_prefix(segment.size());
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
