// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>
#include <kobtraduction/persistence/FileManager.h>

#include <cstdint>

/// What a person reads when a system refuses a file, on every system in the same words.
namespace kob::persistence {

/// What can be wrong with a file, apart from what is in it.
enum class Trouble {
  NotThere,
  NoFolderInPath,
  NameTooLong,
  LinksInCircle,
  NotPermitted,
  ReadOnlyDisk,
  DiskFull,
  QuotaUsed,
  TooLarge,
  TooManyOpenHere,
  TooManyOpen,
  InUse,
  DiskFailed,
  /// Told by the number of the system's error.
  Other
};

/// "The file "a.trad" cannot be read: ...", with what can be done about it.
PersistFailure fileFailure(TextView path, TextView verb, Trouble trouble, std::int64_t error);

/// What has that name is a folder, or something else that is no ordinary file, and cannot be loaded /
/// written.
PersistFailure noFileToLoad(TextView path, bool isFolder);
PersistFailure noFileToWrite(TextView path, bool isFolder);
/// Another program has been saving the file for too long.
PersistFailure beingSaved(TextView path);
/// The file was written, and the system does not say that it would survive a power failure.
PersistFailure perhapsNotKept(TextView path, std::int64_t error);
/// No file can have that name.
PersistFailure impossibleName(TextView name);

/// Throws a PersistFailure for a name that no file can have on any system: an empty one, or one with a NUL or
/// with half a letter (a surrogate that is not one of a pair).
void requireName(TextView name);

}  // namespace kob::persistence
