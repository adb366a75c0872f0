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
/// The longest value that is not a text.
constexpr std::size_t longestValue = 1 + sizeof(double);

Byte* storeTag(Byte* to, Tag tag) noexcept {
  *to = static_cast<Byte>(tag);
  return to + 1;
}

}  // namespace

RecordWriter::RecordWriter(NamedObjects& objects) : objects_(objects), capacity_(4096) {
  buffer_ = std::make_unique_for_overwrite<Byte[]>(capacity_);
  start_ = to_ = buffer_.get();
}

void RecordWriter::reserve(std::size_t size) {
  const std::size_t used = static_cast<std::size_t>(to_ - buffer_.get());
  if (capacity_ - used >= size + slack) {
    return;
  }
  const std::size_t capacity = std::max(2 * capacity_, used + size + slack);
  auto larger = std::make_unique_for_overwrite<Byte[]>(capacity);
  std::copy(buffer_.get(), to_, larger.get());
  ones_ = ones_ == nullptr ? nullptr : larger.get() + (ones_ - buffer_.get());
  buffer_ = std::move(larger);
  capacity_ = capacity;
  to_ = buffer_.get() + used;
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
  Byte head[mostHead];
  Byte* behind = head;
  *behind++ = classNumber;
  behind = storeVarint(behind, zigzag(version_));
  const auto headSize = static_cast<std::size_t>(behind - head);
  Byte* const values = buffer_.get() + mostHead;
  const std::size_t size = headSize + static_cast<std::size_t>(to_ - values);
  if (size > std::numeric_limits<std::uint32_t>::max()) {
    throw failure({u"One object needs more than 4 GB. Shorten its texts."});
  }
  Byte length[longestVarint];
  const auto lengthSize =
      static_cast<std::size_t>(storeVarint(length, static_cast<std::uint32_t>(size)) - length);
  std::copy(head, behind, values - headSize);
  start_ = values - headSize - lengthSize;
  std::copy(length, length + lengthSize, start_);
}

void RecordWriter::WriteValue(const PersistValue& value) {
  try {
    reserve(longestValue);
    switch (value.type()) {
      case PersistType::String:
        writeText(value.text());
        break;
      case PersistType::SmallInteger:
        writeSmallInteger(value.integer());
        return;
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
    ones_ = nullptr;
  } catch (...) {
    if (failure_ == nullptr) {
      failure_ = std::current_exception();
    }
  }
}

void RecordWriter::writeSmallInteger(std::int32_t number) {
  if (number != 1) {
    to_ = storeVarint(storeTag(to_, Tag::SmallInteger), zigzag(number));
    ones_ = nullptr;
  } else if (ones_ != nullptr && *ones_ < mostOnes) {
    ++*ones_;
  } else {
    to_ = storeTag(to_, Tag::Ones);
    ones_ = to_;
    *to_++ = 1;
  }
}

void RecordWriter::writeText(TextView text) {
  if (text.empty()) {
    to_ = storeTag(to_, Tag::EmptyText);
    lastTextSize_ = 0;
    return;
  }
  if (text.size() > std::numeric_limits<std::uint32_t>::max() / 2) {
    throw failure({u"A text is longer than 2 147 483 647 characters. Shorten it."});
  }
  reserve(1 + longestVarint + 2 * text.size());
  Byte* const tag = to_;
  Byte* const units = storeVarint(tag + 1, static_cast<std::uint32_t>(text.size()));
  if (narrow(units, text.data(), text.size())) {
    *tag = static_cast<Byte>(Tag::NarrowText);
    to_ = units + text.size();
  } else {
    *tag = static_cast<Byte>(Tag::WideText);
    storeUnits(units, text.data(), text.size());
    to_ = units + 2 * text.size();
  }
  units_ += text.size();
  const auto size = static_cast<std::size_t>(to_ - tag);
  const Byte* const last = buffer_.get() + lastText_;
  if (size == lastTextSize_ && std::equal(tag, to_, last)) {
    to_ = storeTag(tag, Tag::SameText);
    lastTextSize_ = 0;
  } else {
    lastText_ = static_cast<std::size_t>(tag - buffer_.get());
    lastTextSize_ = size;
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
