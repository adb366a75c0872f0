// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Export.h>
#include <kobpersistence/Storage.h>

#include <windows.h>

#include <cstdint>
#include <memory>
#include <string>

namespace kob::persistence {

/// The system calls of the file storage: each returns 0 or the error that the system gives. A test puts
/// failing ones in their place. Paths are complete and begin with \\?\.
class KOB_PERSISTENCE_EXPORT Win32Calls {
 public:
  virtual ~Win32Calls();
  /// A name of the person as a complete path.
  virtual DWORD fullPath(const std::wstring& name, std::wstring& path);
  virtual DWORD create(const std::wstring& path, DWORD access, DWORD share, DWORD disposition, DWORD flags,
                       HANDLE& file);
  virtual DWORD close(HANDLE file);
  virtual DWORD information(HANDLE file, BY_HANDLE_FILE_INFORMATION& information);
  /// Where the links lead behind which the file was opened.
  virtual DWORD finalPath(HANDLE file, std::wstring& path);
  virtual DWORD read(HANDLE file, void* to, DWORD size, DWORD& got);
  virtual DWORD write(HANDLE file, const void* from, DWORD size, DWORD& done);
  virtual DWORD seek(HANDLE file, std::int64_t offset, DWORD from);
  /// Cuts the file where it stands.
  virtual DWORD cut(HANDLE file);
  virtual DWORD flush(HANDLE file);
  /// Gives the file the attributes and the time of making of an old one.
  virtual DWORD setAttributes(HANDLE file, const BY_HANDLE_FILE_INFORMATION& old);
  /// Gives the file the list of who may use an old one.
  virtual DWORD copyPermissions(HANDLE old, HANDLE file);
  /// Gives an open file another name, in one step, in the place of what has that name.
  virtual DWORD rename(HANDLE file, const std::wstring& path);
  /// Removes an open file once it is closed.
  virtual DWORD removeOpen(HANDLE file);
  virtual DWORD remove(const std::wstring& path);
  /// Waits a moment for another program that uses the same file.
  virtual void pause();
};

/// Files by these calls, which must outlive the storage.
KOB_PERSISTENCE_EXPORT std::unique_ptr<Storage> makeWin32Storage(Win32Calls& calls);

}  // namespace kob::persistence
