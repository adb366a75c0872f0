// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <string>

struct ITypeLib;

namespace kob::testing {

/// What hosts are compiled against, a line for each class, interface and member, in the order of the type
/// library: identifiers, places in the table of functions, numbers, kinds, names, types and defaults.
std::string interfaceText(ITypeLib& library);

}  // namespace kob::testing
