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
  /// Only of groups with an entry that is `wanted` anything may be asked later.
  void add(KOBTraductionObj& entry, TextView reference, bool isWanted);
  std::size_t count() const noexcept { return entries_.size(); }
  KOBTraductionObj& entry(std::size_t number) const noexcept { return *entries_[number]; }
  bool isWanted(std::size_t number) const noexcept { return isWanted_[number]; }

  /// Makes the groups, once everything is added.
  void group();
  /// The first entry of the group that a wanted one is in.
  std::size_t firstOf(std::size_t number) const noexcept { return members_[start_[number]].number; }
  /// Calls visit(entry) for the whole group of its first entry, in order, until that returns false.
  template <class Visit>
  void eachOf(std::size_t first, Visit&& visit) const {
    const std::uint32_t start = start_[first];
    for (std::size_t i = start; i < members_.size() && start_[members_[i].number] == start; ++i) {
      if (!visit(entry(members_[i].number))) {
        return;
      }
    }
  }

 private:
  struct Member {
    std::uint32_t hash;
    std::uint32_t number;
  };
  using Place = std::vector<Member>::iterator;

  TextView reference(const Member& member) const;
  void sortByHash();
  void makeGroups(Place first, Place last);

  std::vector<KOBTraductionObj*> entries_;
  std::vector<bool> isWanted_;
  /// Once grouped: the members of a group side by side, in the order of their numbers.
  std::vector<Member> members_;
  /// By an entry's number: where its group starts among the members.
  std::vector<std::uint32_t> start_;
};

}  // namespace kob
