// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

/// Numbers as bytes: little-endian, and of variable length.
namespace kob::persistence {

using Byte = std::uint8_t;

/// Bytes beyond a buffer's content that may be read or written, so that texts are moved in whole blocks.
inline constexpr std::size_t slack = 32;

template <class T>
T turned(T number) noexcept {
  if constexpr (std::endian::native == std::endian::big) {
    T result = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i) {
      result = static_cast<T>((result << 8) | ((number >> (8 * i)) & 0xFF));
    }
    return result;
  } else {
    return number;
  }
}

template <class T>
T loadNumber(const Byte* from) noexcept {
  T number = 0;
  std::memcpy(&number, from, sizeof number);
  return turned(number);
}

template <class T>
void storeNumber(Byte* to, T number) noexcept {
  number = turned(number);
  std::memcpy(to, &number, sizeof number);
}

inline constexpr std::size_t longestVarint = 5;

/// Seven bits a byte, the lowest first; the top bit says that more follow. Returns where the next byte goes.
inline Byte* storeVarint(Byte* to, std::uint32_t number) noexcept {
  while (number >= 0x80) {
    *to++ = static_cast<Byte>(number | 0x80);
    number >>= 7;
  }
  *to++ = static_cast<Byte>(number);
  return to;
}

inline std::size_t varintSize(std::uint32_t number) noexcept {
  std::size_t size = 1;
  for (; number >= 0x80; number >>= 7) {
    ++size;
  }
  return size;
}

/// A number that storeVarint wrote and that is known to be right; moves `from` behind it.
inline std::uint32_t loadVarint(const Byte*& from) noexcept {
  std::uint32_t number = *from++;
  if (number < 0x80) {
    return number;
  }
  number &= 0x7F;
  for (unsigned shift = 7;; shift += 7) {
    const std::uint32_t next = *from++;
    number |= (next & 0x7F) << shift;
    if (next < 0x80) {
      return number;
    }
  }
}

/// Small numbers of either sign as small numbers: 0, -1, 1, -2 become 0, 1, 2, 3.
inline std::uint32_t zigzag(std::int32_t number) noexcept {
  return (static_cast<std::uint32_t>(number) << 1) ^ static_cast<std::uint32_t>(number >> 31);
}
inline std::int32_t unzigzag(std::uint32_t number) noexcept {
  return static_cast<std::int32_t>((number >> 1) ^ (0U - (number & 1)));
}

}  // namespace kob::persistence
