// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <string>

namespace kob::command {

/// For a path that leads nowhere: "; did you mean ...?" with at most three paths of the model that are like
/// it, best first, or "" when none is.
std::string pathHint(const KOBModeleTraduction& model, TextView path);

/// How many letters have to be put in, taken out or changed to make one text of the other, letter case
/// ignored; more than `limit` may read as `limit` + 1.
std::size_t distance(TextView a, TextView b, std::size_t limit);

}  // namespace kob::command
