// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <functional>

namespace kob::test {

/// Runs an action in a process of its own that may not do everything (as "nobody" when the tests run as
/// root), and waits for it; whether the action came to its end and said true.
bool asOrdinaryUser(const std::function<bool()>& action);

/// The same without giving up any rights.
bool inChild(const std::function<bool()>& action);

}  // namespace kob::test
