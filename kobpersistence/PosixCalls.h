// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Export.h>
#include <kobpersistence/Storage.h>

#include <sys/stat.h>
#include <sys/types.h>

#include <cstddef>
#include <memory>

namespace kob::persistence {

/// The system calls of the file storage, one to one: they return what the system returns and leave errno. A
/// test puts failing ones in their place.
class KOB_PERSISTENCE_EXPORT PosixCalls {
 public:
  virtual ~PosixCalls();
  virtual int open(const char* path, int flags, mode_t mode);
  virtual int close(int file);
  virtual int lstat(const char* path, struct stat* status);
  virtual int fstat(int file, struct stat* status);
  virtual ssize_t readlink(const char* path, char* to, std::size_t size);
  virtual int access(const char* path, int mode);
  virtual int flock(int file, int operation);
  virtual ssize_t read(int file, void* to, std::size_t size);
  virtual ssize_t write(int file, const void* from, std::size_t size);
  virtual ssize_t pwrite(int file, const void* from, std::size_t size, off_t offset);
  virtual int ftruncate(int file, off_t size);
  virtual off_t lseek(int file, off_t offset, int whence);
  virtual int fchown(int file, uid_t owner, gid_t group);
  virtual int fchmod(int file, mode_t mode);
  virtual int fsync(int file);
  /// Has the system begin to write a part of the file to the disk, where it can do so without a wait.
  virtual void beginSync(int file, off_t offset, std::size_t size);
  virtual int rename(const char* from, const char* to);
  virtual int unlink(const char* path);
  /// Waits a moment for another save of the same file.
  virtual void pause();
};

/// Files by these calls, which must outlive the storage.
KOB_PERSISTENCE_EXPORT std::unique_ptr<Storage> makePosixStorage(PosixCalls& calls);

}  // namespace kob::persistence
