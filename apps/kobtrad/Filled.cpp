// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Filled.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>

namespace kob::command {

Filled filledTexts(const std::vector<KOBTraductionObj*>& entries, std::int32_t languages) {
  Filled filled;
  filled.entries = entries.size();
  filled.texts.resize(static_cast<std::size_t>(languages));
  for (const KOBTraductionObj* const entry : entries) {
    const std::shared_ptr<const TextList> texts = entry->ColTraduction();
    const std::int32_t count = texts != nullptr ? std::min(texts->Count(), languages) : 0;
    for (std::int32_t i = 0; i < count; ++i) {
      filled.texts[static_cast<std::size_t>(i)] += texts->Item(i + 1).empty() ? 0 : 1;
    }
  }
  return filled;
}

std::string filledTable(const Filled& before, const Filled& after) {
  std::string table = "language    filled   missing\n";
  for (std::size_t i = 0; i < after.texts.size(); ++i) {
    const std::size_t filled = after.texts[i] - before.texts[i];
    if (i == 0 && filled == 0) {
      continue;
    }
    std::array<char, 96> line{};
    std::snprintf(line.data(), line.size(), "%8zu  %8zu  %8zu\n", i + 1, filled,
                  after.entries - after.texts[i]);
    table += line.data();
  }
  return table;
}

}  // namespace kob::command
