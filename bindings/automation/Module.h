// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Base.h"

#include <string>

/// The loaded DLL. Any thread.
namespace kob::automation {

HINSTANCE moduleHandle() noexcept;
void setModuleHandle(HINSTANCE handle) noexcept;
/// The full path of the DLL.
std::wstring modulePath();

/// Counts what keeps the DLL loaded: objects that a host holds, and locks on class objects.
void holdModule() noexcept;
void releaseModule() noexcept;
bool isModuleHeld() noexcept;

}  // namespace kob::automation
