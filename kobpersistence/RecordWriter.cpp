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
  // The two kinds of value that a record is full of.
  if (value.type() == PersistType::String) {
    const TextView text = value.text();
    if (static_cast<std::size_t>(limit_ - to_) / 2 > text.size() + longestVarint) {
      writeText(text);
      ones_ = nullptr;
      return;
    }
  } else if (value.type() == PersistType::SmallInteger && value.integer() == 1 && ones_ != nullptr &&
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
  Byte* nextOnes = nullptr;
  reserve(longestValue);
  switch (value.type()) {
    case PersistType::String:
      if (value.text().size() > std::size_t(longestText)) {
        throw failure({u"A text is longer than ", decimal(longestText), u" characters. Shorten it."});
      }
      reserve(1 + longestVarint + 2 * value.text().size());
      writeText(value.text());
      break;
    case PersistType::SmallInteger:
      if (value.integer() == 1) {
        to_ = storeTag(to_, Tag::Ones);
        nextOnes = to_;
        *to_++ = 1;
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
  ones_ = nextOnes;
}

void RecordWriter::writeText(TextView text) noexcept {
  if (text.empty()) {
    to_ = storeTag(to_, Tag::EmptyText);
    lastTextSize_ = 0;
    return;
  }
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
  if (size == lastTextSize_ && std::memcmp(tag, buffer_.get() + lastText_, size) == 0) {
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
