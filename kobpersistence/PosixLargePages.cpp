// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/LargePages.h>

#include <sys/mman.h>

#include <cstdint>

namespace kob::persistence {

namespace {

#if defined(MADV_HUGEPAGE)

constexpr std::uintptr_t largePage = std::uintptr_t{2} << 20;
constexpr std::uintptr_t smallPage = std::uintptr_t{4} << 10;
/// From this size on one call costs less than being given page after page.
constexpr std::size_t leastAtOnce = std::size_t{32} << 10;
/// More than this is not asked for in large pages. A virtual machine gives back to its host what has long
/// been free, large pages first, and waits for each that it needs again: very many took more time to come
/// than they saved.
constexpr std::size_t mostInLargePages = std::size_t{64} << 20;

std::uintptr_t roundUp(std::uintptr_t address, std::uintptr_t page) noexcept {
  return (address + page - 1) & ~(page - 1);
}

// Hints, both: without large pages the memory comes in small ones, and at the latest when it is touched.

void askForAll(void* memory, std::size_t size) noexcept {
#if defined(MADV_POPULATE_WRITE)
  if (size >= leastAtOnce) {
    const auto start = reinterpret_cast<std::uintptr_t>(memory);
    const std::uintptr_t page = start & ~(smallPage - 1);
    madvise(static_cast<char*>(memory) - (start - page), roundUp(start + size, smallPage) - page,
            MADV_POPULATE_WRITE);
  }
#else
  static_cast<void>(memory);
  static_cast<void>(size);
#endif
}

void askForLarge(void* memory, std::size_t size) noexcept {
  // Whole large pages only: what lies beside the memory is not to grow. A page that all but belongs to it
  // counts.
  const auto start = reinterpret_cast<std::uintptr_t>(memory);
  const std::uintptr_t first = roundUp(start, largePage);
  const std::uintptr_t last = (start + size + smallPage - 1) & ~(largePage - 1);
  if (last > first) {
    madvise(static_cast<char*>(memory) + (first - start), last - first, MADV_HUGEPAGE);
  }
  askForAll(memory, size);
}

#endif

}  // namespace

LargePages largePages(std::size_t all) noexcept {
#if defined(MADV_HUGEPAGE)
  return {largePage, all <= mostInLargePages ? &askForLarge : &askForAll};
#else
  static_cast<void>(all);
  return {};
#endif
}

}  // namespace kob::persistence
