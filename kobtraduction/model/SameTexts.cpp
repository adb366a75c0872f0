// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/model/Entries.h>
#include <kobtraduction/model/SameTexts.h>

#include <algorithm>
#include <array>
#include <utility>

namespace kob {

namespace {

/// The hash is sorted by so many bits at a time.
constexpr unsigned digitBits = 11;
constexpr unsigned hashBits = 32;
constexpr std::size_t digits = std::size_t{1} << digitBits;

}  // namespace

void SameTexts::add(KOBTraductionObj& entry, TextView reference, bool isWanted) {
  members_.push_back({hashUpper(reference), static_cast<std::uint32_t>(entries_.size())});
  entries_.push_back(&entry);
  isWanted_.push_back(isWanted);
}

void SameTexts::group() {
  sortByHash();
  start_.resize(members_.size());
  for (auto first = members_.begin(); first != members_.end();) {
    bool isAnyWanted = false;
    auto last = first;
    for (; last != members_.end() && last->hash == first->hash; ++last) {
      start_[last->number] = static_cast<std::uint32_t>(first - members_.begin());
      isAnyWanted = isAnyWanted || isWanted_[last->number];
    }
    if (isAnyWanted && last - first > 1) {
      makeGroups(first, last);
    }
    first = last;
  }
}

TextView SameTexts::reference(const Member& member) const {
  return textsOf(*entries_[member.number]).Item(1);
}

void SameTexts::sortByHash() {
  std::vector<Member> sorted(members_.size());
  for (unsigned shift = 0; shift < hashBits; shift += digitBits) {
    const auto digit = [shift](const Member& member) { return (member.hash >> shift) & (digits - 1); };
    std::array<std::uint32_t, digits> next{};
    for (const Member& member : members_) {
      ++next[digit(member)];
    }
    std::uint32_t before = 0;
    for (std::uint32_t& place : next) {
      before += std::exchange(place, before);
    }
    for (const Member& member : members_) {
      sorted[next[digit(member)]++] = member;
    }
    members_.swap(sorted);
  }
}

void SameTexts::makeGroups(Place first, Place last) {
  const TextView text = reference(*first);
  const auto isSame = [&](const Member& member) { return equalUpper(reference(member), text); };
  if (std::all_of(first + 1, last, isSame)) {
    return;
  }
  // Different texts of one hash.
  std::stable_sort(first, last, [this](const Member& a, const Member& b) {
    return lessUpper(reference(a), reference(b));
  });
  for (auto groupStart = first, member = first; member != last; ++member) {
    if (!equalUpper(reference(*member), reference(*groupStart))) {
      groupStart = member;
    }
    start_[member->number] = static_cast<std::uint32_t>(groupStart - members_.begin());
  }
}

}  // namespace kob
