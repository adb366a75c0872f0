// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/Describing.h>
#include <kobpersistence/Format.h>
#include <kobpersistence/RecordWriter.h>
#include <kobpersistence/Units.h>

#include <algorithm>
#include <limits>

namespace kob::persistence {

namespace {

/// Before the values: length, class and version, which are known when the values are.
constexpr std::size_t mostHead = longestVarint + 1 + longestVarint;
constexpr std::int32_t longestText = std::numeric_limits<std::int32_t>::max();
/// Units of several texts that are looked at together: few, as one of them may turn out to be wide.
constexpr std::size_t longestRun = 512;
/// The longest value, without the units of a text.
constexpr std::size_t longestValue = 1 + sizeof(double);

Byte* storeTag(Byte* to, Tag tag) noexcept {
  *to = static_cast<Byte>(tag);
  return to + 1;
}

}  // namespace

RecordWriter::RecordWriter(NamedObjects& objects) : objects_(objects), capacity_(4096) {
  buffer_ = std::make_unique_for_overwrite<Byte[]>(capacity_);
  start_ = to_ = buffer_.get();
  limit_ = buffer_.get() + capacity_ - slack;
}

void RecordWriter::grow(std::size_t size) {
  const auto used = static_cast<std::size_t>(to_ - buffer_.get());
  const std::size_t capacity = std::max(2 * capacity_, used + size + slack);
  auto larger = std::make_unique_for_overwrite<Byte[]>(capacity);
  std::copy(buffer_.get(), to_, larger.get());
  ones_ = ones_ == nullptr ? nullptr : larger.get() + (ones_ - buffer_.get());
  buffer_ = std::move(larger);
  capacity_ = capacity;
  to_ = buffer_.get() + used;
  limit_ = buffer_.get() + capacity_ - slack;
}

void RecordWriter::write(IKOBVBPersistStream& object, Byte classNumber) {
  to_ = buffer_.get() + mostHead;
  ones_ = nullptr;
  lastTextSize_ = 0;
  units_ = 0;
  version_ = 0;
  object.write(*this);
  if (failure_ != nullptr) {
    std::rethrow_exception(failure_);
  }
  endRecord(classNumber);
}

void RecordWriter::endRecord(Byte classNumber) {
  // Backwards from the values, each number to where it ends.
  Byte* start = buffer_.get() + mostHead;
  const auto prepend = [&start](std::uint32_t number) {
    start -= varintSize(number);
    storeVarint(start, number);
  };
  prepend(zigzag(version_));
  *--start = classNumber;
  const auto size = static_cast<std::size_t>(to_ - start);
  if (size > std::numeric_limits<std::uint32_t>::max()) {
    throw failure({u"One object needs more than 4 GB. Shorten its texts."});
  }
  prepend(static_cast<std::uint32_t>(size));
  start_ = start;
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
  }
  guarded([&] { writeAny(value); });
}

void RecordWriter::WriteStrings(std::span<const TextView> texts) {
  while (!texts.empty()) {
    std::size_t written = writeRun(texts);
    if (written == 0) {
      if (!writeShort(texts.front())) {
        WriteValue(PersistValue::string(texts.front()));
      }
      written = 1;
    }
    const TextView last = texts[written - 1];
    texts = texts.subspan(written);
    // A cell's name mostly is its alias, too: the very same units, which need not be looked at again.
    if (!texts.empty() && texts.front().data() == last.data() && texts.front().size() == last.size() &&
        lastTextSize_ > 0 && hasRoom(1)) {
      to_ = storeTag(to_, Tag::SameText);
      lastTextSize_ = 0;
      units_ += last.size();
      texts = texts.subspan(1);
    }
  }
}

std::size_t RecordWriter::writeRun(std::span<const TextView> texts) noexcept {
  // The run ends at a text that lies elsewhere; an empty one lies anywhere.
  const char16_t* from = nullptr;
  std::size_t units = 0;
  std::size_t count = 0;
  for (; count < texts.size(); ++count) {
    const TextView text = texts[count];
    if (text.empty()) {
      continue;
    }
    from = units == 0 ? text.data() : from;
    if (text.size() > longestShort || units + text.size() > longestRun || text.data() != from + units) {
      break;
    }
    units += text.size();
  }
  if (count < 2 || !hasRoom(units + 2 * count + narrowBlock)) {
    return 0;
  }
  const char16_t* const end = from + units;
  // Kept apart from the writer's own, which a byte that is written might be for all that the compiler knows.
  Byte* to = to_;
  std::size_t written = 0;
  for (; written < count; ++written) {
    const std::size_t size = texts[written].size();
    if (size == 0) {
      to = storeTag(to, Tag::EmptyText);
      lastTextSize_ = 0;
      continue;
    }
    // A whole block takes the same time for most texts, and what it has too much is written over.
    const bool isInBlock = size <= narrowBlock && static_cast<std::size_t>(end - from) >= narrowBlock;
    if (!(isInBlock ? narrowWhole(to + 2, from) : narrow(to + 2, from, size))) {
      break;
    }
    to[0] = static_cast<Byte>(Tag::NarrowText);
    to[1] = static_cast<Byte>(size);
    to = endText(to, to + 2 + size);
    from += size;
  }
  units_ += units - static_cast<std::size_t>(end - from);
  to_ = to;
  ones_ = written > 0 ? nullptr : ones_;
  return written;
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
  to_ = endText(to_, to_ + 2 + text.size());
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
    reserve(longestValue);
    ones_ = nullptr;
    // It outlives the save, so nobody needs to hold it.
    writeObject(PersistRef(PersistRef(), object.get()));
  });
}

void RecordWriter::writeAny(const PersistValue& value) {
  reserve(longestValue);
  ones_ = nullptr;
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
      writeObject(value.object());
      break;
  }
}

void RecordWriter::writeText(TextView text) {
  if (text.size() > std::size_t(longestText)) {
    throw failure({u"A text is longer than ", decimal(longestText), u" characters. Shorten it."});
  }
  if (text.empty()) {
    to_ = storeTag(to_, Tag::EmptyText);
    lastTextSize_ = 0;
    return;
  }
  reserve(longestValue + 2 * text.size());
  Byte* const units = storeVarint(to_ + 1, static_cast<std::uint32_t>(text.size()));
  if (narrow(units, text.data(), text.size())) {
    *to_ = static_cast<Byte>(Tag::NarrowText);
    to_ = endText(to_, units + text.size());
  } else {
    *to_ = static_cast<Byte>(Tag::WideText);
    storeUnits(units, text.data(), text.size());
    to_ = endText(to_, units + 2 * text.size());
  }
  units_ += text.size();
}

inline Byte* RecordWriter::endText(Byte* begin, Byte* end) noexcept {
  const auto size = static_cast<std::size_t>(end - begin);
  // Texts of one length mostly differ in their last unit, too.
  const bool isPerhapsSame = size == lastTextSize_ && end[-1] == buffer_[lastText_ + size - 1];
  if (isPerhapsSame && std::equal(begin, end, buffer_.get() + lastText_)) {
    lastTextSize_ = 0;
    return storeTag(begin, Tag::SameText);
  }
  lastText_ = static_cast<std::size_t>(begin - buffer_.get());
  lastTextSize_ = size;
  return end;
}

void RecordWriter::writeObject(const PersistRef& object) {
  if (object == nullptr) {
    to_ = storeTag(to_, Tag::Nothing);
    return;
  }
  const ObjectForm form = objects_.name(object);
  to_ = form.isNext ? storeTag(to_, Tag::NextObject)
                    : storeVarint(storeTag(to_, Tag::NumberedObject), form.number);
}

const PersistValue& RecordWriter::ReadValue() {
  throw failure({u"A record that is being written cannot be read."});
}

}  // namespace kob::persistence
