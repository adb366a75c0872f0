// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/Describing.h>
#include <kobpersistence/Format.h>
#include <kobpersistence/RecordCheck.h>
#include <kobpersistence/RecordReader.h>

#include <algorithm>
#include <bit>

namespace kob::persistence {

RecordReader::RecordReader(FilledObjects& objects, const Container& container)
    : objects_(objects),
      container_(container),
      image_(container.texts()),
      value_(PersistValue::object(nullptr)) {}

void RecordReader::open(std::uint32_t number, const Record& record, const char16_t* texts) noexcept {
  number_ = number;
  version_ = record.version;
  from_ = record.values;
  end_ = record.end;
  std::uint32_t units = 0;
  repeated_ = findRepeated(from_, end_, units);
  texts_ = texts;
  ones_ = 0;
}

const char16_t* RecordReader::close() {
  ones_ = 0;
  while (from_ != end_) {
    ReadValue();
    ones_ = 0;
  }
  return texts_;
}

TextView RecordReader::takeText(std::size_t units) noexcept {
  const TextView text(texts_, units);
  texts_ += units;
  lastUnits_ = units;
  return text;
}

inline bool RecordReader::readText(TextView& text) noexcept {
  switch (static_cast<Tag>(*from_)) {
    case Tag::NarrowText: {
      ++from_;
      const std::uint32_t units = loadVarint(from_);
      from_ += units;
      text = takeText(units);
      return true;
    }
    case Tag::WideText: {
      ++from_;
      const std::uint32_t units = loadVarint(from_);
      from_ += 2 * std::size_t(units);
      text = takeText(units);
      return true;
    }
    case Tag::SameText:
      texts_ -= from_ == repeated_ ? lastUnits_ : 0;
      ++from_;
      text = takeText(lastUnits_);
      return true;
    case Tag::EmptyText:
      ++from_;
      // Where a text would lie, so that it continues the run of those around it.
      text = TextView(texts_, texts_);
      return true;
    default:
      return false;
  }
}

std::size_t RecordReader::readNarrow(std::span<TextView> to) noexcept {
  // Kept apart from the reader's own, which a text that is written might be for all that the compiler knows.
  const Byte* from = from_;
  const char16_t* texts = texts_;
  std::size_t units = lastUnits_;
  std::size_t read = 0;
  for (; read < to.size() && from != end_; ++read) {
    const auto tag = static_cast<Tag>(*from);
    if (tag == Tag::NarrowText) {
      ++from;
      units = loadVarint(from);
      from += units;
    } else if (tag == Tag::SameText) {
      texts -= from == repeated_ ? units : 0;
      ++from;
    } else if (tag == Tag::EmptyText) {
      ++from;
    } else {
      break;
    }
    to[read] = TextView(texts, tag == Tag::EmptyText ? 0 : units);
    texts += to[read].size();
  }
  from_ = from;
  texts_ = texts;
  lastUnits_ = units;
  return read;
}

std::int32_t RecordReader::ReadStrings(std::span<TextView> to) {
  std::size_t read = 0;
  while (ones_ == 0) {
    read += readNarrow(to.subspan(read));
    if (read == to.size() || from_ == end_ || !readText(to[read])) {
      break;
    }
    ++read;
  }
  return static_cast<std::int32_t>(read);
}

std::int32_t RecordReader::ReadLongs(std::span<std::int32_t> to) {
  std::size_t read = 0;
  while (read < to.size() && ones_ == 0 && from_ != end_ && static_cast<Tag>(*from_) == Tag::Long) {
    ++from_;
    to[read++] = unzigzag(loadVarint(from_));
  }
  return static_cast<std::int32_t>(read);
}

std::int32_t RecordReader::PassOnes(std::int32_t most) {
  std::int32_t passed = 0;
  while (passed < most) {
    if (ones_ == 0) {
      if (from_ == end_ || static_cast<Tag>(*from_) != Tag::Ones) {
        break;
      }
      ones_ = from_[1];
      from_ += 2;
      value_ = PersistValue::smallInteger(1);
    }
    const auto now = std::min<std::uint32_t>(ones_, static_cast<std::uint32_t>(most - passed));
    ones_ -= now;
    passed += static_cast<std::int32_t>(now);
  }
  return passed;
}

const PersistValue& RecordReader::ReadValue() {
  if (ones_ > 0) {
    --ones_;
    return value_;
  }
  if (from_ == end_) {
    throw badRecord(number_, container_.offset(number_), u"values are missing");
  }
  TextView text;
  if (readText(text)) {
    value_.becomeString(text);
    return value_;
  }
  switch (static_cast<Tag>(*from_++)) {
    case Tag::NarrowText:
    case Tag::WideText:
    case Tag::SameText:
    case Tag::EmptyText:
      break;
    case Tag::Ones:
      ones_ = std::uint32_t(*from_++) - 1;
      value_ = PersistValue::smallInteger(1);
      break;
    case Tag::SmallInteger:
      value_ = PersistValue::smallInteger(static_cast<std::int16_t>(unzigzag(loadVarint(from_))));
      break;
    case Tag::Long:
      value_.becomeLong(unzigzag(loadVarint(from_)));
      break;
    case Tag::Double:
      value_ = PersistValue::ofDouble(std::bit_cast<double>(loadNumber<std::uint64_t>(from_)));
      from_ += sizeof(double);
      break;
    case Tag::NextObject:
      value_.becomeObject(objects_.next());
      break;
    case Tag::NumberedObject:
      value_.becomeObject(objects_.numbered(loadVarint(from_)));
      break;
    case Tag::Nothing:
      value_.becomeObject(nullptr);
      break;
    case Tag::False:
      value_.becomeBoolean(false);
      break;
    case Tag::True:
      value_.becomeBoolean(true);
      break;
  }
  return value_;
}

void RecordReader::setVersion(std::int32_t /*version*/) {
  throw failure({u"A record that is being read has a version already."});
}

void RecordReader::WriteValue(const PersistValue& /*value*/) {
  throw failure({u"A record that is being read cannot be written."});
}

}  // namespace kob::persistence
