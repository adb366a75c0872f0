// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <algorithm>
#include <cstddef>
#include <unordered_set>
#include <vector>

namespace kob {

/// Remembers the objects of one walk, so that a chain that leads back into itself ends. Internal.
class MetBefore {
 public:
  /// Whether the object was asked about before.
  bool operator()(const void* object) {
    if (few_.size() < fewObjects) {
      if (std::find(few_.begin(), few_.end(), object) != few_.end()) {
        return true;
      }
      few_.push_back(object);
      return false;
    }
    if (many_.empty()) {
      many_.insert(few_.begin(), few_.end());
    }
    return !many_.insert(object).second;
  }

 private:
  /// Chains are short: so many are compared one by one before a hash set is made.
  static constexpr std::size_t fewObjects = 16;

  std::vector<const void*> few_;
  std::unordered_set<const void*> many_;
};

}  // namespace kob
