// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/Text.h>

#include <cstdint>
#include <memory>

namespace kob {

class IKOBVBPersistStream;
/// A reference to an object that can be persisted; null is "nothing".
using PersistRef = std::shared_ptr<IKOBVBPersistStream>;

/// The type codes that travel with values. They are stored in files and known to automation hosts, so they
/// never change.
enum class PersistType : std::uint16_t {
  SmallInteger = 2,  ///< 16 bits, signed
  Long = 3,          ///< 32 bits, signed
  Double = 5,
  String = 8,  ///< UTF-16 code units, any sequence
  Object = 9,  ///< an object, or nothing
  Boolean = 11,
};

/// One value of a record with its type. A text is a view: of the writer's characters while a record is
/// written, of the stream's while one is read.
class KOB_EXPORT PersistValue {
 public:
  static PersistValue smallInteger(std::int16_t value) noexcept { return {PersistType::SmallInteger, value}; }
  static PersistValue ofLong(std::int32_t value) noexcept { return {PersistType::Long, value}; }
  static PersistValue ofDouble(double value) noexcept { return PersistValue(value); }
  static PersistValue ofBoolean(bool value) noexcept { return {PersistType::Boolean, value ? -1 : 0}; }
  static PersistValue string(TextView text) noexcept { return PersistValue(text); }
  static PersistValue object(PersistRef object) noexcept { return PersistValue(std::move(object)); }

  PersistType type() const noexcept { return type_; }

  // What a value holds, for a value of that very type only.

  /// The number of a SmallInteger or Long; -1 or 0 of a Boolean.
  std::int32_t integer() const noexcept { return integer_; }
  double number() const noexcept { return number_; }
  TextView text() const noexcept { return text_; }
  const PersistRef& object() const noexcept { return object_; }

  // For a stream that shows one value after the other in the same place: an assignment that is cheap when no
  // object has to go.

  void becomeString(TextView text) noexcept {
    type_ = PersistType::String;
    text_ = text;
    dropObject();
  }
  void becomeLong(std::int32_t value) noexcept {
    type_ = PersistType::Long;
    integer_ = value;
    dropObject();
  }
  void becomeBoolean(bool value) noexcept {
    type_ = PersistType::Boolean;
    integer_ = value ? -1 : 0;
    dropObject();
  }
  void becomeObject(PersistRef object) noexcept {
    type_ = PersistType::Object;
    object_ = std::move(object);
  }

  // Conversions by the rules of automation hosts (see Value); what does not convert is TypeMismatch.

  std::int32_t toLong() const;
  double toDouble() const;
  bool toBoolean() const;
  Text toText() const;
  /// The object, or null for nothing.
  const PersistRef& toObject() const;

 private:
  PersistValue(PersistType type, std::int32_t integer) noexcept : type_(type), integer_(integer) {}
  explicit PersistValue(double number) noexcept : type_(PersistType::Double), number_(number) {}
  explicit PersistValue(TextView text) noexcept : type_(PersistType::String), text_(text) {}
  explicit PersistValue(PersistRef object) noexcept
      : type_(PersistType::Object), object_(std::move(object)) {}

  void dropObject() noexcept {
    if (object_ != nullptr) {
      object_.reset();
    }
  }

  PersistType type_;
  std::int32_t integer_ = 0;
  double number_ = 0;
  TextView text_;
  PersistRef object_;
};

}  // namespace kob
