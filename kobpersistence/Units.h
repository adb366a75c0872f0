// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Bytes.h>

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

/// UTF-16 units as bytes.
namespace kob::persistence {

using NarrowBlock = Byte __attribute__((vector_size(8)));
using DoubleBlock = Byte __attribute__((vector_size(16)));
using WideBlock = std::uint16_t __attribute__((vector_size(16)));
using DoubleWideBlock = std::uint16_t __attribute__((vector_size(32)));

/// Bytes to units of the same number. Moves blocks and may touch up to fifteen beyond the last one, on both
/// sides (see slack).
inline void widen(char16_t* to, const Byte* from, std::size_t count) noexcept {
  if constexpr (std::endian::native == std::endian::little) {
    for (std::size_t i = 0; i < count; i += 16) {
      DoubleBlock narrow;
      std::memcpy(&narrow, from + i, sizeof narrow);
      constexpr DoubleBlock zero = {};
      const DoubleBlock low =
          __builtin_shufflevector(narrow, zero, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23);
      const DoubleBlock high =
          __builtin_shufflevector(narrow, zero, 8, 24, 9, 25, 10, 26, 11, 27, 12, 28, 13, 29, 14, 30, 15, 31);
      std::memcpy(to + i, &low, sizeof low);
      std::memcpy(to + i + 8, &high, sizeof high);
    }
  } else {
    std::copy(from, from + count, to);
  }
}

/// Units that do not fit into a byte leave a bit of these.
inline constexpr std::uint64_t upperBytes = 0xFF00'FF00'FF00'FF00;

/// Sixteen units / eight units / four units; what they have in their upper bytes is or-ed to `seen`, or
/// returned. (A processor without such registers has no common way to return a block.)
inline void narrowSixteen(Byte* to, const char16_t* from, WideBlock& seen) noexcept {
  DoubleWideBlock wide;
  std::memcpy(&wide, from, sizeof wide);
  const auto block = __builtin_convertvector(wide, DoubleBlock);
  std::memcpy(to, &block, sizeof block);
  WideBlock low;
  WideBlock high;
  std::memcpy(&low, from, sizeof low);
  std::memcpy(&high, from + 8, sizeof high);
  seen |= low | high;
}
inline void narrowEight(Byte* to, const char16_t* from, WideBlock& seen) noexcept {
  WideBlock wide;
  std::memcpy(&wide, from, sizeof wide);
  const auto block = __builtin_convertvector(wide, NarrowBlock);
  std::memcpy(to, &block, sizeof block);
  seen |= wide;
}
inline std::uint64_t narrowFour(Byte* to, const char16_t* from) noexcept {
  std::uint64_t units = 0;
  std::memcpy(&units, from, sizeof units);
  std::uint64_t bytes = units & ~upperBytes;
  bytes |= bytes >> 8;
  bytes &= 0x0000'FFFF'0000'FFFF;
  bytes |= bytes >> 16;
  const auto four = static_cast<std::uint32_t>(bytes);
  std::memcpy(to, &four, sizeof four);
  return units;
}

/// Whether all units fit into a byte, of which `seen` is what was or-ed together.
inline bool isNarrow(const WideBlock& seen) noexcept {
  std::uint64_t halves[2];
  std::memcpy(halves, &seen, sizeof halves);
  return ((halves[0] | halves[1]) & upperBytes) == 0;
}

/// Units to bytes of the same number; false, with nothing of use written, when one does not fit into a byte.
/// Neither reads nor writes beyond the last one: the last block ends where the text ends.
[[gnu::always_inline]] inline bool narrow(Byte* to, const char16_t* from, std::size_t count) noexcept {
  if (count >= 8) {
    WideBlock seenBlock = {};
    if (count >= 16) {
      for (std::size_t i = 0; i + 16 < count; i += 16) {
        narrowSixteen(to + i, from + i, seenBlock);
      }
      narrowSixteen(to + count - 16, from + count - 16, seenBlock);
    } else {
      narrowEight(to, from, seenBlock);
      narrowEight(to + count - 8, from + count - 8, seenBlock);
    }
    return isNarrow(seenBlock);
  }
  std::uint64_t seen = 0;
  if (count >= 4 && std::endian::native == std::endian::little) {
    seen = narrowFour(to, from) | narrowFour(to + count - 4, from + count - 4);
  } else {
    for (std::size_t i = 0; i < count; ++i) {
      seen |= from[i];
      to[i] = static_cast<Byte>(from[i]);
    }
  }
  return (seen & upperBytes) == 0;
}

/// Units to and from their little-endian bytes, two a unit.
inline void storeUnits(Byte* to, const char16_t* from, std::size_t count) noexcept {
  if constexpr (std::endian::native == std::endian::little) {
    std::memcpy(to, from, 2 * count);
  } else {
    for (std::size_t i = 0; i < count; ++i) {
      storeNumber<std::uint16_t>(to + 2 * i, from[i]);
    }
  }
}
inline void loadUnits(char16_t* to, const Byte* from, std::size_t count) noexcept {
  if constexpr (std::endian::native == std::endian::little) {
    std::memcpy(to, from, 2 * count);
  } else {
    for (std::size_t i = 0; i < count; ++i) {
      to[i] = loadNumber<std::uint16_t>(from + 2 * i);
    }
  }
}

}  // namespace kob::persistence
