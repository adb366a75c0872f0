// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Bytes.h>
#include <kobpersistence/Export.h>
#include <kobtraduction/base/Text.h>

#include <cstddef>
#include <cstdint>
#include <memory>

/// The file calls that the service needs of an operating system. Every call that fails throws a
/// PersistFailure that names the file and says what can be done.
namespace kob::persistence {

class KOB_PERSISTENCE_EXPORT ReadableFile {
 public:
  virtual ~ReadableFile();
  virtual std::uint64_t size() = 0;
  /// Reads up to so many bytes, at least one unless the file has ended.
  virtual std::size_t read(Byte* to, std::size_t size) = 0;
};

/// A new file that nobody else writes; what was not closed is removed.
class KOB_PERSISTENCE_EXPORT WritableFile {
 public:
  virtual ~WritableFile();
  virtual void write(const Byte* from, std::size_t size) = 0;
  /// Writes over what is there already; the next write() still goes to the end.
  virtual void writeAtStart(const Byte* from, std::size_t size) = 0;
  /// Forgets what was written.
  virtual void startOver() = 0;
  /// Returns once everything written would survive a power failure.
  virtual void sync() = 0;
  /// Puts the file in the place of the one that it was made for, in one step, and returns once that would
  /// survive a power failure. Nothing can be called afterwards.
  virtual void replace() = 0;
};

class KOB_PERSISTENCE_EXPORT Storage {
 public:
  virtual ~Storage();
  virtual std::unique_ptr<ReadableFile> open(TextView name) = 0;
  /// A new file beside `name` that is to take its place, with its permissions; a symbolic link is followed.
  /// What a save left that was killed is removed.
  virtual std::unique_ptr<WritableFile> createBeside(TextView name) = 0;
};

/// The files of this machine.
Storage& fileStorage();

}  // namespace kob::persistence
