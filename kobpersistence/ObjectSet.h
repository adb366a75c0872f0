// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace kob::persistence {

/// A set of addresses that were met. Objects that were made one after the other lie side by side, so a page
/// of addresses has one place in the table, with a bit for each address: the place is nearly always at hand.
class ObjectSet {
 public:
  ObjectSet();

  /// Whether the object was not met before. One that was not is taken for one that was when it lies within
  /// the same 16 bytes.
  bool add(const void* object);

 private:
  struct Page {
    /// 0: a free place.
    std::uintptr_t number = 0;
    std::array<std::uint64_t, 4> met = {};
  };

  /// The page's place, free when it has none yet.
  std::size_t find(std::uintptr_t number) const noexcept;
  void grow();

  /// Open addressing, at most half full; a power of two of places.
  std::vector<Page> pages_;
  std::size_t used_ = 0;
  /// The place that was used last.
  std::size_t last_ = 0;
};

}  // namespace kob::persistence
