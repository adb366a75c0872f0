// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Contest.h"

#include <ostream>
#include <string>
#include <vector>

namespace bench {

/// A target is missed for the gate when it is exceeded by more than this factor: shared machines wander.
inline constexpr double gateSlack = 1.25;

/// The table for people: for each contest the component's median time for one operation, its paired ratio to
/// each of the others, and the targets with their verdicts.
void printTable(const std::vector<Measured>& results, std::ostream& out);

/// The same for programs; false when the file cannot be written.
bool writeJson(const std::vector<Measured>& results, const std::string& file);

/// Whether a `must` is exceeded beyond the slack.
bool missesGate(const std::vector<Measured>& results);

}  // namespace bench
