// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/model/EntryChanges.h>
#include <kobtraduction/model/TextList.h>

#include <algorithm>
#include <functional>
#include <new>
#include <utility>

namespace kob {

namespace {

void tellIfFirst(std::uint32_t item) noexcept {
  if (item == 0) {
    entriesChanged();
  }
}

}  // namespace

TextList::TextList() noexcept = default;

TextList::TextList(std::int32_t count) noexcept : TextList() {
  count_ = static_cast<std::uint32_t>(std::max(count, 0));
}

TextList::TextList(TextList&& other) noexcept : TextList() {
  entriesChanged();
  swap(other);
}

TextList& TextList::operator=(TextList&& other) noexcept {
  entriesChanged();
  swap(other);
  return *this;
}

void TextList::swap(TextList& other) noexcept {
  std::swap(units_, other.units_);
  std::swap(count_, other.count_);
  const std::uint32_t capacity = capacity_;
  capacity_ = other.capacity_;
  other.capacity_ = capacity;
  const std::uint32_t hasMoreEnds = hasMoreEnds_;
  hasMoreEnds_ = other.hasMoreEnds_;
  other.hasMoreEnds_ = hasMoreEnds;
  std::swap(ends_, other.ends_);
  image_.swap(other.image_);
}

TextList::~TextList() {
  if (capacity_ > 0) {
    delete[] units_;
  }
  if (hasMoreEnds_) {
    delete ends_.more;
  }
}

void TextList::setMoreEnds(std::unique_ptr<Ends> ends) noexcept {
  ends_.more = ends.release();
  hasMoreEnds_ = 1;
}

void TextList::makeEnds() {
  if (units_ != nullptr) {
    return;
  }
  if (hasMoreEnds_) {
    ends_.more->assign(count_, 0);
  } else if (count_ <= fewTexts) {
    std::fill(std::begin(ends_.few), std::end(ends_.few), 0);
  } else {
    setMoreEnds(std::make_unique<Ends>(count_, 0));
  }
}

void TextList::makeEndsAndRoom() {
  makeEnds();
  if (!hasMoreEnds_ && count_ == fewTexts) {
    auto ends = std::make_unique<Ends>();
    ends->reserve(fewTexts * 2);
    ends->assign(std::begin(ends_.few), std::end(ends_.few));
    setMoreEnds(std::move(ends));
  }
  if (hasMoreEnds_ && ends_.more->size() == ends_.more->capacity()) {
    ends_.more->reserve(ends_.more->size() * 2 + fewTexts);
  }
}

void TextList::insertEnd(std::uint32_t item, std::uint32_t end) noexcept {
  if (hasMoreEnds_) {
    ends_.more->insert(ends_.more->begin() + static_cast<std::ptrdiff_t>(item), end);
  } else {
    std::copy_backward(ends_.few + item, ends_.few + count_, ends_.few + count_ + 1);
    ends_.few[item] = end;
  }
  ++count_;
}

void TextList::moveEnds(std::uint32_t firstItem, std::uint32_t by) noexcept {
  // Unsigned, so that a text that becomes shorter moves the ends down.
  std::for_each(ends() + firstItem, ends() + count_, [by](std::uint32_t& end) { end += by; });
}

void TextList::splice(std::uint32_t first, std::uint32_t last, TextView text) {
  const std::uint32_t total = length();
  const std::size_t newTotal = std::size_t{total} - (last - first) + text.size();
  if (newTotal > longestRun) {
    throw std::bad_alloc();
  }
  const std::less<> isBefore;
  const bool isInside =
      capacity_ > 0 && !isBefore(text.data(), units_) && isBefore(text.data(), units_ + capacity_);
  if (newTotal <= capacity_ && !isInside) {
    auto* const own = const_cast<char16_t*>(units_);
    if (text.size() < last - first) {
      std::copy(own + last, own + total, own + first + text.size());
    } else {
      std::copy_backward(own + last, own + total, own + newTotal);
    }
    std::copy(text.begin(), text.end(), own + first);
    return;
  }
  // A list that grows by many texts makes room ahead; the usual few get what they need and no more.
  const std::size_t ahead = count_ > fewTexts ? newTotal / 2 : 0;
  const std::size_t capacity = std::clamp<std::size_t>(newTotal + ahead, 1, longestRun);
  auto own = std::make_unique<char16_t[]>(capacity);
  char16_t* end = std::copy(units_, units_ + first, own.get());
  end = std::copy(text.begin(), text.end(), end);
  std::copy(units_ + last, units_ + total, end);
  takeRun(std::move(own), capacity);
}

void TextList::takeRun(std::unique_ptr<char16_t[]> run, std::size_t capacity) noexcept {
  if (capacity_ > 0) {
    delete[] units_;
  }
  units_ = run.release();
  setCapacity(capacity);
  image_ = {};
}

void TextList::takeRun(const char16_t* run, ImageRef image) noexcept {
  if (capacity_ > 0) {
    delete[] units_;
  }
  units_ = run;
  setCapacity(0);
  image_ = std::move(image);
}

TextRun TextList::GetRun(std::int32_t most) const noexcept {
  const std::size_t count = units_ != nullptr ? std::clamp<std::int64_t>(most, 0, count_) : 0;
  return {units_, {ends(), count}};
}

void TextList::Add(TextView text) {
  if (units_ == nullptr && text.empty()) {
    ++count_;
    return;
  }
  makeEndsAndRoom();
  const std::uint32_t end = length();
  if (!text.empty()) {
    splice(end, end, text);
  }
  insertEnd(count_, end + static_cast<std::uint32_t>(text.size()));
}

void TextList::Add(TextView text, std::int32_t before) {
  const std::uint32_t item = index(before);
  tellIfFirst(item);
  if (units_ == nullptr && text.empty()) {
    ++count_;
    return;
  }
  makeEndsAndRoom();
  const std::uint32_t begin = start(item);
  const auto size = static_cast<std::uint32_t>(text.size());
  if (size > 0) {
    splice(begin, begin, text);
  }
  moveEnds(item, size);
  insertEnd(item, begin + size);
}

void TextList::Remove(std::int32_t position) {
  const std::uint32_t item = index(position);
  tellIfFirst(item);
  if (units_ != nullptr) {
    const std::uint32_t size = end(item) - start(item);
    if (size > 0) {
      splice(start(item), end(item), {});
    }
    moveEnds(item + 1, 0 - size);
    if (hasMoreEnds_) {
      ends_.more->erase(ends_.more->begin() + static_cast<std::ptrdiff_t>(item));
    } else {
      std::copy(ends_.few + item + 1, ends_.few + count_, ends_.few + item);
    }
  }
  --count_;
}

void TextList::Replace(std::int32_t position, TextView text) {
  const std::uint32_t item = index(position);
  if (units_ == nullptr && text.empty()) {
    return;
  }
  tellIfFirst(item);
  makeEnds();
  const std::uint32_t begin = start(item);
  const std::uint32_t old = units_ != nullptr ? end(item) : 0;
  splice(begin, old, text);
  moveEnds(item, static_cast<std::uint32_t>(text.size()) - (old - begin));
}

void TextList::AddEmpty(std::int32_t count) {
  for (; units_ != nullptr && count > 0; --count) {
    makeEndsAndRoom();
    insertEnd(count_, length());
  }
  count_ += static_cast<std::uint32_t>(std::max(count, 0));
}

void TextList::Clear() noexcept {
  if (units_ != nullptr || hasMoreEnds_ || image_) {
    *this = TextList();
    return;
  }
  entriesChanged();
  count_ = 0;
}

void TextList::AddView(TextView text) {
  const std::uint32_t end = length();
  const bool isFirst = units_ == nullptr;
  if (text.empty() || capacity_ > 0 || (!isFirst && units_ + end != text.data())) {
    Add(text);
    return;
  }
  makeEndsAndRoom();
  if (isFirst) {
    units_ = text.data();
  }
  insertEnd(count_, end + static_cast<std::uint32_t>(text.size()));
}

void TextList::AddViews(std::span<const TextView> texts) {
  std::size_t added = 0;
  if (count_ == 0 && capacity_ == 0 && !hasMoreEnds_ && !texts.empty() && !texts.front().empty()) {
    // What nearly all texts of a file are: few, and one behind the other.
    units_ = texts.front().data();
    std::uint32_t end = 0;
    for (; added < std::min<std::size_t>(texts.size(), fewTexts) && texts[added].data() == units_ + end;
         ++added) {
      end += static_cast<std::uint32_t>(texts[added].size());
      ends_.few[added] = end;
    }
    count_ = static_cast<std::uint32_t>(added);
  }
  for (const TextView text : texts.subspan(added)) {
    AddView(text);
  }
}

}  // namespace kob
