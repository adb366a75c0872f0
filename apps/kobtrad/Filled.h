// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kob::command {

/// How many texts a model has in each language, language 1 first; "" does not count.
struct Filled {
  std::size_t entries = 0;
  std::vector<std::size_t> texts;
};

/// Of entries, as allEntriesOf tells them.
Filled filledTexts(const std::vector<KOBTraductionObj*>& entries, std::int32_t languages);

/// What came in between, language by language, as a table for a person that ends with a line break. Language
/// 1 has a line only when it was filled.
std::string filledTable(const Filled& before, const Filled& after);

}  // namespace kob::command
