// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Filled.h"

#include "ModelTexts.h"

#include <array>
#include <cstdio>

namespace kob::command {

Filled filledTexts(const KOBModeleTraduction& model) {
  Filled filled;
  filled.texts.resize(static_cast<std::size_t>(model.NbLangues()));
  for (const CellPlace& place : cellsOf(model)) {
    if (place.isRepeated) {
      continue;
    }
    for (const KOBTraductionObj* const entry : entriesOf(*place.cell)) {
      ++filled.entries;
      for (std::size_t i = 0; i < filled.texts.size(); ++i) {
        filled.texts[i] += textIn(*entry, static_cast<std::int32_t>(i) + 1).empty() ? 0 : 1;
      }
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
