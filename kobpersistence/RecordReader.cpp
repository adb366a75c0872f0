// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/Describing.h>
#include <kobpersistence/Format.h>
#include <kobpersistence/RecordReader.h>

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

const PersistValue& RecordReader::ReadValue() {
  if (ones_ > 0) {
    --ones_;
    return value_;
  }
  if (from_ == end_) {
    throw badRecord(number_, container_.offset(number_), u"values are missing");
  }
  switch (static_cast<Tag>(*from_++)) {
    case Tag::NarrowText: {
      const std::uint32_t units = loadVarint(from_);
      from_ += units;
      value_.becomeString(takeText(units));
      break;
    }
    case Tag::WideText: {
      const std::uint32_t units = loadVarint(from_);
      from_ += 2 * std::size_t(units);
      value_.becomeString(takeText(units));
      break;
    }
    case Tag::SameText:
      value_.becomeString(takeText(lastUnits_));
      break;
    case Tag::EmptyText:
      // Where a text would lie, so that it continues the run of those around it.
      value_.becomeString(TextView(texts_, texts_));
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
      value_ = PersistValue::object(objects_.next());
      break;
    case Tag::NumberedObject:
      value_ = PersistValue::object(objects_.numbered(loadVarint(from_)));
      break;
    case Tag::Nothing:
      value_ = PersistValue::object(nullptr);
      break;
    case Tag::False:
      value_ = PersistValue::ofBoolean(false);
      break;
    case Tag::True:
      value_ = PersistValue::ofBoolean(true);
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
