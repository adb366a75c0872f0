// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <cstddef>

namespace kob {

/// The large pages of a system, which come for a fraction of the cost of as many small ones.
struct LargePages {
  /// In bytes; 0 when there are none.
  std::size_t size = 0;
  /// Told of memory that is about to be used as a whole, and its size in bytes: what the system has yet to
  /// give of it comes in one go, in large pages as far as it fills some. Null when there are none.
  void (*expectUse)(void* memory, std::size_t size) noexcept = nullptr;
};

}  // namespace kob
