// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/ObjectTable.h>

#include <bit>

namespace kob::persistence {

namespace {

constexpr std::size_t firstPlaces = 1024;

/// Objects made one behind the other lie side by side in the table, too, so that walking over them walks over
/// it; the upper bits of the address spread what would fall together.
std::size_t hash(const IKOBVBPersistStream* object) noexcept {
  const auto address = std::bit_cast<std::uintptr_t>(object);
  return (address >> 5) + (address >> 20) * 0x9E37'79B9;
}

}  // namespace

ObjectTable::ObjectTable() : places_(firstPlaces) {}

std::size_t ObjectTable::place(const IKOBVBPersistStream* object) const noexcept {
  const std::size_t mask = places_.size() - 1;
  std::size_t at = hash(object) & mask;
  while (places_[at] != 0 && objects_[places_[at] - 1].get() != object) {
    at = (at + 1) & mask;
  }
  return at;
}

ObjectTable::Found ObjectTable::add(const PersistRef& object) {
  if (2 * (objects_.size() + 1) > places_.size()) {
    grow();
  }
  std::uint32_t& number = places_[place(object.get())];
  if (number != 0) {
    return {number - 1, false};
  }
  objects_.push_back(object);
  number = count();
  return {number - 1, true};
}

void ObjectTable::grow() {
  places_.assign(2 * places_.size(), 0);
  for (std::uint32_t index = 0; index < count(); ++index) {
    places_[place(objects_[index].get())] = index + 1;
  }
}

}  // namespace kob::persistence
