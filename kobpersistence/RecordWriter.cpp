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
  start_ = buffer_.get() + mostHead;
  const auto prepend = [this](std::uint32_t number) {
    start_ -= varintSize(number);
    storeVarint(start_, number);
  };
  prepend(zigzag(version_));
  *--start_ = classNumber;
  const auto size = static_cast<std::size_t>(to_ - start_);
  if (size > std::numeric_limits<std::uint32_t>::max()) {
    throw failure({u"One object needs more than 4 GB. Shorten its texts."});
  }
  prepend(static_cast<std::uint32_t>(size));
}

void RecordWriter::WriteValue(const PersistValue& value) {
  // What records are full of takes the short way, which cannot fail.
  if (value.type() == PersistType::String) {
    const TextView text = value.text();
    constexpr std::size_t longest = 0x7F;
    // The tag, the length and the units are a byte each.
    if (text.size() - 1 < longest && static_cast<std::size_t>(limit_ - to_) > 2 + longest &&
        narrow(to_ + 2, text.data(), text.size())) {
      to_[0] = static_cast<Byte>(Tag::NarrowText);
      to_[1] = static_cast<Byte>(text.size());
      units_ += text.size();
      ones_ = nullptr;
      endText(to_ + 2 + text.size());
      return;
    }
  } else if (ones_ != nullptr && value.type() == PersistType::SmallInteger && value.integer() == 1 &&
             *ones_ < mostOnes) {
    ++*ones_;
    return;
  }
  writeGuarded(value);
}

void RecordWriter::writeGuarded(const PersistValue& value) {
  try {
    writeAny(value);
  } catch (...) {
    if (failure_ == nullptr) {
      failure_ = std::current_exception();
    }
  }
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
    endText(units + text.size());
  } else {
    *to_ = static_cast<Byte>(Tag::WideText);
    storeUnits(units, text.data(), text.size());
    endText(units + 2 * text.size());
  }
  units_ += text.size();
}

inline void RecordWriter::endText(Byte* end) noexcept {
  const auto size = static_cast<std::size_t>(end - to_);
  // Texts of one length mostly differ in their last unit, too.
  if (size == lastTextSize_ && end[-1] == buffer_[lastText_ + size - 1]) {
    endAlike(end);
    return;
  }
  lastText_ = static_cast<std::size_t>(to_ - buffer_.get());
  lastTextSize_ = size;
  to_ = end;
}

void RecordWriter::endAlike(Byte* end) noexcept {
  if (std::equal(to_, end, buffer_.get() + lastText_)) {
    to_ = storeTag(to_, Tag::SameText);
    lastTextSize_ = 0;
  } else {
    lastText_ = static_cast<std::size_t>(to_ - buffer_.get());
    to_ = end;
  }
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
