// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/ObjectSet.h>

#include <bit>

namespace kob::persistence {

namespace {

constexpr std::size_t firstPlaces = 1024;

}  // namespace

ObjectSet::ObjectSet() : places_(firstPlaces) {}

std::size_t ObjectSet::home(Address object) const noexcept {
  const std::uint64_t address = std::bit_cast<std::uintptr_t>(object);
  return static_cast<std::size_t>((address * 0x9E37'79B9'7F4A'7C15) >> 24) & (places_.size() - 1);
}

std::uint32_t ObjectSet::add(const PersistRef& object) {
  if (2 * (objects_.size() + 1) > places_.size()) {
    flush();
    grow();
  }
  if (waitingCount_ == waiting_.size()) {
    flush();
  }
  objects_.push_back(object);
  waiting_[waitingCount_++] = object.get();
  __builtin_prefetch(&places_[home(object.get())], 1);
  return static_cast<std::uint32_t>(objects_.size() - 1);
}

void ObjectSet::flush() {
  for (std::size_t i = 0; i < waitingCount_; ++i) {
    insert(waiting_[i]);
  }
  waitingCount_ = 0;
}

void ObjectSet::insert(Address object) noexcept {
  const std::size_t mask = places_.size() - 1;
  std::size_t at = home(object);
  while (places_[at] != nullptr && places_[at] != object) {
    at = (at + 1) & mask;
  }
  isEachNew_ = isEachNew_ && places_[at] == nullptr;
  places_[at] = object;
}

void ObjectSet::grow() {
  places_.assign(4 * places_.size(), nullptr);
  for (const PersistRef& object : objects_) {
    insert(object.get());
  }
}

}  // namespace kob::persistence
