// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/model/EntryChanges.h>
#include <kobtraduction/model/TextList.h>

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

namespace kob {

std::size_t TextList::lengthWith(std::size_t growth) const {
  const std::size_t total = length() + growth;
  if (total > longestRun) {
    throw std::bad_alloc();
  }
  return total;
}

template <class TextFor>
void TextList::writeFilled(char16_t* run, TextFor textFor) {
  makeEnds();
  std::uint32_t* const ownEnds = ends();
  char16_t* written = run;
  // Texts between two gaps are copied together, when the second one is reached.
  std::uint32_t copied = 0;
  std::uint32_t begin = 0;
  for (std::uint32_t item = 0; item < count_; ++item) {
    const TextView text = ownEnds[item] == begin ? textFor(item) : TextView();
    begin = ownEnds[item];
    if (!text.empty()) {
      written = std::copy(units_ + copied, units_ + begin, written);
      copied = begin;
      written = std::copy(text.begin(), text.end(), written);
    }
    ownEnds[item] = static_cast<std::uint32_t>(written - run) + (begin - copied);
  }
  std::copy(units_ + copied, units_ + begin, written);
}

bool TextList::HasGaps(std::int32_t first, std::int32_t last) const noexcept {
  if (first > last) {
    return false;
  }
  if (Count() < last) {
    return true;
  }
  if (units_ == nullptr) {
    return true;
  }
  // Where gaps are is anybody's guess, the processor's too: looking at all texts takes less than stopping.
  bool found = false;
  std::uint32_t begin = start(static_cast<std::uint32_t>(first) - 1);
  for (const std::uint32_t end : std::span(ends() + first - 1, ends() + last)) {
    found |= end == begin;
    begin = end;
  }
  return found;
}

bool TextList::FillGaps(const TextList& source, std::int32_t first, std::int32_t last) {
  std::size_t growth = 0;
  bool remain = false;
  bool fails = false;
  std::int32_t position = first;
  for (; position <= last; ++position) {
    if (position < 1 || position > Count()) {
      fails = true;
      break;
    }
    if (!Item(position).empty()) {
      continue;
    }
    if (position > source.Count()) {
      fails = true;
      break;
    }
    const std::size_t size = source.Item(position).size();
    growth += size;
    remain = remain || size == 0;
  }
  if (growth > 0 && first == 1) {
    entriesChanged();
  }
  if (growth > 0) {
    const auto firstItem = static_cast<std::uint32_t>(first) - 1;
    const auto endItem = static_cast<std::uint32_t>(position) - 1;
    const std::size_t total = lengthWith(growth);
    auto run = std::make_unique_for_overwrite<char16_t[]>(total);
    writeFilled(run.get(), [&](std::uint32_t item) {
      return item >= firstItem && item < endItem ? source.Item(static_cast<std::int32_t>(item) + 1)
                                                 : TextView();
    });
    takeRun(std::move(run), total);
  }
  if (fails) {
    throw Failure(FailureKind::InvalidIndex);
  }
  return remain;
}

std::size_t TextList::OfferTexts(std::span<TextView> texts) const noexcept {
  if (units_ == nullptr) {
    return texts.size();
  }
  const std::uint32_t* const ownEnds = ends();
  std::uint32_t begin = start(1);
  std::size_t missing = 0;
  for (std::size_t item = 1; item < texts.size(); ++item) {
    const std::uint32_t end = ownEnds[item];
    if (texts[item].empty()) {
      texts[item] = TextView(units_ + begin, end - begin);
      missing += end == begin ? 1 : 0;
    }
    begin = end;
  }
  return missing;
}

bool TextList::isFilledLike(const TextList& other, std::span<const TextView> texts) const noexcept {
  if (count_ != other.count_) {
    return false;
  }
  for (std::uint32_t item = 0; item < count_; ++item) {
    const TextView own = units_ != nullptr ? text(item) : TextView();
    if (!sameUnits(own.empty() && item < texts.size() ? texts[item] : own, other.text(item))) {
      return false;
    }
  }
  return true;
}

bool TextList::FillGaps(std::span<const TextView> texts, const TextList* like) {
  std::size_t growth = 0;
  const std::uint32_t* const ownEnds = units_ != nullptr ? ends() : nullptr;
  std::uint32_t begin = 0;
  for (std::uint32_t item = 0; item < texts.size(); ++item) {
    const std::uint32_t end = ownEnds != nullptr ? ownEnds[item] : 0;
    growth += end == begin ? texts[item].size() : 0;
    begin = end;
  }
  if (growth == 0) {
    return false;
  }
  if (like != nullptr && isFilledLike(*like, texts)) {
    makeEnds();
    std::copy(like->ends(), like->ends() + count_, ends());
    takeRun(like->units_, like->image_);
    return false;
  }
  ImageRef image;
  auto* const run = static_cast<char16_t*>(image.makeRoom(lengthWith(growth) * sizeof(char16_t)));
  writeFilled(run, [&](std::uint32_t item) { return item < texts.size() ? texts[item] : TextView(); });
  takeRun(run, std::move(image));
  return true;
}

}  // namespace kob
