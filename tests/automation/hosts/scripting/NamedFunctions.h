// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Com.h"

#include <functional>
#include <vector>

namespace kob::hosts {

using Arguments = std::vector<Variant>;
/// Gives the function's result; throws ComError, which the script sees as a run-time error.
using Function = std::function<Variant(const Arguments&)>;

/// An object whose members are functions. Names are found ignoring case; the member named "" is the default
/// one, "_NewEnum" what For Each asks for. A member answers calls and reads alike, and refuses puts.
ComPtr<IDispatch> namedFunctions(std::vector<std::pair<Text, Function>> functions);

/// A collection as a host application has it: Add(item), Count, Item(i) from 1, which is also its default
/// member, and an enumerator.
ComPtr<IDispatch> listObject();

/// The argument at a place; throws the error of a missing argument.
const Variant& argumentAt(const Arguments& arguments, std::size_t place);

}  // namespace kob::hosts
