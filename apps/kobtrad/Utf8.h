// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>

#include <optional>
#include <string>
#include <string_view>

namespace kob::command {

/// An argument as a text; empty when it is not UTF-8.
std::optional<Text> fromUtf8(std::string_view bytes);

/// An argument as a text, or a UsageError that says which one it was.
Text argumentText(std::string_view bytes, const char* which);

/// The name of a module, "" for none: a single name, or a UsageError.
Text moduleName(std::string_view bytes);

/// A text on one line, in UTF-8: line breaks and tabs as signs, other control characters by their number,
/// blanks at either end as dots.
std::string visible(TextView text);

/// A string of JSON, with its quotes. What is not UTF-8 in it becomes U+FFFD.
std::string jsonString(std::string_view utf8);

}  // namespace kob::command
