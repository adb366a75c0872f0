// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/persistence/PersistStream.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace kob::persistence {

/// Finds out whether an object was met before, a few objects later: in between, its place in the table is on
/// its way from memory. The objects are kept alive, so that none is taken for another one that had its
/// address before.
class ObjectSet {
 public:
  ObjectSet();

  /// Numbers the objects from 0 in the order of the calls, also one that was met before.
  std::uint32_t add(const PersistRef& object);
  IKOBVBPersistStream& object(std::uint32_t index) const noexcept { return *objects_[index]; }

  /// Whether each object was added once; says so for the latest ones after flush() only.
  bool isEachNew() const noexcept { return isEachNew_; }
  void flush();

 private:
  using Address = const IKOBVBPersistStream*;

  std::size_t home(Address object) const noexcept;
  void insert(Address object) noexcept;
  void grow();

  std::vector<PersistRef> objects_;
  /// Open addressing; a power of two of places.
  std::vector<Address> places_;
  std::array<Address, 16> waiting_ = {};
  std::size_t waitingCount_ = 0;
  bool isEachNew_ = true;
};

}  // namespace kob::persistence
