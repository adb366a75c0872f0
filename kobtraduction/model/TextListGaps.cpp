// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/model/EntryChanges.h>
#include <kobtraduction/model/TextList.h>

#include <algorithm>
#include <limits>
#include <new>

namespace kob {

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
    makeFilledRun(source, static_cast<std::uint32_t>(first) - 1, static_cast<std::uint32_t>(position) - 1,
                  growth);
  }
  if (fails) {
    throw Failure(FailureKind::InvalidIndex);
  }
  return remain;
}

void TextList::makeFilledRun(const TextList& source, std::uint32_t firstItem, std::uint32_t endItem,
                             std::size_t growth) {
  const std::size_t total = length() + growth;
  if (total > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max())) {
    throw std::bad_alloc();
  }
  auto run = std::make_unique_for_overwrite<char16_t[]>(total);
  if (units_ == nullptr) {
    makeEnds();
  }
  char16_t* written = run.get();
  std::uint32_t begin = 0;
  for (std::uint32_t item = 0; item < count_; ++item) {
    const std::uint32_t ownEnd = units_ != nullptr ? end(item) : 0;
    if (ownEnd != begin) {
      written = std::copy(units_ + begin, units_ + ownEnd, written);
    } else if (item >= firstItem && item < endItem) {
      const TextView text = source.Item(static_cast<std::int32_t>(item) + 1);
      written = std::copy(text.begin(), text.end(), written);
    }
    begin = ownEnd;
    ends()[item] = static_cast<std::uint32_t>(written - run.get());
  }
  if (capacity_ > 0) {
    delete[] units_;
  }
  units_ = run.release();
  capacity_ = static_cast<std::uint32_t>(total);
  image_ = nullptr;
}

}  // namespace kob
