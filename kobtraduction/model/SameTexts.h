// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBTraductionObj.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace kob {

/// Entries grouped by their reference texts, case ignored, in time linear in their number and without copying
/// a text. Entries are numbered from 0 as they are added, the same one anew each time. First all are added,
/// then they are read, then grouped; reference texts must not change meanwhile. Internal.
class SameTexts {
 public:
  void add(KOBTraductionObj& entry) { entries_.push_back(&entry); }
  std::size_t count() const noexcept { return entries_.size(); }
  KOBTraductionObj& entry(std::size_t number) const noexcept { return *entries_[number]; }

  /// Reads the reference texts, and sees where a text is missing from language 2 to `last`. An entry without
  /// a list fails with ObjectNotSet, one without a reference text with InvalidIndex.
  void read(std::int32_t last);
  /// Whether an entry has a gap or not even an item in a language / not even an item.
  bool anyGaps() const noexcept { return anyGaps_; }
  bool anyShort() const noexcept { return anyShort_; }

  /// Makes the groups.
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
  /// Makes the groups, and calls complete(group) for each of two entries or more of which one has gaps: its
  /// entries in order, as a span of pointers. Groups come in any order, their entries fetched from memory
  /// ahead.
  template <class Complete>
  void eachWithGaps(Complete&& complete) {
    sortByHash();
    orderEntries();
    for (std::size_t start = 0, end = 0; start < members_.size(); start = end) {
      bool hasGaps = false;
      for (end = start; end < members_.size() && members_[end].hash == members_[start].hash; ++end) {
        hasGaps = hasGaps || members_[end].hasGaps != 0;
      }
      if (!hasGaps || end - start < 2) {
        continue;
      }
      fetchBehind(end);
      std::size_t next = endOfSame(start, end);
      if (next < end) {
        sortByText(start, end);
        next = endOfSame(start, end);
      }
      for (std::size_t from = start; from < end; from = std::exchange(next, endOfSame(next, end))) {
        complete(std::span<KOBTraductionObj* const>(ordered_).subspan(from, next - from));
      }
    }
  }

 private:
  struct Member {
    std::uint32_t hash;
    std::uint32_t number : 31;
    std::uint32_t hasGaps : 1;
  };

  TextView reference(std::size_t number) const;
  bool isSame(std::size_t a, std::size_t b) const;
  void sortByHash();
  void splitRun(std::size_t start);
  void sortByText(std::size_t start, std::size_t end);
  void orderEntries();
  /// Where, at `end` at the latest, entries follow whose text is another one than that at `start`.
  std::size_t endOfSame(std::size_t start, std::size_t end) const;
  /// Fetches the entries some places behind `end`, and the texts of those that are not as far behind.
  void fetchBehind(std::size_t end) noexcept;
  bool isAlone(std::size_t member) const noexcept;

  std::vector<KOBTraductionObj*> entries_;
  bool anyGaps_ = false;
  bool anyShort_ = false;
  /// Once grouped: the members of a group side by side, in the order of their numbers.
  std::vector<Member> members_;
  /// The entries of the members, and how far these and their texts are fetched.
  std::vector<KOBTraductionObj*> ordered_;
  std::size_t fetchedEntries_ = 0;
  std::size_t fetchedTexts_ = 0;
  /// By an entry's number: where its group starts among the members. A group may be several of one hash until
  /// their texts are compared, which is done when they are asked for: nearly always it is one.
  std::vector<std::uint32_t> start_;
};

}  // namespace kob
