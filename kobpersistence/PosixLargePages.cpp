// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/LargePages.h>

#include <sys/mman.h>

#include <cstdint>

namespace kob::persistence {

void expectUseOf(void* block, std::size_t size) noexcept {
#if defined(MADV_HUGEPAGE)
  constexpr std::uintptr_t largePage = std::uintptr_t{2} << 20;
  // What is smaller is likely to lie in memory that was used before, and comes without new pages.
  constexpr std::size_t smallest = 4 * largePage;
  // Whole large pages within the block only: what lies beside it is not to grow.
  const auto start = reinterpret_cast<std::uintptr_t>(block);
  const std::uintptr_t first = (start + largePage - 1) & ~(largePage - 1);
  const std::uintptr_t last = (start + size) & ~(largePage - 1);
  if (size >= smallest) {
    madvise(static_cast<char*>(block) + (first - start), last - first, MADV_HUGEPAGE);
  }
#else
  static_cast<void>(block);
  static_cast<void>(size);
#endif
}

}  // namespace kob::persistence
