// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/Text.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <variant>

namespace kob {

class HostObject;
/// A reference to a host object; null is "nothing".
using HostRef = std::shared_ptr<HostObject>;

/// A value that a host object gives or takes: nothing (also an object reference to nothing), a Boolean, a
/// 32-bit integer, a double, a text or a host object.
class KOB_EXPORT Value {
 public:
  Value() noexcept = default;
  Value(bool truth) noexcept : value_(truth) {}
  Value(std::int32_t integer) noexcept : value_(integer) {}
  Value(double number) noexcept : value_(number) {}
  Value(Text text) noexcept : value_(std::move(text)) {}
  Value(TextView text) : value_(Text(text)) {}
  Value(const char16_t* text) : value_(Text(text)) {}
  Value(HostRef object) noexcept;

  bool isNothing() const noexcept { return std::holds_alternative<std::monostate>(value_); }
  /// The text itself when the value is one, else null: reading it without a copy.
  const Text* text() const noexcept { return std::get_if<Text>(&value_); }

  // Conversions follow the rules of automation hosts; a value that does not convert gives an empty result,
  // which is a failed operation. Nothing and objects convert to nothing but themselves.

  /// A number becomes its decimal form of at most 15 digits, a Boolean "True" or "False".
  std::optional<Text> asText() const&;
  std::optional<Text> asText() &&;
  /// A Boolean becomes -1 or 0; a text converts when all of it reads as a number, blanks around it aside.
  std::optional<double> asDouble() const;
  /// As asDouble, then rounded half to even; empty outside 32 bits.
  std::optional<std::int32_t> asLong() const;
  /// As asLong, empty outside 16 bits.
  std::optional<std::int16_t> asInteger() const;
  /// A number is true unless it is 0; a text may also read "True" or "False", in any case.
  std::optional<bool> asBoolean() const;
  /// An object, or null for nothing; empty for every other value.
  std::optional<HostRef> asObject() const&;
  std::optional<HostRef> asObject() &&;

 private:
  std::variant<std::monostate, bool, std::int32_t, double, Text, HostRef> value_;
};

}  // namespace kob
