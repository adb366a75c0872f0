// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/Describing.h>
#include <kobpersistence/FileFailure.h>

namespace kob::persistence {

namespace {

TextView reasonOf(Trouble trouble) noexcept {
  switch (trouble) {
    case Trouble::NotThere:
      return u"it, or its folder, does not exist. Check the name.";
    case Trouble::NoFolderInPath:
      return u"a part of its path is no folder. Check the name.";
    case Trouble::NameTooLong:
      return u"its name is too long. Choose a shorter one.";
    case Trouble::LinksInCircle:
      return u"its symbolic links lead in a circle. Remove them.";
    case Trouble::NotPermitted:
      return u"this is not permitted. Ask for the permission or choose another folder.";
    case Trouble::ReadOnlyDisk:
      return u"the disk is read-only. Choose another one.";
    case Trouble::DiskFull:
      return u"the disk is full. Make room and try again.";
    case Trouble::QuotaUsed:
      return u"your share of the disk is used up. Make room and try again.";
    case Trouble::TooLarge:
      return u"it would be larger than files may be here. Choose another disk.";
    case Trouble::TooManyOpenHere:
      return u"this program has too many files open. Close some and try again.";
    case Trouble::TooManyOpen:
      return u"too many files are open. Close some programs and try again.";
    case Trouble::InUse:
      return u"it is in use. Try again later.";
    case Trouble::DiskFailed:
      return u"the disk failed. Try another disk.";
    case Trouble::Other:
      break;
  }
  return {};
}

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

TextView kindOf(bool isFolder) noexcept {
  return isFolder ? u"a folder" : u"no ordinary file";
}

}  // namespace

PersistFailure fileFailure(TextView path, TextView verb, Trouble trouble, std::int64_t error) {
  const TextView known = reasonOf(trouble);
  const Text reason =
      known.empty() ? joined({u"the system's error is number ", decimal(error), u"."}) : Text(known);
  return failure({u"The file \"", path, u"\" cannot be ", verb, u": ", reason});
}

PersistFailure noFileToLoad(TextView path, bool isFolder) {
  return failure({u"\"", path, u"\" is ", kindOf(isFolder), u". Choose a file."});
}

PersistFailure noFileToWrite(TextView path, bool isFolder) {
  return failure(
      {u"\"", path, u"\" is ", kindOf(isFolder), u", so it cannot be written. Choose another name."});
}

PersistFailure beingSaved(TextView path) {
  return failure(
      {u"The file \"", path, u"\" is being saved by another program. Try again once that has ended."});
}

PersistFailure perhapsNotKept(TextView path, std::int64_t error) {
  return failure({u"The file \"", path,
                  u"\" was written, but a power failure might still undo it (the system's error is number ",
                  decimal(error), u"). Save it again."});
}

PersistFailure impossibleName(TextView name) {
  return failure({u"\"", name, u"\" is no name that a file can have. Choose another one."});
}

void requireName(TextView name) {
  if (name.empty()) {
    throw failure({u"The file has no name. Give it one."});
  }
  if (name.find(u'\0') != TextView::npos || !isWhole(name)) {
    throw impossibleName(name);
  }
}

}  // namespace kob::persistence
