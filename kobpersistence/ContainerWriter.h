// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Bytes.h>
#include <kobpersistence/Checksum.h>
#include <kobpersistence/Storage.h>
#include <kobtraduction/persistence/PersistStream.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

namespace kob::persistence {

/// A file being written: header, class table, records, checksum. The bytes go through one small buffer, the
/// header last.
class ContainerWriter {
 public:
  ContainerWriter(WritableFile& file, const ProgIdTable& classes);

  /// Where the next record may be written, so that it need not be copied there. The room ends with the next
  /// record that is added.
  std::span<Byte> room() const noexcept;
  void addRecord(const Byte* record, std::size_t size, std::uint64_t units);
  /// Forgets all records.
  void startOver();
  /// Writes what is left: the file is complete.
  void finish();

 private:
  void start();
  void put(const Byte* bytes, std::size_t size);
  void checkLength() const;
  /// Adds to the checksum what it lacks up to there.
  void sumTo(const Byte* end) noexcept;

  WritableFile& file_;
  const ProgIdTable& classes_;
  /// The buffer, with room in front of it for what the checksum lacks of the one before, and behind it for
  /// the checksum.
  std::unique_ptr<Byte[]> memory_;
  Byte* buffer_;
  std::size_t used_ = 0;
  std::uint64_t length_ = 0;
  std::uint64_t units_ = 0;
  std::uint64_t records_ = 0;
  /// Up to where the checksum has come.
  const Byte* unsummed_ = nullptr;
  Checksum checksum_;
};

}  // namespace kob::persistence
