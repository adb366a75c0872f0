// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Bytes.h>
#include <kobpersistence/Checksum.h>
#include <kobpersistence/Storage.h>
#include <kobtraduction/persistence/PersistStream.h>

#include <cstddef>
#include <cstdint>
#include <memory>

namespace kob::persistence {

/// A file being written: header, class table, records, checksum. The bytes go through one small buffer, the
/// header last.
class ContainerWriter {
 public:
  ContainerWriter(WritableFile& file, const ProgIdTable& classes);

  void addRecord(const Byte* record, std::size_t size, std::uint64_t units);
  /// Forgets all records.
  void startOver();
  /// Writes what is left: the file is complete.
  void finish();

 private:
  void start();
  void put(const Byte* bytes, std::size_t size);
  void flush();

  WritableFile& file_;
  const ProgIdTable& classes_;
  std::unique_ptr<Byte[]> buffer_;
  std::size_t used_ = 0;
  std::uint64_t length_ = 0;
  std::uint64_t units_ = 0;
  std::uint64_t records_ = 0;
  bool isStarted_ = false;
  Checksum checksum_;
};

}  // namespace kob::persistence
