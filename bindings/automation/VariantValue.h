// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Com.h"

#include <kobtraduction/base/Text.h>

#include <cstdint>

/// Values of hosts, by the rules of automation. Failures are TypeMismatch.
namespace kob::automation {

/// The value itself, however many references lead to it; empty for a reference to nowhere.
const VARIANT& resolved(const VARIANT& value) noexcept;

/// An optional argument that the host left out.
bool isMissing(const VARIANT& value) noexcept;

/// The object of a value, not counted: null for Nothing, Empty, Null and a missing argument.
IUnknown* objectOf(const VARIANT& value);

std::int32_t longOf(const VARIANT& value);
double doubleOf(const VARIANT& value);
bool booleanOf(const VARIANT& value);
Text textOf(const VARIANT& value);

// Into an empty variant.

void putText(VARIANT& place, TextView text);
void putLong(VARIANT& place, std::int32_t number) noexcept;
/// Takes over the reference; nothing is Nothing.
void putObject(VARIANT& place, IDispatch* object) noexcept;

/// Assigns a number to an argument that the host passed by reference: to the host's own variable when the
/// variant leads to one, converted to what that holds. A missing argument is left alone.
void assignLong(VARIANT* place, std::int32_t number);

}  // namespace kob::automation
