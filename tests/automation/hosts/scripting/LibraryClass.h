// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Com.h"

#include <string>

namespace kob::hosts {

/// An object of a class in a DLL that nobody registered: the class is found by its name in the DLL's own type
/// library. The DLL stays loaded. Throws ComError for a file that is no such DLL, or has no class of that
/// name.
ComPtr<IDispatch> createFromFile(const std::wstring& file, TextView className);

}  // namespace kob::hosts
