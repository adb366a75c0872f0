// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Failure.h>
#include <kobtraduction/engine/HostObject.h>

#include <optional>
#include <utility>

/// The two ways in which a step of the engine takes the answer of a host operation. Internal.
///
///   skip(target, read...)   the step is abandoned when the operation failed: the target keeps its value
///   must(read...)           a failed operation ends the procedure, whose handler tells the user
namespace kob {

template <class T>
void skip(T& target, std::optional<T> answer) {
  if (answer) {
    target = std::move(*answer);
  }
}

template <class T>
T must(std::optional<T> answer) {
  if (!answer) {
    throw Failure(FailureKind::PropertyMissing);
  }
  return std::move(*answer);
}

inline void must(bool done) {
  if (!done) {
    throw Failure(FailureKind::PropertyMissing);
  }
}

/// A reference that is used: nothing ends the procedure.
template <class Pointer>
auto& mustBeSet(const Pointer& object) {
  if (object == nullptr) {
    throw Failure(FailureKind::ObjectNotSet);
  }
  return *object;
}

/// Whether it makes sense to read a property; nothing has none.
inline bool mayHave(const HostRef& object, Property property) noexcept {
  return object != nullptr && object->mayHave(property);
}

// Reading with conversion. A null object, a property that is missing and a value that does not convert are
// all the same: the operation failed.

inline std::optional<Text> readText(const HostRef& object, Property property) {
  std::optional<Value> value = object != nullptr ? object->get(property) : std::nullopt;
  return value ? std::move(*value).asText() : std::nullopt;
}

/// Appends a text to another one; false when the operation failed.
inline bool appendText(Text& target, const HostRef& object, Property property) {
  return object != nullptr && object->appendText(property, target);
}

inline std::optional<double> readDouble(const HostRef& object, Property property) {
  const std::optional<Value> value = object != nullptr ? object->get(property) : std::nullopt;
  return value ? value->asDouble() : std::nullopt;
}

inline std::optional<std::int32_t> readLong(const HostRef& object, Property property) {
  const std::optional<Value> value = object != nullptr ? object->get(property) : std::nullopt;
  return value ? value->asLong() : std::nullopt;
}

inline std::optional<std::int16_t> readInteger(const HostRef& object, Property property) {
  const std::optional<Value> value = object != nullptr ? object->get(property) : std::nullopt;
  return value ? value->asInteger() : std::nullopt;
}

inline std::optional<bool> readBoolean(const HostRef& object, Property property) {
  const std::optional<Value> value = object != nullptr ? object->get(property) : std::nullopt;
  return value ? value->asBoolean() : std::nullopt;
}

inline std::optional<HostRef> readObject(const HostRef& object, Property property) {
  std::optional<Value> value = object != nullptr ? object->get(property) : std::nullopt;
  return value ? std::move(*value).asObject() : std::nullopt;
}

/// Writing; false when the operation failed. In skip mode the result is not looked at.
inline bool write(const HostRef& object, Property property, const Value& value) {
  return object != nullptr && object->set(property, value);
}

inline bool write(const HostRef& object, Property property, TextView text) {
  return object != nullptr && object->assignText(property, text);
}

inline bool write(const HostRef& object, Property property, const Text& text) {
  return write(object, property, TextView(text));
}

}  // namespace kob
