// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/engine/Value.h>
#include <kobtraduction/persistence/PersistStream.h>
#include <kobtraduction/persistence/PersistValue.h>

#include <optional>

namespace kob {

namespace {

/// The value as the conversions of hosts know it; an object converts to nothing here.
Value converted(const PersistValue& value) {
  switch (value.type()) {
    case PersistType::SmallInteger:
    case PersistType::Long:
      return value.integer();
    case PersistType::Double:
      return value.number();
    case PersistType::Boolean:
      return value.integer() != 0;
    case PersistType::String:
      return value.text();
    case PersistType::Object:
      break;
  }
  throw Failure(FailureKind::TypeMismatch);
}

template <class T>
T must(std::optional<T> value) {
  if (!value) {
    throw Failure(FailureKind::TypeMismatch);
  }
  return *std::move(value);
}

}  // namespace

std::int32_t PersistValue::toLong() const {
  return type_ == PersistType::Long ? integer_ : must(converted(*this).asLong());
}

double PersistValue::toDouble() const {
  return type_ == PersistType::Double ? number_ : must(converted(*this).asDouble());
}

bool PersistValue::toBoolean() const {
  return type_ == PersistType::Boolean ? integer_ != 0 : must(converted(*this).asBoolean());
}

Text PersistValue::toText() const {
  return type_ == PersistType::String ? Text(text_) : must(converted(*this).asText());
}

const PersistRef& PersistValue::toObject() const {
  if (type_ != PersistType::Object) {
    throw Failure(FailureKind::TypeMismatch);
  }
  return object_;
}

}  // namespace kob
