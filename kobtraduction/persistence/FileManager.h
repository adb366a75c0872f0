// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/Text.h>
#include <kobtraduction/persistence/PersistStream.h>

#include <cstdint>
#include <exception>
#include <memory>
#include <string>

namespace kob {

/// A call of the persistence service failed: the file cannot be read, written or understood.
class KOB_EXPORT PersistFailure : public std::exception {
 public:
  /// The description is for a person: what is wrong, where, and what can be done.
  explicit PersistFailure(TextView description);
  ~PersistFailure() override;

  const Text& description() const noexcept { return description_; }
  /// The description in UTF-8; it lives as long as the failure.
  const char* what() const noexcept override { return utf8_.c_str(); }

 private:
  Text description_;
  std::string utf8_;
};

/// The persistence service: keeps an object and everything that its record leads to in a file. Operations
/// that fail throw a PersistFailure. Used on the thread that owns the objects.
class KOB_EXPORT FileManager {
 public:
  virtual ~FileManager();

  /// Writes the file, or leaves it as it was when it fails. `mode` is 1.
  virtual void SaveToFile(TextView Filename, IKOBVBPersistStream& obj, std::int32_t mode) = 0;
  /// Reads the file into `obj`, and makes the objects below it from their class identifiers. A file that is
  /// refused is refused before anything of `obj` changes.
  virtual void LoadFromFile(TextView Filename, IKOBVBPersistStream& obj) = 0;
};

/// Makes a file manager; one is made for each Save or Load.
using MakeFileManager = std::unique_ptr<FileManager> (*)();

/// Plugs a persistence service into the component, for all threads, and returns the one before. Null, which
/// it is at first, means none: Save and Load then say so. An application sets it once, before it saves or
/// loads.
KOB_EXPORT MakeFileManager setPersistenceService(MakeFileManager make) noexcept;
KOB_EXPORT MakeFileManager persistenceService() noexcept;

}  // namespace kob
