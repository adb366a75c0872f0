// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TreeListing.h"

#include "ModelTexts.h"
#include "Utf8.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace kob::command {

namespace {

constexpr const char* notTranslated = "–";

std::vector<std::int32_t> usedLanguages(const KOBModeleTraduction& model) {
  std::vector<bool> isUsed(static_cast<std::size_t>(model.NbLangues()) + 1);
  for (const CellPlace& place : cellsOf(model)) {
    for (const KOBTraductionObj* const entry : entriesOf(*place.cell)) {
      for (std::int32_t langue = 2; langue <= model.NbLangues(); ++langue) {
        isUsed[static_cast<std::size_t>(langue)] =
            isUsed[static_cast<std::size_t>(langue)] || !textIn(*entry, langue).empty();
      }
    }
  }
  std::vector<std::int32_t> languages;
  for (std::int32_t langue = 2; langue <= model.NbLangues(); ++langue) {
    if (isUsed[static_cast<std::size_t>(langue)]) {
      languages.push_back(langue);
    }
  }
  return languages;
}

std::string factorText(const FactorList* factors, const char* which, std::int32_t langue) {
  if (factors == nullptr || langue > factors->Count() || factors->Item(langue).value() == 1.0) {
    return {};
  }
  std::array<char, 48> text{};
  std::snprintf(text.data(), text.size(), "  %s x %.4g", which, factors->Item(langue).value());
  return text.data();
}

/// Letters as a person counts them, nearly: units that are not the second half of a pair.
std::size_t lettersIn(const std::string& utf8) {
  return static_cast<std::size_t>(
      std::count_if(utf8.begin(), utf8.end(), [](char byte) { return (byte & 0xC0) != 0x80; }));
}

class Listing {
 public:
  Listing(const KOBModeleTraduction& model, const KOBCellTraduction& top, const ListingOptions& options)
      : options_(options), places_(cellsOf(model)) {
    const auto isTop = [&top](const CellPlace& place) { return place.cell == &top; };
    first_ = static_cast<std::size_t>(std::find_if(places_.begin(), places_.end(), isTop) - places_.begin());
    last_ = first_ + 1;
    while (last_ < places_.size() && places_[last_].depth > places_[first_].depth) {
      ++last_;
    }
    if (options_.languages.empty()) {
      options_.languages = usedLanguages(model);
    }
    // The text of the form stands above each translation, whatever was asked for.
    std::erase(options_.languages, 1);
    options_.languages.insert(options_.languages.begin(), 1);
    chooseRows();
  }

  std::string text() {
    // The root itself says nothing: its children stand at the margin.
    const bool isWhole = first_ == 0;
    for (std::size_t i = first_ + (isWhole ? 1 : 0); i < last_; ++i) {
      if (isShown_[i - first_]) {
        addCell(i, places_[i].depth - places_[first_].depth - (isWhole ? 1 : 0));
      }
    }
    return std::move(text_);
  }

 private:
  bool isWanted(const KOBTraductionObj& entry) const {
    if (!options_.isMissingOnly) {
      return true;
    }
    return !textIn(entry, 1).empty() &&
           std::any_of(options_.languages.begin(), options_.languages.end(),
                       [&entry](std::int32_t langue) { return textIn(entry, langue).empty(); });
  }

  /// Which cells are shown, and which of them is the last one below its parent.
  void chooseRows() {
    isShown_.assign(last_ - first_, !options_.isMissingOnly);
    isLast_.assign(last_ - first_, false);
    hasShownChild_.assign(last_ - first_, false);
    for (std::size_t i = last_; i-- > first_;) {
      const std::vector<KOBTraductionObj*> entries = entriesOf(*places_[i].cell);
      const bool hasText = std::any_of(entries.begin(), entries.end(),
                                       [this](const KOBTraductionObj* entry) { return isWanted(*entry); });
      isShown_[i - first_] = isShown_[i - first_] || hasText;
      if (isShown_[i - first_] && i > first_) {
        const std::size_t parent = places_[i].parent - first_;
        isShown_[parent] = true;
        // The walk goes upwards: the first child that is met is the last one.
        isLast_[i - first_] = !hasShownChild_[parent];
        hasShownChild_[parent] = true;
      }
    }
  }

  void addCell(std::size_t i, std::size_t level) {
    const bool isLast = isLast_[i - first_];
    // One piece of the margin for each level above this one.
    margins_.resize(level > 0 ? level - 1 : 0);
    std::string margin;
    for (const char* const piece : margins_) {
      margin += piece;
    }
    const KOBCellTraduction& cell = *places_[i].cell;
    text_ += margin + (level == 0 ? "" : isLast ? "└── " : "├── ") + nameOf(cell) + "\n";
    if (level > 0) {
      margins_.push_back(isLast ? "    " : "│   ");
      margin += margins_.back();
    }
    addTexts(cell, margin + (hasShownChild_[i - first_] ? "│   " : "    "));
  }

  static std::string nameOf(const KOBCellTraduction& cell) {
    std::string name = cell.nom().empty() ? "(no name)" : visible(cell.nom());
    if (!cell.Alias().empty() && cell.Alias() != cell.nom()) {
      name += "  (" + visible(cell.Alias()) + ")";
    }
    return name;
  }

  void addTexts(const KOBCellTraduction& cell, const std::string& margin) {
    for (const KOBTraductionObj* const entry : entriesOf(cell)) {
      if (!isWanted(*entry)) {
        continue;
      }
      std::string label = labelOf(*entry);
      const std::string blanks(lettersIn(label), ' ');
      for (const std::int32_t langue : options_.languages) {
        const TextView text = textIn(*entry, langue);
        text_ += margin + label + "  " + std::to_string(langue) + "  " +
                 (text.empty() ? notTranslated : visible(text)) + "\n";
        label = blanks;
      }
    }
    if (options_.hasFactors && cell.TypeFeuille() == 2) {
      for (const std::int32_t langue : options_.languages) {
        const std::string factors = factorText(cell.ColLeft().get(), "left", langue) +
                                    factorText(cell.ColWidth().get(), "width", langue);
        if (!factors.empty()) {
          text_.append(margin)
              .append("Factors  ")
              .append(std::to_string(langue))
              .append(factors)
              .append("\n");
        }
      }
    }
  }

  ListingOptions options_;
  std::vector<CellPlace> places_;
  /// The part of the places to be listed.
  std::size_t first_ = 0;
  std::size_t last_ = 0;
  std::vector<bool> isShown_;
  std::vector<bool> isLast_;
  std::vector<bool> hasShownChild_;
  std::vector<const char*> margins_;
  std::string text_;
};

}  // namespace

std::string listTree(const KOBModeleTraduction& model, const KOBCellTraduction& top,
                     const ListingOptions& options) {
  return Listing(model, top, options).text();
}

}  // namespace kob::command
