// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/LargePages.h>

#include <sys/mman.h>

#include <cstdint>

namespace kob::persistence {

namespace {

#if defined(MADV_HUGEPAGE)

constexpr std::uintptr_t largePage = std::uintptr_t{2} << 20;
constexpr std::uintptr_t smallPage = std::uintptr_t{4} << 10;

void expectUse(void* memory, std::size_t size) noexcept {
  // Whole large pages only: what lies beside the memory is not to grow. A page that all but belongs to it
  // counts.
  const auto start = reinterpret_cast<std::uintptr_t>(memory);
  const std::uintptr_t first = (start + largePage - 1) & ~(largePage - 1);
  const std::uintptr_t last = (start + size + smallPage - 1) & ~(largePage - 1);
  if (last > first) {
    // Only a hint: without large pages the memory comes in small ones.
    madvise(static_cast<char*>(memory) + (first - start), last - first, MADV_HUGEPAGE);
  }
}

#endif

}  // namespace

LargePages largePages() noexcept {
#if defined(MADV_HUGEPAGE)
  return {largePage, &expectUse};
#else
  return {};
#endif
}

}  // namespace kob::persistence
