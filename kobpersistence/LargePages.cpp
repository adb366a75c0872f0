// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/LargePages.h>

namespace kob::persistence {

std::unique_ptr<void, FreeLarge> allocateLarge(std::size_t size) {
  const LargePages pages = largePages(size);
  const bool isLarge = pages.size != 0 && size >= pages.size;
  const FreeLarge free{std::align_val_t{isLarge ? pages.size : alignof(std::max_align_t)}};
  std::unique_ptr<void, FreeLarge> memory(::operator new(size, free.alignment), free);
  if (pages.expectUse != nullptr) {
    pages.expectUse(memory.get(), size);
  }
  return memory;
}

std::size_t inWholePages(std::size_t size) noexcept {
  const std::size_t page = largePages(size).size;
  // A page that is used by less than a half is not worth it.
  return page == 0 || 2 * size < page ? size : (size + page - 1) / page * page;
}

}  // namespace kob::persistence
