// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <cstddef>

namespace kob {

/// Tells the processor that this object is read soon; a large model does not fit into its caches. Any address
/// will do, null too. Internal.
template <class Object>
void fetch(const Object* object) noexcept {
#if defined(__GNUC__)
  constexpr std::size_t cacheLine = 64;
  const auto* const bytes = reinterpret_cast<const char*>(object);
  for (std::size_t offset = 0; offset < sizeof(Object); offset += cacheLine) {
    __builtin_prefetch(bytes + offset);
  }
  __builtin_prefetch(bytes + sizeof(Object) - 1);
#else
  static_cast<void>(object);
#endif
}

}  // namespace kob
