// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/persistence/PersistStream.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kob::persistence {

/// The objects met so far, numbered from 0 in the order in which they were met. They are kept alive, so that
/// no object is taken for another that had its address before.
class ObjectTable {
 public:
  ObjectTable();

  struct Found {
    std::uint32_t index;
    bool isNew;
  };
  Found add(const PersistRef& object);

  std::uint32_t count() const noexcept { return static_cast<std::uint32_t>(objects_.size()); }
  IKOBVBPersistStream& object(std::uint32_t index) const noexcept { return *objects_[index]; }

 private:
  std::size_t place(const IKOBVBPersistStream* object) const noexcept;
  void grow();

  std::vector<PersistRef> objects_;
  /// Open addressing: the number of an object and 1, or 0 for a free place; a power of two of places.
  std::vector<std::uint32_t> places_;
};

}  // namespace kob::persistence
