// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Base.h"

#include <cstring>

namespace kob::automation {

/// An order of identifiers, for tables.
struct GuidLess {
  bool operator()(const GUID& a, const GUID& b) const noexcept { return std::memcmp(&a, &b, sizeof a) < 0; }
};

}  // namespace kob::automation
