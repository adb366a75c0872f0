// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <cstdint>
#include <vector>

namespace kob::persistence {

/// Which objects the record of each object names, in order; objects are numbered from 0, and 0 is the first.
struct NamingGraph {
  std::vector<std::uint32_t> named;
  /// Where in `named` each object's part begins; one more than there are objects.
  std::vector<std::uint32_t> begins = {0};

  std::uint32_t count() const noexcept { return static_cast<std::uint32_t>(begins.size()) - 1; }
};

/// An order of records in which each comes before those it names.
struct RecordOrder {
  /// The objects in the order of their records, and the other way round.
  std::vector<std::uint32_t> objects;
  std::vector<std::uint32_t> records;
  /// For each place in `named`: the object is named there as the next one, which happens once for each.
  std::vector<bool> isNext;
};

/// The order for objects some of which are named more than once; throws a PersistFailure for a cycle and for
/// too deep a nesting. For a tree it is each object directly before the first that it names.
RecordOrder orderOf(const NamingGraph& graph);

}  // namespace kob::persistence
