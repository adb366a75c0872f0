// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <cstddef>
#include <string>
#include <vector>

namespace kob::command {

/// How much of one language is there.
struct LanguageCoverage {
  std::int32_t langue;
  /// Texts that the language has, of those that language 1 has.
  std::size_t translated = 0;
  /// Of these, what UpdateTestLangue made: nobody translated it.
  std::size_t test = 0;
};

struct Coverage {
  /// Texts of language 1 that are not "", and the cells that hold one.
  std::size_t texts = 0;
  std::size_t cells = 0;
  /// One for each language from 1.
  std::vector<LanguageCoverage> languages;
};

Coverage coverageOf(const KOBModeleTraduction& model);

/// Per cent with one decimal, rounded down: 100.0 only when nothing is missing. All of nothing is 100.0.
std::string percent(std::size_t part, std::size_t whole);

/// A table for a person, and one object of JSON; both end with a line break.
std::string coverageTable(const Coverage& coverage, const std::string& file);
std::string coverageJson(const Coverage& coverage, const std::string& file);

}  // namespace kob::command
