// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TestFile.h"

#include <kobpersistence/Checksum.h>

namespace kob::test {

namespace {

constexpr std::uint8_t magic[] = {'K', 'O', 'B', 'T', 'R', 'A', 'D', 0x1A};

void append(FileBytes& bytes, std::uint64_t number, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) {
    bytes.push_back(static_cast<std::uint8_t>(number >> (8 * i)));
  }
}

void appendVarint(FileBytes& bytes, std::uint32_t number) {
  for (; number >= 0x80; number >>= 7) {
    bytes.push_back(static_cast<std::uint8_t>(number | 0x80));
  }
  bytes.push_back(static_cast<std::uint8_t>(number));
}

void put(FileBytes& bytes, std::size_t at, std::uint64_t number) {
  for (std::size_t i = 0; i < 8; ++i) {
    bytes[at + i] = static_cast<std::uint8_t>(number >> (8 * i));
  }
}

}  // namespace

FileBytes sealed(FileBytes bytes) {
  put(bytes, 16, bytes.size());
  put(bytes, bytes.size() - 8, persistence::checksumOf(bytes.data(), bytes.size()));
  return bytes;
}

FileBytes TestFile::bytes() const {
  FileBytes file(std::begin(magic), std::end(magic));
  append(file, version, 4);
  append(file, classes.size(), 4);
  append(file, 0, 8);
  append(file, records.size(), 4);
  append(file, 0, 4);
  append(file, units, 8);
  for (const Text& name : classes) {
    append(file, name.size(), 2);
    for (const char16_t unit : name) {
      append(file, unit, 2);
    }
  }
  for (const FileBytes& one : records) {
    file.insert(file.end(), one.begin(), one.end());
  }
  append(file, 0, 8);
  return sealed(std::move(file));
}

FileBytes record(std::uint8_t classNumber, std::uint8_t version, const FileBytes& values) {
  FileBytes bytes;
  appendVarint(bytes, static_cast<std::uint32_t>(values.size() + 2));
  return bytes + FileBytes{classNumber, static_cast<std::uint8_t>(2 * version)} + values;
}

FileBytes longValue(std::int32_t small) {
  FileBytes bytes = {0x03};
  appendVarint(bytes, small < 0 ? 2 * static_cast<std::uint32_t>(-(small + 1)) + 1
                                : 2 * static_cast<std::uint32_t>(small));
  return bytes;
}

FileBytes letters(std::string_view text) {
  FileBytes bytes = {0x18};
  appendVarint(bytes, static_cast<std::uint32_t>(text.size()));
  bytes.insert(bytes.end(), text.begin(), text.end());
  return bytes;
}

FileBytes operator+(FileBytes a, const FileBytes& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

FileBytes modelRecord(std::int32_t languages) {
  return record(0, 1, longValue(languages) + nextObject);
}

FileBytes rootRecord() {
  return record(1, 2, emptyText + emptyText + longValue(1) + longValue(0) + longValue(0) + no);
}

}  // namespace kob::test
