// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "ServiceTest.h"

#include <cstdint>
#include <initializer_list>
#include <vector>

/// Files put together by hand, as no save would write them.
namespace kob::test {

/// Sets the length and the checksum of a file so that they fit.
FileBytes sealed(FileBytes bytes);

struct TestFile {
  std::uint32_t version = 1;
  std::vector<Text> classes = {u"KOBTraduction.KOBModeleTraduction", u"KOBTraduction.KOBCellTraduction",
                               u"KOBTraduction.KOBTraductionObj"};
  std::vector<FileBytes> records;
  std::uint64_t units = 0;

  FileBytes bytes() const;
};

/// A record of these values, shorter than 128 bytes, or of so many bytes as it says itself.
FileBytes record(std::uint8_t classNumber, std::uint8_t version, const FileBytes& values);

/// Values in their stored form.
FileBytes longValue(std::int32_t small);
/// A string of letters that fit into a byte.
FileBytes letters(std::string_view text);
FileBytes operator+(FileBytes a, const FileBytes& b);

inline const FileBytes nextObject = {0x09};
inline const FileBytes nothing = {0x29};
inline const FileBytes emptyText = {0x38};
inline const FileBytes no = {0x0B};

/// The record of a model in so many languages whose root is the next object.
FileBytes modelRecord(std::int32_t languages);
/// A root without children.
FileBytes rootRecord();

}  // namespace kob::test
