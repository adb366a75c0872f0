// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>

#include <optional>

namespace kob {

class KOBCellTraduction;

/// Takes the next name off the front of a path; "" when none is left. Several separators count as one.
/// Internal.
TextView takeSegment(TextView& path) noexcept;

/// Goes down from a cell by the names in a path, or in a part of one, as a model does from its root: the cell
/// there, null for none, and empty when a list on the way is damaged. Who looks up a whole path through such
/// a list is told so each time, so nothing is told here. Internal.
std::optional<KOBCellTraduction*> followPath(KOBCellTraduction* start, TextView path);

}  // namespace kob
