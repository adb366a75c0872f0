// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/Describing.h>
#include <kobpersistence/Format.h>
#include <kobpersistence/RecordCheck.h>
#include <kobpersistence/Units.h>

#include <algorithm>
#include <limits>

namespace kob::persistence {

bool takeLongVarint(const Byte*& from, const Byte* end, std::uint32_t& number) noexcept {
  number = 0;
  for (unsigned shift = 0; shift < 7 * longestVarint; shift += 7) {
    if (from == end) {
      return false;
    }
    const std::uint32_t next = *from++;
    if (shift == 28 && next > 0x0F) {
      return false;
    }
    number |= (next & 0x7F) << shift;
    if (next < 0x80) {
      return next != 0 || shift == 0;
    }
  }
  return false;
}

RecordCheck::RecordCheck(const Byte* file, std::uint32_t records, char16_t* block, std::uint64_t units)
    : file_(file), to_(block), blockEnd_(block + units), heights_(records) {}

void RecordCheck::wrong(const Byte* at, TextView what) const {
  throw badRecord(record_, static_cast<std::uint64_t>(at - file_), what);
}

void RecordCheck::check(std::uint32_t record, const Byte* from, const Byte* end) {
  record_ = record;
  lastUnits_ = 0;
  heights_[record] = 1;
  std::uint32_t units = 0;
  repeated_ = findRepeated(from, end, units);
  while (from != end) {
    from = takeShortTexts(from, end);
    while (end - from >= 2 && static_cast<Tag>(from[0]) == Tag::Long && from[1] < 0x80) {
      from += 2;
    }
    if (from != end) {
      from = checkValue(from, end);
    }
  }
  if (heights_[record] > deepestNesting) {
    throw tooDeep();
  }
  waiting_.push_back(record);
}

void RecordCheck::finish() const {
  if (waiting_.size() != 1) {
    wrong(file_, u"some of its records are named by no other");
  }
  if (to_ != blockEnd_) {
    wrong(file_ + at::units, u"the texts are shorter than the header says");
  }
}

inline const Byte* RecordCheck::takeShortTexts(const Byte* from, const Byte* end) noexcept {
  // Most bytes of a file are texts whose tag, length and units are a byte each.
  constexpr std::ptrdiff_t head = 2;
  char16_t* to = to_;
  std::size_t units = lastUnits_;
  while (end - from > head && static_cast<Tag>(from[0]) == Tag::NarrowText) {
    const std::size_t size = from[1];
    if (size - 1 >= longestShort || size > static_cast<std::size_t>(end - from - head) ||
        size > static_cast<std::size_t>(blockEnd_ - to)) {
      break;
    }
    widen(to, from + head, size);
    to += size;
    from += head + size;
    units = size;
  }
  to_ = to;
  lastUnits_ = units;
  return from;
}

inline const Byte* RecordCheck::checkValue(const Byte* from, const Byte* end) {
  const Byte* const tag = from++;
  std::uint32_t number = 0;
  switch (static_cast<Tag>(*tag)) {
    case Tag::NarrowText:
      return takeText(from, end, 1);
    case Tag::WideText:
      return takeText(from, end, 2);
    case Tag::SameText:
      if (tag != repeated_) {
        repeatText(tag);
      }
      lastUnits_ = 0;
      return from;
    case Tag::EmptyText:
      lastUnits_ = 0;
      return from;
    case Tag::Ones:
      if (from == end || *from == 0 || *from > mostOnes) {
        wrong(tag, u"a run of ones is empty or too long");
      }
      return from + 1;
    case Tag::NextObject:
      takeNextObject(tag);
      return from;
    case Tag::NumberedObject:
      return takeNumberedObject(from, end);
    case Tag::Nothing:
    case Tag::False:
    case Tag::True:
      return from;
    case Tag::Long:
    case Tag::SmallInteger:
      if (!takeVarint(from, end, number)) {
        wrong(tag, u"a number is cut short or too long");
      }
      if (static_cast<Tag>(*tag) == Tag::SmallInteger && number > std::numeric_limits<std::uint16_t>::max()) {
        wrong(tag, u"a small integer is too large");
      }
      return from;
    case Tag::Double:
      if (end - from < static_cast<std::ptrdiff_t>(sizeof(double))) {
        wrong(tag, u"a number is cut short");
      }
      return from + sizeof(double);
  }
  wrong(tag, u"a value has an unknown type");
}

void RecordCheck::checkRoom(std::uint64_t units, const Byte* at) const {
  if (units > static_cast<std::uint64_t>(blockEnd_ - to_)) {
    wrong(at, u"the texts are longer than the header says");
  }
}

const Byte* RecordCheck::takeText(const Byte* from, const Byte* end, std::uint32_t bytesPerUnit) {
  const Byte* const start = from;
  std::uint32_t units = 0;
  if (!takeVarint(from, end, units) || units == 0) {
    wrong(start, u"the length of a text is wrong");
  }
  const std::uint64_t bytes = std::uint64_t(units) * bytesPerUnit;
  if (bytes > static_cast<std::uint64_t>(end - from)) {
    wrong(start, u"a text is longer than its record");
  }
  checkRoom(units, start);
  if (bytesPerUnit == 1) {
    widen(to_, from, units);
  } else {
    loadUnits(to_, from, units);
  }
  to_ += units;
  lastUnits_ = units;
  return from + bytes;
}

void RecordCheck::repeatText(const Byte* at) {
  if (lastUnits_ == 0) {
    wrong(at, u"a text is to be repeated where there is none");
  }
  checkRoom(lastUnits_, at);
  to_ = std::copy(to_ - lastUnits_, to_, to_);
}

void RecordCheck::takeNextObject(const Byte* at) {
  if (waiting_.empty()) {
    wrong(at, u"an object is named that has no record");
  }
  const std::uint16_t height = heights_[waiting_.back()];
  waiting_.pop_back();
  heights_[record_] = std::max<std::uint16_t>(heights_[record_], height + 1);
}

const Byte* RecordCheck::takeNumberedObject(const Byte* from, const Byte* end) {
  const Byte* const start = from;
  std::uint32_t number = 0;
  // Only what comes later can be named, so nothing can contain itself.
  if (!takeVarint(from, end, number) || number <= record_ || number >= heights_.size()) {
    wrong(start, u"the number of an object is wrong");
  }
  shared_.push_back(number);
  heights_[record_] = std::max<std::uint16_t>(heights_[record_], heights_[number] + 1);
  return from;
}

std::vector<std::uint32_t> RecordCheck::shared() const {
  std::vector<std::uint32_t> numbers = shared_;
  std::sort(numbers.begin(), numbers.end());
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
  return numbers;
}

}  // namespace kob::persistence
