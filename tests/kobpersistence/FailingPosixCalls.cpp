// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FailingPosixCalls.h"

#include <algorithm>

namespace kob::test {

bool FailingCalls::fails(const char* name) {
  ++count;
  if (count == failAt || count >= dieAt) {
    errno = error;
    return true;
  }
  made.emplace_back(name);
  return false;
}

int FailingCalls::close(int file) {
  // Also a process that dies closes its files.
  const int result = PosixCalls::close(file);
  return fails("close") ? -1 : result;
}

ssize_t FailingCalls::write(int file, const void* from, std::size_t size) {
  return fails("write") ? -1 : PosixCalls::write(file, from, std::min(size, mostAtOnce));
}

ssize_t FailingCalls::pwrite(int file, const void* from, std::size_t size, off_t offset) {
  return fails("pwrite") ? -1 : PosixCalls::pwrite(file, from, std::min(size, mostAtOnce), offset);
}

int FailingCalls::open(const char* path, int flags, mode_t mode) {
  return fails("open") ? -1 : PosixCalls::open(path, flags, mode);
}

int FailingCalls::lstat(const char* path, struct stat* status) {
  return fails("lstat") ? -1 : PosixCalls::lstat(path, status);
}

int FailingCalls::fstat(int file, struct stat* status) {
  return fails("fstat") ? -1 : PosixCalls::fstat(file, status);
}

ssize_t FailingCalls::readlink(const char* path, char* to, std::size_t size) {
  return fails("readlink") ? -1 : PosixCalls::readlink(path, to, size);
}

int FailingCalls::access(const char* path, int mode) {
  return fails("access") ? -1 : PosixCalls::access(path, mode);
}

int FailingCalls::flock(int file, int operation) {
  return fails("flock") ? -1 : PosixCalls::flock(file, operation);
}

ssize_t FailingCalls::read(int file, void* to, std::size_t size) {
  return fails("read") ? -1 : PosixCalls::read(file, to, std::min(size, mostAtOnce));
}

int FailingCalls::ftruncate(int file, off_t size) {
  return fails("ftruncate") ? -1 : PosixCalls::ftruncate(file, size);
}

off_t FailingCalls::lseek(int file, off_t offset, int whence) {
  return fails("lseek") ? -1 : PosixCalls::lseek(file, offset, whence);
}

int FailingCalls::fchown(int file, uid_t owner, gid_t group) {
  return fails("fchown") ? -1 : PosixCalls::fchown(file, owner, group);
}

int FailingCalls::fchmod(int file, mode_t mode) {
  return fails("fchmod") ? -1 : PosixCalls::fchmod(file, mode);
}

int FailingCalls::fsync(int file) {
  return fails("fsync") ? -1 : PosixCalls::fsync(file);
}

int FailingCalls::rename(const char* from, const char* to) {
  return fails("rename") ? -1 : PosixCalls::rename(from, to);
}

int FailingCalls::unlink(const char* path) {
  return fails("unlink") ? -1 : PosixCalls::unlink(path);
}

}  // namespace kob::test
