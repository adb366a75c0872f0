// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/PosixCalls.h>

#include <cerrno>
#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace kob::test {

/// The calls of the system, of which some fail without being made.
class FailingCalls final : public persistence::PosixCalls {
 public:
  static constexpr int never = std::numeric_limits<int>::max();
  /// Errors of the system; the last one has no words of its own.
  static constexpr int diskFailed = EIO;
  static constexpr int diskFull = ENOSPC;
  static constexpr int strange = EPROTO;

  /// Only the n-th call fails / all calls from it on fail, as if the process had died there.
  int failAt = never;
  int dieAt = never;
  int error = 0;
  /// A write takes so many bytes at most.
  std::size_t mostAtOnce = std::numeric_limits<std::size_t>::max();

  int count = 0;
  /// The names of the calls that were made.
  std::vector<std::string> made;

  int open(const char* path, int flags, mode_t mode) override;
  int close(int file) override;
  int lstat(const char* path, struct stat* status) override;
  int fstat(int file, struct stat* status) override;
  ssize_t readlink(const char* path, char* to, std::size_t size) override;
  int access(const char* path, int mode) override;
  int flock(int file, int operation) override;
  ssize_t read(int file, void* to, std::size_t size) override;
  ssize_t write(int file, const void* from, std::size_t size) override;
  ssize_t pwrite(int file, const void* from, std::size_t size, off_t offset) override;
  int ftruncate(int file, off_t size) override;
  off_t lseek(int file, off_t offset, int whence) override;
  int fchown(int file, uid_t owner, gid_t group) override;
  int fchmod(int file, mode_t mode) override;
  int fsync(int file) override;
  int rename(const char* from, const char* to) override;
  int unlink(const char* path) override;
  void pause() override { ++pauses; }

  int pauses = 0;

 private:
  bool fails(const char* name);
};

}  // namespace kob::test
