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
  /// Which entry firstOf will most likely ask for.
  const KOBTraductionObj& likelyFirstOf(std::size_t number) const noexcept {
    return entry(members_[start_[number]].number);
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
