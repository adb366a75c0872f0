// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/ObjectSet.h>

#include <bit>
#include <utility>

namespace kob::persistence {

namespace {

constexpr std::size_t firstPages = 64;
/// Addresses that differ in their lowest bits only share a bit; 64 of these make a word, four words a page.
constexpr int bitShift = 4;
constexpr int wordShift = bitShift + 6;
constexpr int pageShift = wordShift + 2;
constexpr std::uintptr_t neighbours = 8;

}  // namespace

ObjectSet::ObjectSet() : pages_(firstPages) {}

bool ObjectSet::add(const void* object) {
  const auto address = std::bit_cast<std::uintptr_t>(object);
  const std::uintptr_t number = address >> pageShift;
  if (pages_[last_].number != number) {
    last_ = find(number);
    if (pages_[last_].number == 0) {
      if (2 * ++used_ > pages_.size()) {
        grow();
        last_ = find(number);
      }
      pages_[last_].number = number;
    }
  }
  std::uint64_t& met = pages_[last_].met[(address >> wordShift) % 4];
  const std::uint64_t bit = std::uint64_t(1) << ((address >> bitShift) % 64);
  const bool isNew = (met & bit) == 0;
  met |= bit;
  return isNew;
}

std::size_t ObjectSet::find(std::uintptr_t number) const noexcept {
  const std::size_t mask = pages_.size() - 1;
  // Neighbours have places side by side; beyond that, pages are spread over the whole table.
  const std::uint64_t spread = (std::uint64_t(number / neighbours) * 0x9E37'79B9'7F4A'7C15) >> 32;
  std::size_t at = static_cast<std::size_t>(spread * neighbours + number % neighbours) & mask;
  while (pages_[at].number != 0 && pages_[at].number != number) {
    at = (at + 1) & mask;
  }
  return at;
}

void ObjectSet::grow() {
  const std::vector<Page> old = std::exchange(pages_, std::vector<Page>(4 * pages_.size()));
  for (const Page& page : old) {
    if (page.number != 0) {
      pages_[find(page.number)] = page;
    }
  }
}

}  // namespace kob::persistence
