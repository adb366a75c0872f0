// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Com.h"

/// The type library that the DLL carries, read from the DLL itself: registration is not needed for it.
namespace kob::automation {

/// Throws a SystemFailure when it cannot be read.
ComRef<ITypeLib> loadTypeLibrary();

/// The description of an interface or a class; stays loaded as long as the DLL. Null when there is none. Any
/// thread.
ITypeInfo* typeInfoOf(REFIID id) noexcept;

}  // namespace kob::automation
