// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/persistence/PersistStream.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace kob::testing {

/// A value of a record that keeps its own text.
struct RecordValue {
  PersistType type;
  std::int32_t integer = 0;
  double number = 0;
  Text text = {};
  PersistRef object = nullptr;

  /// Equal type and equal contents; objects are compared by identity.
  bool operator==(const RecordValue&) const = default;
};

RecordValue aSmallInteger(std::int16_t value);
RecordValue aLong(std::int32_t value);
RecordValue aDouble(double value);
RecordValue aBoolean(bool value);
RecordValue aText(TextView value);
RecordValue anObject(PersistRef value);
RecordValue nothing();

RecordValue copyOf(const PersistValue& value);
/// The text of the result is a view of this value's.
PersistValue viewOf(const RecordValue& value);

/// `8 "Caption"`, `3 6`, `5 1.5`, `11 -1`, `9 KOBTraduction.KOBTraductionObj`, `9 nothing`: the code, the
/// value.
std::string lineOf(const RecordValue& value);
std::ostream& operator<<(std::ostream& out, const RecordValue& value);

/// What a stream holds of one object.
struct Record {
  std::int32_t version = 0;
  std::vector<RecordValue> values;
};

}  // namespace kob::testing
