// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>
#include <kobtraduction/persistence/FileManager.h>

#include <string>
#include <string_view>

namespace kob::persistence {

/// What a failed system call means for the person who wanted the file: "The file "a.trad" cannot be read:
/// ..."
PersistFailure fileFailure(std::string_view path, TextView verb, int error);

/// The file's name for the system, in UTF-8; throws a PersistFailure for a name that no file can have.
std::string pathOf(TextView name);

/// A path as text; what is not UTF-8 becomes U+FFFD.
Text textOf(std::string_view path);

}  // namespace kob::persistence
