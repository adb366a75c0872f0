// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Bytes.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

/// UTF-16 units as bytes. Everything here moves blocks of eight units and may touch up to seven beyond the
/// last one, on both sides (see slack).
namespace kob::persistence {

inline constexpr std::size_t unitsPerBlock = 8;

using NarrowBlock = Byte __attribute__((vector_size(unitsPerBlock)));
using WideBlock = std::uint16_t __attribute__((vector_size(2 * unitsPerBlock)));

/// Bytes to units of the same number.
inline void widen(char16_t* to, const Byte* from, std::size_t count) noexcept {
  for (std::size_t i = 0; i < count; i += unitsPerBlock) {
    NarrowBlock narrow;
    std::memcpy(&narrow, from + i, sizeof narrow);
    const WideBlock wide = __builtin_convertvector(narrow, WideBlock);
    std::memcpy(to + i, &wide, sizeof wide);
  }
}

/// Units to bytes of the same number; false, with nothing of use written, when one does not fit into a byte.
/// Reads exactly `count` units.
inline bool narrow(Byte* to, const char16_t* from, std::size_t count) noexcept {
  WideBlock all = {};
  std::size_t i = 0;
  for (; i + unitsPerBlock <= count; i += unitsPerBlock) {
    WideBlock wide;
    std::memcpy(&wide, from + i, sizeof wide);
    all |= wide;
    const NarrowBlock block = __builtin_convertvector(wide, NarrowBlock);
    std::memcpy(to + i, &block, sizeof block);
  }
  std::uint64_t halves[2];
  std::memcpy(halves, &all, sizeof halves);
  std::uint64_t seen = halves[0] | halves[1];
  for (; i < count; ++i) {
    seen |= from[i];
    to[i] = static_cast<Byte>(from[i]);
  }
  return (seen & 0xFF00'FF00'FF00'FF00) == 0;
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
