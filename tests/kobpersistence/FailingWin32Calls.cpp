// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FailingWin32Calls.h"

#include <algorithm>

namespace kob::test {

bool FailingCalls::fails(const char* name) {
  ++count;
  if (count == failAt || count >= dieAt) {
    return true;
  }
  made.emplace_back(name);
  return false;
}

DWORD FailingCalls::atOnce(DWORD size) const noexcept {
  return static_cast<DWORD>(std::min<std::size_t>(size, mostAtOnce));
}

DWORD FailingCalls::close(HANDLE file) {
  // Also a process that dies closes its files.
  const DWORD result = Win32Calls::close(file);
  return fails("close") ? failure() : result;
}

DWORD FailingCalls::read(HANDLE file, void* to, DWORD size, DWORD& got) {
  return fails("read") ? failure() : Win32Calls::read(file, to, atOnce(size), got);
}

DWORD FailingCalls::write(HANDLE file, const void* from, DWORD size, DWORD& done) {
  return fails("write") ? failure() : Win32Calls::write(file, from, atOnce(size), done);
}

DWORD FailingCalls::fullPath(const std::wstring& name, std::wstring& path) {
  return fails("fullPath") ? failure() : Win32Calls::fullPath(name, path);
}

DWORD FailingCalls::create(const std::wstring& path, DWORD access, DWORD share, DWORD disposition,
                           DWORD flags, HANDLE& file) {
  return fails("create") ? failure() : Win32Calls::create(path, access, share, disposition, flags, file);
}

DWORD FailingCalls::information(HANDLE file, BY_HANDLE_FILE_INFORMATION& information) {
  return fails("information") ? failure() : Win32Calls::information(file, information);
}

DWORD FailingCalls::finalPath(HANDLE file, std::wstring& path) {
  return fails("finalPath") ? failure() : Win32Calls::finalPath(file, path);
}

DWORD FailingCalls::seek(HANDLE file, std::int64_t offset, DWORD from) {
  return fails("seek") ? failure() : Win32Calls::seek(file, offset, from);
}

DWORD FailingCalls::cut(HANDLE file) {
  return fails("cut") ? failure() : Win32Calls::cut(file);
}

DWORD FailingCalls::flush(HANDLE file) {
  return fails("flush") ? failure() : Win32Calls::flush(file);
}

DWORD FailingCalls::setAttributes(HANDLE file, const BY_HANDLE_FILE_INFORMATION& old) {
  return fails("setAttributes") ? failure() : Win32Calls::setAttributes(file, old);
}

DWORD FailingCalls::copyPermissions(HANDLE old, HANDLE file) {
  return fails("copyPermissions") ? failure() : Win32Calls::copyPermissions(old, file);
}

DWORD FailingCalls::rename(HANDLE file, const std::wstring& path) {
  return fails("rename") ? failure() : Win32Calls::rename(file, path);
}

DWORD FailingCalls::removeOpen(HANDLE file) {
  return fails("removeOpen") ? failure() : Win32Calls::removeOpen(file);
}

DWORD FailingCalls::remove(const std::wstring& path) {
  return fails("remove") ? failure() : Win32Calls::remove(path);
}

}  // namespace kob::test
