// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Fetch.h>
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

/// What the reference text and all texts of an entry need, in bytes.
constexpr std::size_t usualReference = 64;
constexpr std::size_t usualTexts = 320;

/// Of one hash, nearly all are spelled alike.
bool isSameText(TextView a, TextView b) noexcept {
  return sameUnits(a, b) || equalUpper(a, b);
}

}  // namespace

void SameTexts::read(std::int32_t last) {
  // An entry is found in memory before its texts are.
  constexpr std::size_t entriesAhead = 24;
  constexpr std::size_t textsAhead = 12;
  members_.reserve(entries_.size());
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    if (i + entriesAhead < entries_.size()) {
      fetch(entries_[i + entriesAhead]);
      fetchBytes(entries_[i + textsAhead]->textUnits(), usualReference);
    }
    const TextList& texts = textsOf(*entries_[i]);
    const bool hasGaps = texts.HasGaps(2, last);
    members_.push_back({hashUpper(texts.Item(1)), static_cast<std::uint32_t>(i), hasGaps});
    anyGaps_ = anyGaps_ || hasGaps;
    anyShort_ = anyShort_ || texts.Count() < last;
  }
}

void SameTexts::group() {
  sortByHash();
  start_.resize(members_.size());
  std::size_t start = 0;
  for (std::size_t i = 0; i < members_.size(); ++i) {
    if (members_[i].hash != members_[start].hash) {
      start = i;
    }
    start_[members_[i].number] = static_cast<std::uint32_t>(start);
  }
}

std::size_t SameTexts::firstOf(std::size_t number) {
  if (!isSame(number, members_[start_[number]].number)) {
    splitRun(start_[number]);
  }
  return members_[start_[number]].number;
}

TextView SameTexts::reference(std::size_t number) const {
  return textsOf(*entries_[number]).Item(1);
}

bool SameTexts::isSame(std::size_t a, std::size_t b) const {
  return a == b || equalUpper(reference(a), reference(b));
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

void SameTexts::splitRun(std::size_t start) {
  std::size_t end = start;
  while (end < members_.size() && start_[members_[end].number] == start) {
    ++end;
  }
  sortByText(start, end);
  for (std::size_t i = start; i < end; ++i) {
    if (!isSame(members_[i].number, members_[start].number)) {
      start = i;
    }
    start_[members_[i].number] = static_cast<std::uint32_t>(start);
  }
}

void SameTexts::sortByText(std::size_t start, std::size_t end) {
  const auto place = [this](std::size_t i) { return members_.begin() + static_cast<std::ptrdiff_t>(i); };
  std::stable_sort(place(start), place(end), [this](const Member& a, const Member& b) {
    return lessUpper(reference(a.number), reference(b.number));
  });
  for (std::size_t i = start; i < end && !ordered_.empty(); ++i) {
    ordered_[i] = entries_[members_[i].number];
  }
}

void SameTexts::orderEntries() {
  ordered_.resize(members_.size());
  for (std::size_t i = 0; i < members_.size(); ++i) {
    ordered_[i] = entries_[members_[i].number];
  }
}

std::size_t SameTexts::endOfSame(std::size_t start, std::size_t end) const {
  if (start == end) {
    return end;
  }
  const auto reference = [this](std::size_t member) { return textsOf(*ordered_[member]).Item(1); };
  const TextView text = reference(start);
  std::size_t next = start + 1;
  while (next < end && isSameText(text, reference(next))) {
    ++next;
  }
  return next;
}

bool SameTexts::isAlone(std::size_t member) const noexcept {
  const std::uint32_t hash = members_[member].hash;
  return (member == 0 || members_[member - 1].hash != hash) &&
         (member + 1 == members_.size() || members_[member + 1].hash != hash);
}

void SameTexts::fetchBehind(std::size_t end) noexcept {
  constexpr std::size_t entriesAhead = 24;
  constexpr std::size_t textsAhead = 12;
  for (const std::size_t last = std::min(end + entriesAhead, members_.size()); fetchedEntries_ < last;
       ++fetchedEntries_) {
    if (!isAlone(fetchedEntries_)) {
      fetch(ordered_[fetchedEntries_]);
    }
  }
  for (const std::size_t last = std::min(end + textsAhead, members_.size()); fetchedTexts_ < last;
       ++fetchedTexts_) {
    if (!isAlone(fetchedTexts_)) {
      fetchBytes(ordered_[fetchedTexts_]->textUnits(), usualTexts);
    }
  }
}

}  // namespace kob
