// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Coverage.h"

#include "ModelTexts.h"
#include "Utf8.h"

#include <array>
#include <cstdio>

namespace kob::command {

namespace {

bool isTestText(TextView text, TextView reference) {
  return text == u"** " + Text(reference) + u" **";
}

/// Twenty signs, full ones for what is there; an incomplete language never looks complete.
std::string bar(std::size_t part, std::size_t whole) {
  constexpr std::size_t width = 20;
  const std::size_t full = whole == 0 ? width : part * width / whole;
  std::string signs;
  for (std::size_t i = 0; i < width; ++i) {
    signs += i < full ? "█" : "░";
  }
  return signs;
}

}  // namespace

Coverage coverageOf(const KOBModeleTraduction& model) {
  Coverage coverage;
  for (std::int32_t langue = 1; langue <= model.NbLangues(); ++langue) {
    coverage.languages.push_back({langue});
  }
  for (const CellPlace& place : cellsOf(model)) {
    if (place.isRepeated) {
      continue;
    }
    bool hasText = false;
    for (const KOBTraductionObj* const entry : entriesOf(*place.cell)) {
      const TextView reference = textIn(*entry, 1);
      if (reference.empty()) {
        continue;
      }
      hasText = true;
      ++coverage.texts;
      for (LanguageCoverage& language : coverage.languages) {
        const TextView text = textIn(*entry, language.langue);
        language.translated += text.empty() ? 0 : 1;
        language.test += isTestText(text, reference) ? 1 : 0;
      }
    }
    coverage.cells += hasText ? 1 : 0;
  }
  return coverage;
}

std::string percent(std::size_t part, std::size_t whole) {
  const std::size_t tenths = whole == 0 ? 1000 : part * 1000 / whole;
  return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

std::string coverageTable(const Coverage& coverage, const std::string& file) {
  std::string table = file + ": " + std::to_string(coverage.texts) + " texts in " +
                      std::to_string(coverage.cells) + " cells, " +
                      std::to_string(coverage.languages.size()) + " languages\n\n" +
                      "language  translated   missing  coverage\n";
  for (const LanguageCoverage& language : coverage.languages) {
    std::array<char, 96> line{};
    std::snprintf(line.data(), line.size(), "%8ld  %10zu  %8zu  %6s %%", static_cast<long>(language.langue),
                  language.translated, coverage.texts - language.translated,
                  percent(language.translated, coverage.texts).c_str());
    table += line.data();
    if (language.langue == 1) {
      table += "  the texts of the forms";
    } else {
      table += "  " + bar(language.translated, coverage.texts);
      table += language.test > 0 ? "  " + std::to_string(language.test) + " are test texts" : "";
    }
    table += "\n";
  }
  return table;
}

std::string coverageJson(const Coverage& coverage, const std::string& file) {
  std::string json = "{\n  \"file\": " + jsonString(file) +
                     ",\n  \"texts\": " + std::to_string(coverage.texts) +
                     ",\n  \"cells\": " + std::to_string(coverage.cells) + ",\n  \"languages\": [";
  const char* divider = "\n";
  for (const LanguageCoverage& language : coverage.languages) {
    json += divider;
    json += "    {\"language\": " + std::to_string(language.langue) +
            ", \"translated\": " + std::to_string(language.translated) +
            ", \"missing\": " + std::to_string(coverage.texts - language.translated) +
            ", \"test\": " + std::to_string(language.test) +
            ", \"percent\": " + percent(language.translated, coverage.texts) + "}";
    divider = ",\n";
  }
  return json + "\n  ]\n}\n";
}

}  // namespace kob::command
