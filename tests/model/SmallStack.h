// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <functional>

namespace kob::test {

/// Runs an action on a thread whose stack has 256 KB, where a recursion over a deep tree overflows at once,
/// and waits for it.
void onSmallStack(const std::function<void()>& action);

}  // namespace kob::test
