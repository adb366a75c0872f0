// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Com.h"

#include <kobtraduction/engine/HostObject.h>

#include <optional>

/// What a host gives and takes, between automation and the engine.
namespace kob::automation {

/// What the engine expects of a property, which decides how a host's value converts.
enum class ValueKind { Text, Number, Boolean, Object };
ValueKind kindOf(Property property) noexcept;

/// A form or control that a host passes: null for Nothing, Empty, Null and an argument left out; any other
/// value that is no object fails with TypeMismatch.
HostRef hostOf(const VARIANT& argument);

/// The live object as the engine sees it; null for none, and for an object that cannot be asked by name.
HostRef hostOf(IUnknown* object);

/// A value that a host gave; empty for one that is of no use (an error code, an array where no list is
/// expected). Empty reads as "", 0 or False, as everywhere in automation; an object stands for the value of
/// its default member where no object is expected.
std::optional<Value> fromVariant(const VARIANT& value, ValueKind kind);

/// Into an empty variant, numbers as integers where they are; false for an object, which no host is ever
/// given.
bool toVariant(const Value& value, VARIANT& place);

}  // namespace kob::automation
