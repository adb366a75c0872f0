// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The numbers of the file format, which docs/file-format.md describes. They are stored in files, so they
/// never change.
namespace kob::persistence {

inline constexpr std::array<std::uint8_t, 8> magic = {'K', 'O', 'B', 'T', 'R', 'A', 'D', 0x1A};
inline constexpr std::uint32_t containerVersion = 1;

inline constexpr std::size_t headerSize = 40;
inline constexpr std::size_t checksumSize = 8;
inline constexpr std::uint64_t largestFile = 0xFFFF'FFFF;
inline constexpr std::size_t mostClasses = 255;
/// Objects on the longest way from the first object down: a model, its root, 10 000 levels of cells, an
/// entry.
inline constexpr std::uint32_t deepestNesting = 10'003;
/// Texts up to this length have one byte for it.
inline constexpr std::size_t longestShort = 0x7F;
/// Small integers 1 that one value may stand for; it bounds what a file can grow to in memory.
inline constexpr std::uint32_t mostOnes = 16;

/// Where the fields of the header lie.
namespace at {
inline constexpr std::size_t version = 8;
inline constexpr std::size_t classes = 12;
inline constexpr std::size_t length = 16;
inline constexpr std::size_t records = 24;
inline constexpr std::size_t reserved = 28;
inline constexpr std::size_t units = 32;
}  // namespace at

/// The first byte of a value. The lower half is the type code, the upper half the form of the value.
enum class Tag : std::uint8_t {
  SmallInteger = 0x02,
  Ones = 0x12,
  Long = 0x03,
  Double = 0x05,
  WideText = 0x08,
  NarrowText = 0x18,
  SameText = 0x28,
  EmptyText = 0x38,
  NextObject = 0x09,
  NumberedObject = 0x19,
  Nothing = 0x29,
  False = 0x0B,
  True = 0x1B,
};

}  // namespace kob::persistence
