// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>
#include <kobtraduction/persistence/FileManager.h>

#include <windows.h>

#include <string>

namespace kob::persistence {

/// What a failed system call means for the person who wanted the file, who knows it under this name: "The
/// file "a.trad" cannot be read: ..."
PersistFailure fileFailure(TextView name, TextView verb, DWORD error);

/// A text in the units of the system, and back.
std::wstring wide(TextView text);
Text textOf(const std::wstring& text);

}  // namespace kob::persistence
