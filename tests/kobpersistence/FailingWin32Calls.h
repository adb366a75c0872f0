// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Win32Calls.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace kob::test {

/// The calls of the system, of which some fail without being made.
class FailingCalls final : public persistence::Win32Calls {
 public:
  static constexpr int never = std::numeric_limits<int>::max();
  /// Errors of the system; the last one has no words of its own.
  static constexpr int diskFailed = ERROR_IO_DEVICE;
  static constexpr int diskFull = ERROR_DISK_FULL;
  static constexpr int strange = ERROR_INVALID_FUNCTION;

  /// Only the n-th call fails / all calls from it on fail, as if the process had died there.
  int failAt = never;
  int dieAt = never;
  int error = 0;
  /// A write takes so many bytes at most.
  std::size_t mostAtOnce = std::numeric_limits<DWORD>::max();

  int count = 0;
  /// The names of the calls that were made.
  std::vector<std::string> made;

  DWORD fullPath(const std::wstring& name, std::wstring& path) override;
  DWORD create(const std::wstring& path, DWORD access, DWORD share, DWORD disposition, DWORD flags,
               HANDLE& file) override;
  DWORD information(HANDLE file, BY_HANDLE_FILE_INFORMATION& information) override;
  DWORD finalPath(HANDLE file, std::wstring& path) override;
  DWORD seek(HANDLE file, std::int64_t offset, DWORD from) override;
  DWORD cut(HANDLE file) override;
  DWORD flush(HANDLE file) override;
  DWORD setAttributes(HANDLE file, const BY_HANDLE_FILE_INFORMATION& old) override;
  DWORD copyPermissions(HANDLE old, HANDLE file) override;
  DWORD rename(HANDLE file, const std::wstring& path) override;
  DWORD removeOpen(HANDLE file) override;
  DWORD remove(const std::wstring& path) override;
  DWORD close(HANDLE file) override;
  DWORD read(HANDLE file, void* to, DWORD size, DWORD& got) override;
  DWORD write(HANDLE file, const void* from, DWORD size, DWORD& done) override;
  void pause() override { ++pauses; }

  int pauses = 0;

 private:
  bool fails(const char* name);
  DWORD failure() const noexcept { return static_cast<DWORD>(error); }
  DWORD atOnce(DWORD size) const noexcept;
};

}  // namespace kob::test
