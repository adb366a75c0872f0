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

/// How many entries lie between the one that is fetched from memory, the one whose texts are fetched next,
/// and the one that is read.
constexpr std::size_t entriesAhead = 24;
constexpr std::size_t textsAhead = 12;

/// The same for the members of the runs that are put in order.
constexpr std::size_t runsAhead = 32;

/// The entries of a group lie far apart, each in a page of its own and its texts in another one. Finding the
/// first address of a page takes as long as a group is worked on, and the processor does little else
/// meanwhile, but finds several at a time. So a row of this many entries is found at once; the rest of their
/// texts follows one by one, as nobody waits for that.
constexpr std::size_t foundTogether = 128;
/// How far behind a group entries are found, and their texts fetched whole.
constexpr std::size_t foundAhead = 12;
constexpr std::size_t fetchedAhead = 6;

/// What the reference text of an entry needs, and at most its texts together, in bytes.
constexpr std::size_t usualReference = 64;
constexpr std::size_t usualTexts = 320;
/// What an allocator keeps of a run just before it, and reads when the run is given back, in bytes.
constexpr std::size_t allocatorsPart = 16;

/// All texts of an entry that may be given another run.
void fetchRun(const KOBTraductionObj& entry) noexcept {
  const TextList* const list = entry.heldTexts().get();
  const TextRun run = list != nullptr ? list->GetRun(list->Count()) : TextRun();
  if (run.size() > 0) {
    fetchUpTo<usualTexts>(reinterpret_cast<const char*>(run.units) - allocatorsPart,
                          run.ends.back() * sizeof(char16_t) + allocatorsPart);
  }
}

/// Of one hash, nearly all are spelled alike.
bool isSameText(TextView a, TextView b) noexcept {
  return sameUnits(a, b) || equalUpper(a, b);
}

}  // namespace

void SameTexts::add(KOBTraductionObj& entry) {
  entries_.push_back(&entry);
  fetch(&entry.heldTexts());
  const std::size_t count = entries_.size();
  if (count > entriesAhead - textsAhead) {
    fetchBytes(entries_[count - 1 - (entriesAhead - textsAhead)]->textUnits(), usualReference);
  }
  if (count > entriesAhead) {
    readNext();
  }
}

void SameTexts::readRest() {
  while (members_.size() < entries_.size()) {
    readNext();
  }
}

void SameTexts::readNext() {
  const std::size_t i = members_.size();
  const TextList& texts = textsOf(*entries_[i]);
  const bool hasGaps = texts.HasGaps(2, last_);
  members_.push_back({hashUpper(texts.Item(1)), static_cast<std::uint32_t>(i), hasGaps});
  anyGaps_ = anyGaps_ || hasGaps;
  anyShort_ = anyShort_ || texts.Count() < last_;
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
  const auto place = [this](std::size_t i) { return members_.begin() + static_cast<std::ptrdiff_t>(i); };
  std::stable_sort(place(start), place(end), [this](const Member& a, const Member& b) {
    return lessUpper(reference(a.number), reference(b.number));
  });
  for (std::size_t i = start; i < end; ++i) {
    if (!isSame(members_[i].number, members_[start].number)) {
      start = i;
    }
    start_[members_[i].number] = static_cast<std::uint32_t>(start);
  }
}

void SameTexts::orderRunsWithGaps() {
  sortByHash();
  const auto count = static_cast<std::uint32_t>(members_.size());
  // By the number of a run's first entry, as memory is best read in the order of the walk.
  start_.assign(count, count);
  for (std::uint32_t start = 0, end = 0; start < count; start = end) {
    bool hasGaps = false;
    for (end = start; end < count && members_[end].hash == members_[start].hash; ++end) {
      hasGaps = hasGaps || members_[end].hasGaps != 0;
    }
    if (hasGaps && end - start > 1) {
      start_[members_[start].number] = start;
    }
  }
  ordered_.reserve(count);
  for (std::uint32_t number = 0; number < count; ++number) {
    const std::uint32_t start = start_[number];
    if (count - number > runsAhead) {
      fetchBytes(members_.data() + start_[number + runsAhead], sizeof(Member));
    }
    for (std::uint32_t i = start; i < count && members_[i].hash == members_[start].hash; ++i) {
      ordered_.push_back(entries_[members_[i].number]);
    }
    if (start < count) {
      ends_.push_back(static_cast<std::uint32_t>(ordered_.size()));
    }
  }
}

void SameTexts::sortByText(std::size_t start, std::size_t end) {
  const auto place = [this](std::size_t i) { return ordered_.begin() + static_cast<std::ptrdiff_t>(i); };
  std::stable_sort(place(start), place(end), [](const KOBTraductionObj* a, const KOBTraductionObj* b) {
    return lessUpper(textsOf(*a).Item(1), textsOf(*b).Item(1));
  });
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

void SameTexts::fetchBehind(std::size_t end) noexcept {
  const auto upTo = [this](std::size_t number) { return std::min(number, ordered_.size()); };
  while (foundTexts_ < upTo(end + foundAhead)) {
    const std::size_t first = foundTexts_;
    // Those of the row after this one, too: where texts are is read from their entry.
    for (; foundEntries_ < upTo(first + 2 * foundTogether); ++foundEntries_) {
      fetch(&ordered_[foundEntries_]->heldTexts());
    }
    for (; foundTexts_ < upTo(first + foundTogether); ++foundTexts_) {
      fetchBytes(ordered_[foundTexts_]->textUnits(), sizeof(char16_t));
    }
  }
  for (; fetchedTexts_ < upTo(end + fetchedAhead); ++fetchedTexts_) {
    fetchRun(*ordered_[fetchedTexts_]);
  }
}

}  // namespace kob
