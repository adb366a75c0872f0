// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

namespace kob {

/// Tells the processor that what lies here is read soon; a large model does not fit into its caches. Any
/// address will do, null too. Internal.
inline void fetch(const void* address) noexcept {
#if defined(__GNUC__)
  constexpr int cacheLine = 64;
  __builtin_prefetch(address);
  __builtin_prefetch(static_cast<const char*>(address) + cacheLine);
#else
  static_cast<void>(address);
#endif
}

}  // namespace kob
