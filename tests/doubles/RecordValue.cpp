// SPDX-FileCopyrightText: The KOBTraduction authors
#include "RecordValue.h"

#include "Lines.h"

namespace kob::testing {

RecordValue aSmallInteger(std::int16_t value) {
  return {PersistType::SmallInteger, value};
}

RecordValue aLong(std::int32_t value) {
  return {PersistType::Long, value};
}

RecordValue aDouble(double value) {
  return {PersistType::Double, 0, value};
}

RecordValue aBoolean(bool value) {
  return {PersistType::Boolean, value ? -1 : 0};
}

RecordValue aText(TextView value) {
  return {PersistType::String, 0, 0, Text(value)};
}

RecordValue anObject(PersistRef value) {
  return {PersistType::Object, 0, 0, {}, std::move(value)};
}

RecordValue nothing() {
  return anObject(nullptr);
}

RecordValue copyOf(const PersistValue& value) {
  return {value.type(), value.integer(), value.number(), Text(value.text()), value.object()};
}

PersistValue viewOf(const RecordValue& value) {
  switch (value.type) {
    case PersistType::SmallInteger:
      return PersistValue::smallInteger(static_cast<std::int16_t>(value.integer));
    case PersistType::Long:
      return PersistValue::ofLong(value.integer);
    case PersistType::Double:
      return PersistValue::ofDouble(value.number);
    case PersistType::String:
      return PersistValue::string(value.text);
    case PersistType::Boolean:
      return PersistValue::ofBoolean(value.integer != 0);
    case PersistType::Object:
      break;
  }
  return PersistValue::object(value.object);
}

std::string lineOf(const RecordValue& value) {
  const std::string code = std::to_string(static_cast<int>(value.type)) + " ";
  switch (value.type) {
    case PersistType::Double:
      return code + valueText(value.number);
    case PersistType::String:
      return code + quoted(value.text);
    case PersistType::Object:
      return code + (value.object == nullptr ? "nothing" : toUtf8(value.object->getProgID()));
    default:
      return code + std::to_string(value.integer);
  }
}

std::ostream& operator<<(std::ostream& out, const RecordValue& value) {
  return out << lineOf(value);
}

}  // namespace kob::testing
