// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/PosixCalls.h>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <thread>

namespace kob::persistence {

PosixCalls::~PosixCalls() = default;

int PosixCalls::open(const char* path, int flags, mode_t mode) {
  return ::open(path, flags, mode);
}

int PosixCalls::close(int file) {
  return ::close(file);
}

int PosixCalls::lstat(const char* path, struct stat* status) {
  return ::lstat(path, status);
}

int PosixCalls::fstat(int file, struct stat* status) {
  return ::fstat(file, status);
}

ssize_t PosixCalls::readlink(const char* path, char* to, std::size_t size) {
  return ::readlink(path, to, size);
}

int PosixCalls::access(const char* path, int mode) {
  return ::faccessat(AT_FDCWD, path, mode, AT_EACCESS);
}

int PosixCalls::flock(int file, int operation) {
  return ::flock(file, operation);
}

ssize_t PosixCalls::read(int file, void* to, std::size_t size) {
  return ::read(file, to, size);
}

ssize_t PosixCalls::write(int file, const void* from, std::size_t size) {
  return ::write(file, from, size);
}

ssize_t PosixCalls::pwrite(int file, const void* from, std::size_t size, off_t offset) {
  return ::pwrite(file, from, size, offset);
}

int PosixCalls::ftruncate(int file, off_t size) {
  return ::ftruncate(file, size);
}

off_t PosixCalls::lseek(int file, off_t offset, int whence) {
  return ::lseek(file, offset, whence);
}

int PosixCalls::fchown(int file, uid_t owner, gid_t group) {
  return ::fchown(file, owner, group);
}

int PosixCalls::fchmod(int file, mode_t mode) {
  return ::fchmod(file, mode);
}

int PosixCalls::fsync(int file) {
  return ::fsync(file);
}

void PosixCalls::beginSync([[maybe_unused]] int file, [[maybe_unused]] off_t offset,
                           [[maybe_unused]] std::size_t size) {
#if defined(__linux__)
  // A system that refuses has more to do when all is flushed, and nothing else is lost.
  static_cast<void>(::sync_file_range(file, offset, static_cast<off_t>(size), SYNC_FILE_RANGE_WRITE));
#endif
}

int PosixCalls::rename(const char* from, const char* to) {
  return std::rename(from, to);
}

int PosixCalls::unlink(const char* path) {
  return ::unlink(path);
}

void PosixCalls::pause() {
  std::this_thread::sleep_for(std::chrono::milliseconds(20));
}

}  // namespace kob::persistence
