// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/FileFailure.h>
#include <kobpersistence/Win32Failure.h>

namespace kob::persistence {

namespace {

struct Meaning {
  DWORD error;
  Trouble trouble;
};

/// ERROR_DISK_QUOTA_EXCEEDED, which not all headers of the system know.
constexpr DWORD quotaExceeded = 1295;

constexpr Meaning meanings[] = {
    {ERROR_FILE_NOT_FOUND, Trouble::NotThere},
    {ERROR_PATH_NOT_FOUND, Trouble::NotThere},
    {ERROR_INVALID_DRIVE, Trouble::NotThere},
    {ERROR_BAD_NETPATH, Trouble::NotThere},
    {ERROR_BAD_NET_NAME, Trouble::NotThere},
    {ERROR_DIRECTORY, Trouble::NoFolderInPath},
    {ERROR_FILENAME_EXCED_RANGE, Trouble::NameTooLong},
    {ERROR_BUFFER_OVERFLOW, Trouble::NameTooLong},
    {ERROR_CANT_RESOLVE_FILENAME, Trouble::LinksInCircle},
    {ERROR_ACCESS_DENIED, Trouble::NotPermitted},
    {ERROR_NETWORK_ACCESS_DENIED, Trouble::NotPermitted},
    {ERROR_PRIVILEGE_NOT_HELD, Trouble::NotPermitted},
    {ERROR_WRITE_PROTECT, Trouble::ReadOnlyDisk},
    {ERROR_DISK_FULL, Trouble::DiskFull},
    {ERROR_HANDLE_DISK_FULL, Trouble::DiskFull},
    {quotaExceeded, Trouble::QuotaUsed},
    {ERROR_FILE_TOO_LARGE, Trouble::TooLarge},
    {ERROR_TOO_MANY_OPEN_FILES, Trouble::TooManyOpenHere},
    {ERROR_SHARING_VIOLATION, Trouble::InUse},
    {ERROR_LOCK_VIOLATION, Trouble::InUse},
    {ERROR_USER_MAPPED_FILE, Trouble::InUse},
    {ERROR_BUSY, Trouble::InUse},
    {ERROR_CRC, Trouble::DiskFailed},
    {ERROR_SEEK, Trouble::DiskFailed},
    {ERROR_SECTOR_NOT_FOUND, Trouble::DiskFailed},
    {ERROR_WRITE_FAULT, Trouble::DiskFailed},
    {ERROR_READ_FAULT, Trouble::DiskFailed},
    {ERROR_GEN_FAILURE, Trouble::DiskFailed},
    {ERROR_IO_DEVICE, Trouble::DiskFailed},
    {ERROR_DISK_CORRUPT, Trouble::DiskFailed},
};

}  // namespace

PersistFailure fileFailure(TextView name, TextView verb, DWORD error) {
  if (error == ERROR_INVALID_NAME || error == ERROR_BAD_PATHNAME) {
    return impossibleName(name);
  }
  Trouble trouble = Trouble::Other;
  for (const Meaning& known : meanings) {
    if (known.error == error) {
      trouble = known.trouble;
    }
  }
  return fileFailure(name, verb, trouble, error);
}

std::wstring wide(TextView text) {
  return {text.begin(), text.end()};
}

Text textOf(const std::wstring& text) {
  return {text.begin(), text.end()};
}

}  // namespace kob::persistence
