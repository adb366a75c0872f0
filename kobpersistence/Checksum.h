// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Bytes.h>
#include <kobpersistence/Export.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace kob::persistence {

/// The checksum of a file: what follows the header first, then the header, which is known last. Four lanes
/// take a word of eight bytes each; a step can be undone, so that a difference in one word never vanishes
/// from its lane: every change within a single word is found with certainty.
class Checksum {
 public:
  /// Takes the next bytes; all calls but the last take a multiple of blockSize.
  void add(const Byte* bytes, std::size_t size) noexcept;
  /// The checksum, with the header's bytes as the last ones.
  std::uint64_t finish(const Byte* header) noexcept;

  static constexpr std::size_t blockSize = 32;

 private:
  std::array<std::uint64_t, 4> lanes_ = {0x243F'6A88'85A3'08D3, 0x1319'8A2E'0370'7344, 0xA409'3822'299F'31D0,
                                         0x082E'FA98'EC4E'6C89};
};

/// The checksum that a file of these bytes has to end with; the file has at least a header and a checksum.
KOB_PERSISTENCE_EXPORT std::uint64_t checksumOf(const Byte* file, std::size_t size) noexcept;

}  // namespace kob::persistence
