// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>
#include <kobtraduction/engine/Value.h>

#include <string>
#include <string_view>
#include <vector>

/// The plain text in which forms, trees and operations are written down: one thing per line, indented below
/// what holds it, made of words and values. See docs in tests/golden/README.md.
namespace kob::testing {

/// A line without its indentation; `depth` is how many lines it stands below, by indentation.
struct Line {
  int number = 0;
  int depth = 0;
  std::string text;
};

/// The lines of a text; empty ones and those that begin with "#" are left out.
std::vector<Line> linesOf(std::string_view text);

/// The text with the blanks that all its lines begin with removed, and without empty lines around it, so that
/// an expectation can be indented as the code around it. A text that is not empty ends in a line break.
std::string dedent(std::string_view text);

/// One word of a line: `name`, `"text"`, `key=value` or `-key`.
struct Word {
  std::string key;  ///< what stands in front of "="; the whole word when there is none
  bool hasValue = false;
  bool isText = false;  ///< the value, or a word without "=", was written in quotes
  Text value;           ///< without quotes
};

/// Splits a line; throws std::runtime_error for a quote that does not end.
std::vector<Word> wordsOf(const Line& line);

/// `"text"` with quotes, \" \\ \n \r \t, and \u{...} for other control characters and unpaired surrogates.
std::string quoted(TextView text);
/// A name as it stands when it is one word, else in quotes.
std::string nameText(TextView name);

/// `"text"`, `12`, `1.5`, `true`, `false`, `nothing`.
std::string valueText(const Value& value);
Value valueOf(const Word& word);

[[noreturn]] void badLine(const Line& line, std::string_view why);

}  // namespace kob::testing
