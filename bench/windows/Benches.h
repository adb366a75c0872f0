// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <string>

namespace kob::bench {

/// One call into the server, and one out of it into a script's object, beside the same call of an object that
/// does nothing.
void benchCalls(const std::wstring& server);

/// TraduitDialog on a form of script objects, beside the same calls of the form made from a list, and a loop
/// of the script that sets the same texts.
void benchDialog(const std::wstring& server, int controls, int rounds);

}  // namespace kob::bench
