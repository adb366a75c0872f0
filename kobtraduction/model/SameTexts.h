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
/// a text. Entries are numbered from 0 as they are added, the same one anew each time. First all are added
/// and read, then grouped; reference texts must not change meanwhile. Internal.
class SameTexts {
 public:
  /// A gap is a missing text from language 2 to `last`.
  explicit SameTexts(std::int32_t last) : last_(last) {}

  /// Adds an entry, and reads one that was added some time before: its reference text, and whether it has
  /// gaps. An entry without a list fails with ObjectNotSet, one without a reference text with InvalidIndex.
  void add(KOBTraductionObj& entry);
  /// Reads the entries that are not read yet; fails in the same way.
  void readRest();
  std::size_t count() const noexcept { return entries_.size(); }
  KOBTraductionObj& entry(std::size_t number) const noexcept { return *entries_[number]; }

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
  /// entries in order, as a span of pointers. Groups come in the order of their first entries, those of one
  /// hash together, their entries fetched from memory ahead.
  template <class Complete>
  void eachWithGaps(Complete&& complete) {
    orderRunsWithGaps();
    std::size_t start = 0;
    for (const std::size_t end : ends_) {
      fetchBehind(end);
      std::size_t next = endOfSame(start, end);
      if (next < end) {
        sortByText(start, end);
        next = endOfSame(start, end);
      }
      for (; start < end; start = std::exchange(next, endOfSame(next, end))) {
        complete(std::span<KOBTraductionObj* const>(ordered_).subspan(start, next - start));
      }
    }
  }

 private:
  struct Member {
    std::uint32_t hash;
    std::uint32_t number : 31;
    std::uint32_t hasGaps : 1;
  };

  void readNext();
  TextView reference(std::size_t number) const;
  bool isSame(std::size_t a, std::size_t b) const;
  void sortByHash();
  void splitRun(std::size_t start);
  /// The entries of each hash that two or more have, of which one has gaps.
  void orderRunsWithGaps();
  void sortByText(std::size_t start, std::size_t end);
  /// Where, at `end` at the latest, entries follow whose text is another one than that at `start`.
  std::size_t endOfSame(std::size_t start, std::size_t end) const;
  /// Fetches what lies some places behind `end`: where texts begin, and the texts of those that are not as
  /// far.
  void fetchBehind(std::size_t end) noexcept;

  std::int32_t last_;
  std::vector<KOBTraductionObj*> entries_;
  bool anyGaps_ = false;
  bool anyShort_ = false;
  /// Of the entries that are read; once grouped, the members of a group side by side, in the order of their
  /// numbers.
  std::vector<Member> members_;
  /// The entries that are completed, those of one hash side by side, and where each of these runs ends; how
  /// many entries are found in memory, of how many the texts are, and of how many these are fetched.
  std::vector<KOBTraductionObj*> ordered_;
  std::vector<std::uint32_t> ends_;
  std::size_t foundEntries_ = 0;
  std::size_t foundTexts_ = 0;
  std::size_t fetchedTexts_ = 0;
  /// By an entry's number: where its group starts among the members. A group may be several of one hash until
  /// their texts are compared, which is done when they are asked for: nearly always it is one.
  std::vector<std::uint32_t> start_;
};

}  // namespace kob
