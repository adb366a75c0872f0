// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <algorithm>
#include <cstddef>

namespace kob {

/// Tells the processor that so many bytes are read soon; a large model does not fit into its caches. Any
/// address will do, null too. Internal.
inline void fetchBytes(const void* address, std::size_t size) noexcept {
#if defined(__GNUC__)
  // Without this the compiler takes the function for one that does nothing, and leaves its calls out.
  asm volatile("" : : "r"(address));
  if (address == nullptr) {
    return;
  }
  constexpr std::size_t cacheLine = 64;
  const auto* const bytes = static_cast<const char*>(address);
  for (std::size_t offset = 0; offset < size; offset += cacheLine) {
    __builtin_prefetch(bytes + offset);
  }
  __builtin_prefetch(bytes + size - 1);
#else
  static_cast<void>(address);
  static_cast<void>(size);
#endif
}

/// The same for no more than `most` bytes. Nothing is decided by the size: where it changes from call to
/// call, the processor would guess wrong.
template <std::size_t most>
void fetchUpTo(const void* address, std::size_t size) noexcept {
#if defined(__GNUC__)
  asm volatile("" : : "r"(address));
  if (address == nullptr || size == 0) {
    return;
  }
  constexpr std::size_t cacheLine = 64;
  const auto* const bytes = static_cast<const char*>(address);
  for (std::size_t offset = 0; offset < most; offset += cacheLine) {
    __builtin_prefetch(bytes + std::min(offset, size - 1));
  }
  __builtin_prefetch(bytes + std::min(most, size) - 1);
#else
  static_cast<void>(address);
  static_cast<void>(size);
#endif
}

/// fetchBytes() for an object.
template <class Object>
void fetch(const Object* object) noexcept {
  fetchBytes(object, sizeof(Object));
}

}  // namespace kob
