// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/engine/HostObject.h>
#include <kobtraduction/engine/Value.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <utility>

namespace kob {

namespace {

constexpr TextView trueText = u"True";
constexpr TextView falseText = u"False";

Text widen(const char* first, const char* last) {
  return {first, last};
}

/// As automation hosts write a double: at most 15 digits, and "E+15" only when those do not reach the point.
Text numberText(double number) {
  if (number == 0) {
    return u"0";
  }
  constexpr int mostDigits = 15;
  char digits[32];
  const auto end =
      std::to_chars(std::begin(digits), std::end(digits), number, std::chars_format::general, mostDigits);
  std::replace(std::begin(digits), end.ptr, 'e', 'E');
  return widen(digits, end.ptr);
}

bool isBlank(char16_t unit) {
  return unit == u' ' || unit == u'\t';
}

std::optional<double> parseNumber(TextView text) {
  while (!text.empty() && isBlank(text.front())) {
    text.remove_prefix(1);
  }
  while (!text.empty() && isBlank(text.back())) {
    text.remove_suffix(1);
  }
  if (!text.empty() && text.front() == u'+') {
    text.remove_prefix(1);
    if (!text.empty() && text.front() == u'-') {
      return std::nullopt;
    }
  }
  std::string narrow;
  for (const char16_t unit : text) {
    // Only what a decimal number is made of: words for "infinite" and their like are no numbers here.
    if (unit > u'e' ||
        std::string_view("0123456789+-.eE").find(static_cast<char>(unit)) == std::string::npos) {
      return std::nullopt;
    }
    narrow.push_back(static_cast<char>(unit));
  }
  double number = 0;
  const char* const last = narrow.data() + narrow.size();
  const auto [end, error] = std::from_chars(narrow.data(), last, number);
  if (error != std::errc() || end != last) {
    return std::nullopt;
  }
  return number;
}

template <class Integer>
std::optional<Integer> roundTo(std::optional<double> number) {
  if (!number) {
    return std::nullopt;
  }
  // The default rounding: to the nearest, halves to the even neighbour.
  const double rounded = std::nearbyint(*number);
  if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max())) {
    return std::nullopt;
  }
  return static_cast<Integer>(rounded);
}

}  // namespace

Value::Value(HostRef object) noexcept {
  if (object != nullptr) {
    value_ = std::move(object);
  }
}

std::optional<Text> Value::asText() const& {
  if (const Text* const own = text()) {
    return *own;
  }
  if (const bool* const boolean = std::get_if<bool>(&value_)) {
    return Text(*boolean ? trueText : falseText);
  }
  if (const std::int32_t* const integer = std::get_if<std::int32_t>(&value_)) {
    return decimal(*integer);
  }
  if (const double* const number = std::get_if<double>(&value_)) {
    return numberText(*number);
  }
  return std::nullopt;
}

std::optional<Text> Value::asText() && {
  if (Text* const own = std::get_if<Text>(&value_)) {
    return std::move(*own);
  }
  return std::as_const(*this).asText();
}

std::optional<double> Value::asDouble() const {
  if (const std::int32_t* const integer = std::get_if<std::int32_t>(&value_)) {
    return *integer;
  }
  if (const double* const number = std::get_if<double>(&value_)) {
    return *number;
  }
  if (const bool* const boolean = std::get_if<bool>(&value_)) {
    return *boolean ? -1 : 0;
  }
  if (const Text* const own = text()) {
    return parseNumber(*own);
  }
  return std::nullopt;
}

std::optional<std::int32_t> Value::asLong() const {
  if (const std::int32_t* const integer = std::get_if<std::int32_t>(&value_)) {
    return *integer;
  }
  return roundTo<std::int32_t>(asDouble());
}

std::optional<std::int16_t> Value::asInteger() const {
  return roundTo<std::int16_t>(asDouble());
}

std::optional<bool> Value::asBoolean() const {
  if (const bool* const boolean = std::get_if<bool>(&value_)) {
    return *boolean;
  }
  if (const Text* const own = text()) {
    if (equalUpper(*own, trueText)) {
      return true;
    }
    if (equalUpper(*own, falseText)) {
      return false;
    }
  }
  const std::optional<double> number = asDouble();
  return number ? std::optional<bool>(*number != 0) : std::nullopt;
}

std::optional<HostRef> Value::asObject() && {
  if (HostRef* const object = std::get_if<HostRef>(&value_)) {
    return std::move(*object);
  }
  return std::as_const(*this).asObject();
}

std::optional<HostRef> Value::asObject() const& {
  if (isNothing()) {
    return HostRef();
  }
  if (const HostRef* const object = std::get_if<HostRef>(&value_)) {
    return *object;
  }
  return std::nullopt;
}

}  // namespace kob
