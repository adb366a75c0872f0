// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/Describing.h>
#include <kobpersistence/Format.h>
#include <kobpersistence/RecordWriter.h>
#include <kobpersistence/Units.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

namespace kob::persistence {

namespace {

/// Before the values: length, class and version, which are known when the values are.
constexpr std::size_t mostHead = longestVarint + 1 + longestVarint;
constexpr Byte leastHead = 1 + 1 + 1;
/// Less room than this a record is not written to: few records would fit.
constexpr std::size_t leastRoom = 1024;
constexpr std::int32_t longestText = std::numeric_limits<std::int32_t>::max();
/// Units of a run that are narrowed together: few, as they go through a buffer.
constexpr std::size_t longestRun = 1024;
/// What may stand before the units of each of its texts: the tag and the length.
constexpr std::size_t mostBeforeUnits = 1 + 2;
/// Bytes of a text that are copied at once, which is most texts.
constexpr std::size_t copiedBlock = 64;
/// The longest value, without the units of a text.
constexpr std::size_t longestValue = 1 + sizeof(double);

Byte* storeTag(Byte* to, Tag tag) noexcept {
  *to = static_cast<Byte>(tag);
  return to + 1;
}

}  // namespace

RecordWriter::RecordWriter(NamedObjects& objects) : objects_(objects), capacity_(4096) {
  buffer_ = std::make_unique_for_overwrite<Byte[]>(capacity_);
  start_ = values_ = to_ = buffer_.get();
  limit_ = buffer_.get() + capacity_ - slack;
  heads_.fill(leastHead);
}

void RecordWriter::grow(std::size_t size) {
  const auto used = static_cast<std::size_t>(to_ - values_);
  const std::size_t needed = mostHead + used + size + slack;
  // In a buffer that is large enough the record does not lie yet.
  std::unique_ptr<Byte[]> before;
  if (needed > capacity_) {
    capacity_ = std::max(2 * capacity_, needed);
    before = std::exchange(buffer_, std::make_unique_for_overwrite<Byte[]>(capacity_));
  }
  Byte* const values = buffer_.get() + mostHead;
  std::copy(values_, to_, values);
  last_.begin = last_.size == 0 ? nullptr : values + (last_.begin - values_);
  values_ = values;
  to_ = values + used;
  limit_ = buffer_.get() + capacity_ - slack;
}

void RecordWriter::write(IKOBVBPersistStream& object, Byte classNumber, std::span<Byte> room) {
  const bool isInRoom = room.size() >= leastRoom;
  values_ = to_ = isInRoom ? room.data() + heads_[classNumber] : buffer_.get() + mostHead;
  limit_ = (isInRoom ? room.data() + room.size() : buffer_.get() + capacity_) - slack;
  ones_ = nullptr;
  last_ = {};
  units_ = 0;
  version_ = 0;
  object.write(*this);
  if (failure_ != nullptr) {
    std::rethrow_exception(failure_);
  }
  endRecord(classNumber);
}

void RecordWriter::endRecord(Byte classNumber) {
  const std::uint32_t version = zigzag(version_);
  const std::size_t size = 1 + varintSize(version) + static_cast<std::size_t>(to_ - values_);
  if (size > std::numeric_limits<std::uint32_t>::max()) {
    throw failure({u"One object needs more than 4 GB. Shorten its texts."});
  }
  const std::size_t head = varintSize(static_cast<std::uint32_t>(size)) + 1 + varintSize(version);
  const Byte expected = heads_[classNumber];
  if (head != expected) {
    // In room that was given the record begins where the room does.
    const std::ptrdiff_t step = static_cast<std::ptrdiff_t>(head) - expected;
    std::memmove(values_ + step, values_, static_cast<std::size_t>(to_ - values_));
    values_ += step;
    to_ += step;
    heads_[classNumber] = static_cast<Byte>(head);
  }
  start_ = values_ - head;
  Byte* const behindSize = storeVarint(start_, static_cast<std::uint32_t>(size));
  *behindSize = classNumber;
  storeVarint(behindSize + 1, version);
}

template <class Write>
void RecordWriter::guarded(Write write) {
  try {
    write();
  } catch (...) {
    if (failure_ == nullptr) {
      failure_ = std::current_exception();
    }
  }
}

void RecordWriter::WriteValue(const PersistValue& value) {
  // What records are full of takes the short way, which cannot fail.
  if (value.type() == PersistType::String) {
    if (writeShort(value.text())) {
      return;
    }
  } else if (ones_ != nullptr && value.type() == PersistType::SmallInteger && value.integer() == 1 &&
             *ones_ < mostOnes) {
    ++*ones_;
    return;
  } else if (value.type() == PersistType::Boolean && hasRoom(1)) {
    to_ = storeTag(to_, value.integer() != 0 ? Tag::True : Tag::False);
    ones_ = nullptr;
    return;
  }
  guarded([&] { writeAny(value); });
}

inline Byte* RecordWriter::endText(Byte* begin, Byte* end, Repeatable& last) noexcept {
  const auto size = static_cast<std::size_t>(end - begin);
  // Texts of one length mostly differ in their last unit, too.
  const bool isPerhapsSame = size == last.size && end[-1] == last.begin[size - 1];
  if (isPerhapsSame && std::equal(begin, end, last.begin)) {
    last.size = 0;
    return storeTag(begin, Tag::SameText);
  }
  last = {begin, size};
  return end;
}

void RecordWriter::WriteStrings(std::span<const TextView> texts) {
  TextView last;
  for (const TextView text : texts) {
    // A cell's name mostly is its alias, too: the very same units, which need not be looked at again.
    const bool isSame = !text.empty() && text.data() == last.data() && text.size() == last.size();
    if (isSame && last_.size > 0 && hasRoom(1)) {
      to_ = storeTag(to_, Tag::SameText);
      last_.size = 0;
      units_ += text.size();
    } else if (!writeShort(text)) {
      WriteValue(PersistValue::string(text));
    }
    last = text;
  }
}

void RecordWriter::WriteRun(const TextRun& texts) {
  if (texts.size() > 0 && !writeNarrow(texts)) {
    PersistStream::WriteRun(texts);
  }
}

bool RecordWriter::writeNarrow(const TextRun& texts) noexcept {
  const std::uint32_t units = texts.ends.back();
  if (units > longestRun || !hasRoom(units + texts.size() * mostBeforeUnits + copiedBlock)) {
    return false;
  }
  Byte bytes[longestRun + copiedBlock];
  if (!narrow(bytes, texts.units, units)) {
    return false;
  }
  // Kept apart from the writer's own, which a byte that is written might be for all that the compiler knows.
  Byte* to = to_;
  Repeatable last = last_;
  std::uint32_t begin = 0;
  for (const std::uint32_t end : texts.ends) {
    const std::uint32_t size = end - begin;
    if (size == 0) {
      to = storeTag(to, Tag::EmptyText);
      last.size = 0;
      continue;
    }
    Byte* const text = storeVarint(storeTag(to, Tag::NarrowText), size);
    // A whole block takes less than finding out how much of it is needed; what it has too much is written
    // over.
    std::memcpy(text, bytes + begin, copiedBlock);
    if (size > copiedBlock) {
      std::memcpy(text + copiedBlock, bytes + begin + copiedBlock, size - copiedBlock);
    }
    to = endText(to, text + size, last);
    begin = end;
  }
  to_ = to;
  last_ = last;
  ones_ = nullptr;
  units_ += units;
  return true;
}

bool RecordWriter::writeShort(TextView text) noexcept {
  // The tag, the length and the units are a byte each. No text at all is not for here.
  if (text.size() - 1 >= longestShort || !hasRoom(2 + longestShort) ||
      !narrow(to_ + 2, text.data(), text.size())) {
    return false;
  }
  to_[0] = static_cast<Byte>(Tag::NarrowText);
  to_[1] = static_cast<Byte>(text.size());
  units_ += text.size();
  ones_ = nullptr;
  to_ = endText(to_, to_ + 2 + text.size(), last_);
  return true;
}

void RecordWriter::WriteLongs(std::span<const std::int32_t> numbers) {
  if (!hasRoom(numbers.size() * longestValue)) {
    PersistStream::WriteLongs(numbers);
    return;
  }
  for (const std::int32_t number : numbers) {
    to_ = storeVarint(storeTag(to_, Tag::Long), zigzag(number));
    ones_ = nullptr;
  }
}

void RecordWriter::WriteOnes(std::int32_t count) {
  constexpr std::int32_t usual = 256;
  if (count > usual || !hasRoom(usual)) {
    PersistStream::WriteOnes(count);
    return;
  }
  while (count > 0) {
    if (ones_ == nullptr || *ones_ == mostOnes) {
      ones_ = storeTag(to_, Tag::Ones);
      *ones_ = 0;
      to_ = ones_ + 1;
    }
    const std::int32_t now = std::min<std::int32_t>(count, mostOnes - *ones_);
    *ones_ = static_cast<Byte>(*ones_ + now);
    count -= now;
  }
}

void RecordWriter::WriteKept(const KeptObject& object) {
  guarded([&] {
    ones_ = nullptr;
    reserve(longestValue);
    writeObject(object.get());
  });
}

void RecordWriter::writeAny(const PersistValue& value) {
  ones_ = nullptr;
  reserve(longestValue);
  switch (value.type()) {
    case PersistType::String:
      writeText(value.text());
      break;
    case PersistType::SmallInteger:
      if (value.integer() == 1) {
        ones_ = storeTag(to_, Tag::Ones);
        *ones_ = 1;
        to_ = ones_ + 1;
      } else {
        to_ = storeVarint(storeTag(to_, Tag::SmallInteger), zigzag(value.integer()));
      }
      break;
    case PersistType::Long:
      to_ = storeVarint(storeTag(to_, Tag::Long), zigzag(value.integer()));
      break;
    case PersistType::Double:
      to_ = storeTag(to_, Tag::Double);
      storeNumber(to_, std::bit_cast<std::uint64_t>(value.number()));
      to_ += sizeof(double);
      break;
    case PersistType::Boolean:
      to_ = storeTag(to_, value.integer() != 0 ? Tag::True : Tag::False);
      break;
    case PersistType::Object:
      if (value.object() != nullptr) {
        objects_.keep(value.object());
      }
      writeObject(value.object().get());
      break;
  }
}

void RecordWriter::writeText(TextView text) {
  if (text.size() > std::size_t(longestText)) {
    throw failure({u"A text is longer than ", decimal(longestText), u" characters. Shorten it."});
  }
  if (text.empty()) {
    to_ = storeTag(to_, Tag::EmptyText);
    last_.size = 0;
    return;
  }
  reserve(longestValue + 2 * text.size());
  Byte* const units = storeVarint(to_ + 1, static_cast<std::uint32_t>(text.size()));
  if (narrow(units, text.data(), text.size())) {
    *to_ = static_cast<Byte>(Tag::NarrowText);
    to_ = endText(to_, units + text.size(), last_);
  } else {
    *to_ = static_cast<Byte>(Tag::WideText);
    storeUnits(units, text.data(), text.size());
    to_ = endText(to_, units + 2 * text.size(), last_);
  }
  units_ += text.size();
}

void RecordWriter::writeObject(IKOBVBPersistStream* object) {
  if (object == nullptr) {
    to_ = storeTag(to_, Tag::Nothing);
    return;
  }
  const ObjectForm form = objects_.name(*object);
  to_ = form.isNext ? storeTag(to_, Tag::NextObject)
                    : storeVarint(storeTag(to_, Tag::NumberedObject), form.number);
}

const PersistValue& RecordWriter::ReadValue() {
  throw failure({u"A record that is being written cannot be read."});
}

}  // namespace kob::persistence
