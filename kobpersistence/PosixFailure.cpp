// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/FileFailure.h>
#include <kobpersistence/PosixFailure.h>

#include <cerrno>

namespace kob::persistence {

namespace {

struct Meaning {
  int error;
  Trouble trouble;
};

constexpr Meaning meanings[] = {
    {ENOENT, Trouble::NotThere},     {ENOTDIR, Trouble::NoFolderInPath}, {ENAMETOOLONG, Trouble::NameTooLong},
    {ELOOP, Trouble::LinksInCircle}, {EACCES, Trouble::NotPermitted},    {EPERM, Trouble::NotPermitted},
    {EROFS, Trouble::ReadOnlyDisk},  {ENOSPC, Trouble::DiskFull},        {EDQUOT, Trouble::QuotaUsed},
    {EFBIG, Trouble::TooLarge},      {EMFILE, Trouble::TooManyOpenHere}, {ENFILE, Trouble::TooManyOpen},
    {EBUSY, Trouble::InUse},         {ETXTBSY, Trouble::InUse},          {EIO, Trouble::DiskFailed},
};

}  // namespace

PersistFailure fileFailure(std::string_view path, TextView verb, int error) {
  Trouble trouble = Trouble::Other;
  for (const Meaning& known : meanings) {
    if (known.error == error) {
      trouble = known.trouble;
    }
  }
  return fileFailure(textOf(path), verb, trouble, error);
}

std::string pathOf(TextView name) {
  requireName(name);
  return toUtf8(name);
}

Text textOf(std::string_view path) {
  Text text;
  for (std::size_t i = 0; i < path.size();) {
    const auto first = static_cast<unsigned char>(path[i++]);
    const unsigned more = first < 0xC0 ? 0 : first < 0xE0 ? 1 : first < 0xF0 ? 2 : 3;
    bool isRight = first < 0x80 || (first >= 0xC2 && first < 0xF5);
    char32_t letter = more == 0 ? first : first & (0x3FU >> more);
    for (unsigned k = 0; isRight && k < more; ++k) {
      isRight = i < path.size() && (static_cast<unsigned char>(path[i]) & 0xC0) == 0x80;
      if (isRight) {
        letter = (letter << 6) | (static_cast<unsigned char>(path[i++]) & 0x3F);
      }
    }
    if (!isRight) {
      text += u'\xFFFD';
    } else if (letter >= 0x10000) {
      text += static_cast<char16_t>(0xD7C0 + (letter >> 10));
      text += static_cast<char16_t>(0xDC00 + (letter & 0x3FF));
    } else {
      text += static_cast<char16_t>(letter);
    }
  }
  return text;
}

}  // namespace kob::persistence
