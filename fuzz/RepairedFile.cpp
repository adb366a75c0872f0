// SPDX-FileCopyrightText: The KOBTraduction authors
#include "RepairedFile.h"

#include <kobpersistence/Checksum.h>
#include <kobpersistence/Format.h>
#include <kobtraduction/base/Text.h>

#include <algorithm>
#include <iterator>

namespace kob::fuzz {

namespace {

using persistence::Byte;
using persistence::checksumSize;
using persistence::headerSize;
using persistence::Tag;
namespace at = persistence::at;

constexpr TextView classNames[] = {u"KOBTraduction.KOBModeleTraduction", u"KOBTraduction.KOBCellTraduction",
                                   u"KOBTraduction.KOBTraductionObj"};

/// Bytes that are read to their end and no further.
class Cursor {
 public:
  Cursor(const Bytes& bytes, std::size_t from, std::size_t end) : bytes_(bytes), next_(from), end_(end) {}

  bool isAtEnd() const noexcept { return next_ == end_; }
  std::size_t place() const noexcept { return next_; }
  Byte byte() noexcept { return isAtEnd() ? Byte{0} : bytes_[next_++]; }
  std::uint32_t varint() noexcept {
    std::uint32_t number = 0;
    for (unsigned shift = 0; shift < 7 * persistence::longestVarint && !isAtEnd(); shift += 7) {
      const Byte next = bytes_[next_++];
      number |= static_cast<std::uint32_t>(next & 0x7F) << shift;
      if (next < 0x80) {
        break;
      }
    }
    return number;
  }
  /// As many of these bytes as are left.
  Bytes bytes(std::size_t count) {
    const auto from = bytes_.begin() + static_cast<std::ptrdiff_t>(next_);
    const std::size_t now = std::min(count, end_ - next_);
    next_ += now;
    return {from, from + static_cast<std::ptrdiff_t>(now)};
  }

 private:
  const Bytes& bytes_;
  std::size_t next_;
  std::size_t end_;
};

void append(Bytes& to, const Bytes& from) {
  to.insert(to.end(), from.begin(), from.end());
}

void appendVarint(Bytes& to, std::uint32_t number) {
  Byte varint[persistence::longestVarint];
  to.insert(to.end(), varint, persistence::storeVarint(varint, number));
}

struct Value {
  Byte tag;
  /// How many units a text has, which number an object has.
  std::uint32_t number = 0;
  /// What follows the tag and, of a text, its length.
  Bytes rest = {};
};

bool isText(const Value& value) {
  return value.tag == static_cast<Byte>(Tag::NarrowText) || value.tag == static_cast<Byte>(Tag::WideText);
}

struct Record {
  Byte classNumber;
  std::uint32_t version;
  std::vector<Value> values;
};

Value readValue(Cursor& from) {
  Value value{from.byte()};
  switch (static_cast<Tag>(value.tag)) {
    case Tag::NarrowText:
      value.rest = from.bytes(from.varint());
      value.number = static_cast<std::uint32_t>(value.rest.size());
      break;
    case Tag::WideText:
      value.rest = from.bytes(2 * std::size_t(from.varint()));
      value.rest.resize(value.rest.size() / 2 * 2);
      value.number = static_cast<std::uint32_t>(value.rest.size() / 2);
      break;
    case Tag::Ones:
      value.rest = {static_cast<Byte>(from.byte() % persistence::mostOnes + 1)};
      break;
    case Tag::Double:
      value.rest = from.bytes(sizeof(double));
      value.rest.resize(sizeof(double));
      break;
    case Tag::SmallInteger:
      appendVarint(value.rest, from.varint() & 0xFFFF);
      break;
    case Tag::Long:
      appendVarint(value.rest, from.varint());
      break;
    case Tag::NumberedObject:
      value.number = from.varint();
      break;
    default:
      break;
  }
  return value;
}

/// The records of a file whose lengths may be wrong: one ends with the value in which its length does.
std::vector<Record> readRecords(const Bytes& file, std::size_t from) {
  std::vector<Record> records;
  Cursor cursor(file, from, std::max(from, file.size() - checksumSize));
  while (!cursor.isAtEnd()) {
    const std::uint64_t length = cursor.varint();
    const std::uint64_t end = cursor.place() + length;
    Record record{cursor.byte(), cursor.varint(), {}};
    while (!cursor.isAtEnd() && cursor.place() < end) {
      record.values.push_back(readValue(cursor));
    }
    records.push_back(std::move(record));
  }
  return records;
}

/// From the last record to the first, as a reader checks them.
void repairRecords(std::vector<Record>& records) {
  std::uint32_t waiting = 0;
  for (std::size_t i = records.size(); i-- > 0;) {
    Record& record = records[i];
    // Only the first object is a model.
    record.classNumber = i == 0 ? 0 : static_cast<Byte>(1 + record.classNumber % 2);
    bool mayRepeat = false;
    for (Value& value : record.values) {
      const auto tag = static_cast<Tag>(value.tag);
      const bool isUnnamed =
          (tag == Tag::NextObject && waiting == 0) || (tag == Tag::NumberedObject && i + 1 == records.size());
      if ((tag == Tag::SameText && !mayRepeat) || (isText(value) && value.number == 0)) {
        value = {static_cast<Byte>(Tag::EmptyText)};
      } else if (isUnnamed) {
        value = {static_cast<Byte>(Tag::Nothing)};
      } else if (tag == Tag::NextObject) {
        --waiting;
      } else if (tag == Tag::NumberedObject) {
        value.number = static_cast<std::uint32_t>(i + 1 + value.number % (records.size() - i - 1));
      }
      mayRepeat = isText(value) || (mayRepeat && static_cast<Tag>(value.tag) != Tag::EmptyText &&
                                    static_cast<Tag>(value.tag) != Tag::SameText);
    }
    if (i == 0) {
      record.values.insert(record.values.end(), waiting, {static_cast<Byte>(Tag::NextObject)});
    }
    ++waiting;
  }
}

std::uint64_t unitsOf(const Record& record) {
  std::uint64_t units = 0;
  std::uint64_t last = 0;
  for (const Value& value : record.values) {
    if (isText(value)) {
      last = value.number;
      units += last;
    } else if (static_cast<Tag>(value.tag) == Tag::SameText) {
      units += last;
      last = 0;
    } else if (static_cast<Tag>(value.tag) == Tag::EmptyText) {
      last = 0;
    }
  }
  return units;
}

Bytes bytesOf(const Record& record) {
  Bytes bytes{record.classNumber};
  appendVarint(bytes, record.version);
  for (const Value& value : record.values) {
    bytes.push_back(value.tag);
    if (isText(value) || static_cast<Tag>(value.tag) == Tag::NumberedObject) {
      appendVarint(bytes, value.number);
    }
    append(bytes, value.rest);
  }
  return bytes;
}

Bytes framed(const std::vector<Record>& records) {
  Bytes file(recordsBegin());
  std::copy(persistence::magic.begin(), persistence::magic.end(), file.begin());
  persistence::storeNumber(file.data() + at::version, persistence::containerVersion);
  persistence::storeNumber(file.data() + at::classes, static_cast<std::uint32_t>(std::size(classNames)));
  persistence::storeNumber(file.data() + at::records, static_cast<std::uint32_t>(records.size()));
  Byte* to = file.data() + headerSize;
  for (const TextView name : classNames) {
    persistence::storeNumber(to, static_cast<std::uint16_t>(name.size()));
    to += sizeof(std::uint16_t);
    for (const char16_t unit : name) {
      persistence::storeNumber(to, static_cast<std::uint16_t>(unit));
      to += sizeof unit;
    }
  }
  std::uint64_t units = 0;
  for (const Record& record : records) {
    const Bytes bytes = bytesOf(record);
    appendVarint(file, static_cast<std::uint32_t>(bytes.size()));
    append(file, bytes);
    units += unitsOf(record);
  }
  persistence::storeNumber(file.data() + at::units, units);
  file.resize(file.size() + checksumSize);
  return file;
}

}  // namespace

std::size_t recordsBegin() {
  std::size_t size = headerSize;
  for (const TextView name : classNames) {
    size += sizeof(std::uint16_t) + 2 * name.size();
  }
  return size;
}

Repair repairOf(Byte choice) noexcept {
  return static_cast<Repair>(std::min<unsigned>(choice % 8U, 3U));
}

Byte choiceOf(Repair repair) noexcept {
  return static_cast<Byte>(repair);
}

Bytes repaired(Bytes file, Repair repair) {
  if (repair == Repair::Nothing || file.size() < headerSize + checksumSize) {
    return file;
  }
  if (repair != Repair::Sums) {
    std::vector<Record> records = readRecords(file, std::min(recordsBegin(), file.size()));
    if (repair == Repair::Records) {
      repairRecords(records);
    }
    file = framed(records);
  }
  persistence::storeNumber(file.data() + at::length, static_cast<std::uint64_t>(file.size()));
  persistence::storeNumber(file.data() + file.size() - checksumSize,
                           persistence::checksumOf(file.data(), file.size()));
  return file;
}

}  // namespace kob::fuzz
