// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/Win32Calls.h>

#include <aclapi.h>

#include <cstddef>
#include <cstring>
#include <new>
#include <vector>

namespace kob::persistence {

namespace {

DWORD result(BOOL isDone) noexcept {
  return isDone != FALSE ? ERROR_SUCCESS : GetLastError();
}

/// Fills a text by a call that takes a buffer with its size, and answers the length or, when the buffer is
/// too small, the size that it needs; 0 when it fails.
template <class Call>
DWORD fill(std::wstring& text, Call call) {
  text.resize(MAX_PATH);
  for (;;) {
    const DWORD size = call(text.data(), static_cast<DWORD>(text.size()));
    if (size == 0) {
      return GetLastError();
    }
    const bool isEnough = size < text.size();
    text.resize(size);
    if (isEnough) {
      return ERROR_SUCCESS;
    }
  }
}

}  // namespace

Win32Calls::~Win32Calls() = default;

DWORD Win32Calls::fullPath(const std::wstring& name, std::wstring& path) {
  return fill(path,
              [&](wchar_t* to, DWORD size) { return GetFullPathNameW(name.c_str(), size, to, nullptr); });
}

DWORD Win32Calls::create(const std::wstring& path, DWORD access, DWORD share, DWORD disposition, DWORD flags,
                         HANDLE& file) {
  file = CreateFileW(path.c_str(), access, share, nullptr, disposition, flags, nullptr);
  return result(file != INVALID_HANDLE_VALUE ? TRUE : FALSE);
}

DWORD Win32Calls::close(HANDLE file) {
  return result(CloseHandle(file));
}

DWORD Win32Calls::information(HANDLE file, BY_HANDLE_FILE_INFORMATION& information) {
  return result(GetFileInformationByHandle(file, &information));
}

DWORD Win32Calls::finalPath(HANDLE file, std::wstring& path) {
  return fill(path, [&](wchar_t* to, DWORD size) {
    return GetFinalPathNameByHandleW(file, to, size, FILE_NAME_NORMALIZED | VOLUME_NAME_DOS);
  });
}

DWORD Win32Calls::read(HANDLE file, void* to, DWORD size, DWORD& got) {
  return result(ReadFile(file, to, size, &got, nullptr));
}

DWORD Win32Calls::write(HANDLE file, const void* from, DWORD size, DWORD& done) {
  return result(WriteFile(file, from, size, &done, nullptr));
}

DWORD Win32Calls::seek(HANDLE file, std::int64_t offset, DWORD from) {
  LARGE_INTEGER distance = {};
  distance.QuadPart = offset;
  return result(SetFilePointerEx(file, distance, nullptr, from));
}

DWORD Win32Calls::cut(HANDLE file) {
  return result(SetEndOfFile(file));
}

DWORD Win32Calls::flush(HANDLE file) {
  return result(FlushFileBuffers(file));
}

DWORD Win32Calls::setAttributes(HANDLE file, const BY_HANDLE_FILE_INFORMATION& old) {
  constexpr DWORD kept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
  // A time of 0 is left as it is.
  FILE_BASIC_INFO basic = {};
  basic.CreationTime.HighPart = static_cast<LONG>(old.ftCreationTime.dwHighDateTime);
  basic.CreationTime.LowPart = old.ftCreationTime.dwLowDateTime;
  basic.FileAttributes = (old.dwFileAttributes & kept) | FILE_ATTRIBUTE_ARCHIVE;
  return result(SetFileInformationByHandle(file, FileBasicInfo, &basic, sizeof basic));
}

DWORD Win32Calls::copyPermissions(HANDLE old, HANDLE file) {
  PACL list = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  DWORD error = GetSecurityInfo(old, SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &list,
                                nullptr, &descriptor);
  if (error != ERROR_SUCCESS) {
    return error;
  }
  SECURITY_DESCRIPTOR_CONTROL control = 0;
  DWORD revision = 0;
  error = result(GetSecurityDescriptorControl(descriptor, &control, &revision));
  if (error == ERROR_SUCCESS) {
    const SECURITY_INFORMATION inheritance = (control & SE_DACL_PROTECTED) != 0
                                                 ? PROTECTED_DACL_SECURITY_INFORMATION
                                                 : UNPROTECTED_DACL_SECURITY_INFORMATION;
    error = SetSecurityInfo(file, SE_FILE_OBJECT, DACL_SECURITY_INFORMATION | inheritance, nullptr, nullptr,
                            list, nullptr);
  }
  LocalFree(descriptor);
  return error;
}

DWORD Win32Calls::rename(HANDLE file, const std::wstring& path) {
  const std::size_t bytes = path.size() * sizeof(wchar_t);
  // The name begins within the structure and ends behind it.
  std::vector<std::byte> room(sizeof(FILE_RENAME_INFO) + bytes);
  auto* information = new (room.data()) FILE_RENAME_INFO{};
  information->ReplaceIfExists = TRUE;
  information->FileNameLength = static_cast<DWORD>(bytes);
  std::memcpy(&information->FileName[0], path.data(), bytes);
  return result(
      SetFileInformationByHandle(file, FileRenameInfo, information, static_cast<DWORD>(room.size())));
}

DWORD Win32Calls::removeOpen(HANDLE file) {
  FILE_DISPOSITION_INFO disposition = {};
  disposition.DeleteFile = TRUE;
  return result(SetFileInformationByHandle(file, FileDispositionInfo, &disposition, sizeof disposition));
}

DWORD Win32Calls::remove(const std::wstring& path) {
  return result(DeleteFileW(path.c_str()));
}

void Win32Calls::pause() {
  Sleep(20);
}

}  // namespace kob::persistence
