// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBTraductionObj.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kob {

/// Entries grouped by their reference texts, case ignored, in time linear in their number and without copying
/// a text. Entries are numbered from 0 as they are added, the same one anew each time; reference texts must
/// not change meanwhile. Internal.
class SameTexts {
 public:
  void add(KOBTraductionObj& entry, TextView reference);
  std::size_t count() const noexcept { return entries_.size(); }
  KOBTraductionObj& entry(std::size_t number) const noexcept { return *entries_[number]; }

  /// Makes the groups, once everything is added.
  void group();
  /// The first entry of an entry's group.
  std::size_t firstOf(std::size_t number);
  /// Calls visit(entry) for the group of its first entry, in order, until that returns false. An entry may be
  /// visited again.
  template <class Visit>
  void eachOf(std::size_t first, Visit&& visit) {
    for (std::size_t i = start_[first]; i < members_.size() && start_[members_[i].number] == start_[first];
         ++i) {
      const std::size_t number = members_[i].number;
      if (!isSame(first, number)) {
        splitRun(start_[first]);
        i = start_[first];
      }
      if (!visit(entry(members_[i].number))) {
        return;
      }
    }
  }
  /// Which other entry of its group an entry has most likely to do with: the first, or for the first one the
  /// second. Itself when there is none.
  const KOBTraductionObj& likelyOther(std::size_t number) const noexcept {
    const std::size_t start = start_[number];
    if (members_[start].number != number) {
      return entry(members_[start].number);
    }
    const bool hasSecond = start + 1 < members_.size() && members_[start + 1].hash == members_[start].hash;
    return entry(hasSecond ? members_[start + 1].number : number);
  }

 private:
  struct Member {
    std::uint32_t hash;
    std::uint32_t number;
  };

  TextView reference(std::size_t number) const;
  bool isSame(std::size_t a, std::size_t b) const;
  void sortByHash();
  void splitRun(std::size_t start);

  std::vector<KOBTraductionObj*> entries_;
  /// Once grouped: the members of a group side by side, in the order of their numbers.
  std::vector<Member> members_;
  /// By an entry's number: where its group starts among the members. A group may be several of one hash until
  /// their texts are compared, which is done when they are asked for: nearly always it is one.
  std::vector<std::uint32_t> start_;
};

}  // namespace kob
