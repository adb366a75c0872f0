// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <tests/doubles/FormText.h>

#include <optional>
#include <string>

class QObject;

namespace kob::testing {

/// What a key of a form's text is on a live object, read and written by the toolkit's own means. Writing
/// throws std::runtime_error for what the object does not have.
std::optional<Value> readKey(QObject& object, const ObjectText& text, const std::string& key);
void writeKey(QObject& object, const ObjectText& text, const std::string& key, const Value& value);

}  // namespace kob::testing
