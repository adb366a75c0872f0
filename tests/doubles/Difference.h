// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <string>
#include <string_view>

namespace kob::testing {

/// Where two texts differ: the lines that only one of them has ("-" expected, "+" seen), with two lines
/// around them. Empty when they are equal.
std::string difference(std::string_view expected, std::string_view seen);

}  // namespace kob::testing
