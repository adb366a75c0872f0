// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/Describing.h>
#include <kobpersistence/PosixFailure.h>

#include <cerrno>

namespace kob::persistence {

namespace {

struct Reason {
  int error;
  TextView text;
};

constexpr Reason reasons[] = {
    {ENOENT, u"it, or its folder, does not exist. Check the name."},
    {ENOTDIR, u"a part of its path is no folder. Check the name."},
    {ENAMETOOLONG, u"its name is too long. Choose a shorter one."},
    {ELOOP, u"its symbolic links lead in a circle. Remove them."},
    {EACCES, u"this is not permitted. Ask for the permission or choose another folder."},
    {EPERM, u"this is not permitted. Ask for the permission or choose another folder."},
    {EROFS, u"the disk is read-only. Choose another one."},
    {ENOSPC, u"the disk is full. Make room and try again."},
    {EDQUOT, u"your share of the disk is used up. Make room and try again."},
    {EFBIG, u"it would be larger than files may be here. Choose another disk."},
    {EMFILE, u"this program has too many files open. Close some and try again."},
    {ENFILE, u"too many files are open. Close some programs and try again."},
    {EBUSY, u"it is in use. Try again later."},
    {ETXTBSY, u"it is in use. Try again later."},
    {EIO, u"the disk failed. Try another disk."},
};

bool isHighSurrogate(char16_t unit) noexcept {
  return unit >= 0xD800 && unit < 0xDC00;
}

bool isLowSurrogate(char16_t unit) noexcept {
  return unit >= 0xDC00 && unit < 0xE000;
}

/// Whether every surrogate is one of a pair.
bool isWhole(TextView text) noexcept {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (isHighSurrogate(text[i]) && i + 1 < text.size() && isLowSurrogate(text[i + 1])) {
      ++i;
    } else if (isHighSurrogate(text[i]) || isLowSurrogate(text[i])) {
      return false;
    }
  }
  return true;
}

}  // namespace

PersistFailure fileFailure(std::string_view path, TextView verb, int error) {
  Text reason = joined({u"the system's error is number ", decimal(error), u"."});
  for (const Reason& known : reasons) {
    if (known.error == error) {
      reason = known.text;
    }
  }
  return failure({u"The file \"", textOf(path), u"\" cannot be ", verb, u": ", reason});
}

std::string pathOf(TextView name) {
  if (name.empty()) {
    throw failure({u"The file has no name. Give it one."});
  }
  if (name.find(u'\0') != TextView::npos || !isWhole(name)) {
    throw failure({u"\"", name, u"\" is no name that a file can have. Choose another one."});
  }
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
