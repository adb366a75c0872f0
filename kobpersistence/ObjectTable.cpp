// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/ObjectTable.h>

#include <bit>

namespace kob::persistence {

namespace {

constexpr std::size_t firstPlaces = 1024;

/// Places that lie on one line of the processor's cache, and that much memory for each.
constexpr std::size_t placesPerLine = 16;
constexpr unsigned memoryPerPlace = 5;
constexpr unsigned memoryPerLine = memoryPerPlace + 4;

/// Objects made one behind the other share a line, as they are met one behind the other; lines are spread
/// over the whole table.
std::size_t hash(const IKOBVBPersistStream* object) noexcept {
  const std::uint64_t address = std::bit_cast<std::uintptr_t>(object);
  const std::uint64_t line = ((address >> memoryPerLine) * 0x9E37'79B9'7F4A'7C15) >> 32;
  return static_cast<std::size_t>(line * placesPerLine + (address >> memoryPerPlace) % placesPerLine);
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
