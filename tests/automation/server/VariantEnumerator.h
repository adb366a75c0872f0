// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "DispatchDouble.h"

#include <vector>

namespace kob::testing {

/// Gives the caller an enumerator of these items. One that `ends` badly answers that instead of "no more".
HRESULT giveEnumerator(const Call& call, const std::vector<Variant>& items, HRESULT ends = S_FALSE);

}  // namespace kob::testing
