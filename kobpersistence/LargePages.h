// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/LargePages.h>

#include <cstddef>
#include <memory>
#include <new>

namespace kob::persistence {

/// Those of this system for what needs so many bytes in all; very much may come in small ones. Defined per
/// system.
LargePages largePages(std::size_t all) noexcept;

/// Gives back what makeLarge() made.
struct FreeLarge {
  std::align_val_t alignment{};
  void operator()(void* memory) const noexcept { ::operator delete(memory, alignment); }
};
template <class T>
using LargeArray = std::unique_ptr<T[], FreeLarge>;

/// Memory that is about to be used as a whole, in large pages as far as it fills them. Throws std::bad_alloc.
std::unique_ptr<void, FreeLarge> allocateLarge(std::size_t size);

/// An array of so many numbers, uninitialised, in such memory.
template <class T>
LargeArray<T> makeLarge(std::size_t count) {
  auto memory = allocateLarge(count * sizeof(T));
  const FreeLarge free = memory.get_deleter();
  return LargeArray<T>(static_cast<T*>(memory.release()), free);
}

/// So many bytes, and as many more as fill the last large page when there are some: for what goes soon.
std::size_t inWholePages(std::size_t size) noexcept;

}  // namespace kob::persistence
