// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Filling.h"

#include "Languages.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <functional>
#include <vector>

namespace kob::demo {

using namespace Qt::StringLiterals;

namespace {

using Visit = std::function<void(const QString& path, KOBTraductionObj& entry)>;

// Calls `visit` with every text of the reference language; returns how many cells hold one.
int visitEntries(const KOBModeleTraduction& model, const Visit& visit) {
  int cells = 0;
  std::vector<std::shared_ptr<KOBCellTraduction>> open{model.Racine()};
  while (!open.empty()) {
    const std::shared_ptr<KOBCellTraduction> cell = open.back();
    open.pop_back();
    const QString path = qt::toQString(cell->GetCellPath());
    bool hasTexts = false;
    const auto take = [&](KOBTraductionObj& entry) {
      if (!entry.ColTraduction()->Item(1).empty()) {
        visit(path, entry);
        hasTexts = true;
      }
    };
    if (cell->TypeFeuille() == 1 && cell->Traduction() != nullptr) {
      take(*cell->Traduction());
    } else if (cell->TypeFeuille() == 2) {
      for (std::int32_t i = 1; i <= cell->ColTraduction()->Count(); ++i) {
        take(*cell->ColTraduction()->Item(i));
      }
    }
    cells += hasTexts ? 1 : 0;
    if (cell->TypeCell() == 1) {
      for (std::int32_t i = 1; i <= cell->ColCell()->Count(); ++i) {
        open.push_back(cell->ColCell()->Item(i));
      }
    }
  }
  return cells;
}

bool isComplete(const KOBTraductionObj& entry) {
  const auto& texts = *entry.ColTraduction();
  for (std::size_t language = 1; language <= languages.size(); ++language) {
    if (texts.Item(static_cast<std::int32_t>(language)).empty()) {
      return false;
    }
  }
  return true;
}

/// A factor that was never assigned is the small integer that its list was made with.
bool isAssigned(const KOBCellTraduction& cell, bool isWidth, std::int32_t language) {
  return (isWidth ? cell.ColWidth() : cell.ColLeft())->Item(language).isDouble();
}

void fillFactors(KOBModeleTraduction& model, const TextTable& table, Fill what, Filled& filled) {
  for (const TextTable::Factor& factor : table.factors()) {
    const std::shared_ptr<KOBCellTraduction> cell = model.GetCell(qt::toText(factor.path));
    if (cell == nullptr || cell->TypeFeuille() != 2) {
      filled.errors += u"the table has factors for a control that is not recorded: "_s + factor.path;
      continue;
    }
    for (std::size_t i = 0; i < factor.values.size(); ++i) {
      const auto language = static_cast<std::int32_t>(i) + 2;
      if (what == Fill::Gaps && isAssigned(*cell, factor.isWidth, language)) {
        continue;
      }
      if (factor.isWidth) {
        cell->ChangeWidth(factor.values[i], language);
      } else {
        cell->ChangeLeft(factor.values[i], language);
      }
      ++filled.factors;
    }
  }
}

}  // namespace

Filled countTexts(const KOBModeleTraduction& model) {
  Filled counted;
  counted.cells =
      visitEntries(model, [&counted](const QString&, KOBTraductionObj&) { ++counted.references; });
  return counted;
}

Filled fill(KOBModeleTraduction& model, TextTable& table, Fill what) {
  Filled filled;
  filled.errors = table.errors();
  filled.cells = visitEntries(model, [&](const QString& path, KOBTraductionObj& entry) {
    ++filled.references;
    const QString french = qt::toQString(entry.ColTraduction()->Item(1));
    const std::optional<TextTable::Texts> texts = table.find(path, french);
    if (!texts) {
      if (what == Fill::Gaps && isComplete(entry)) {
        return;
      }
      filled.errors += u"the table lacks \"%1\" (%2, %3)"_s.arg(french, path, qt::toQString(entry.nom()));
      return;
    }
    for (std::size_t i = 0; i < texts->size(); ++i) {
      const auto language = static_cast<std::int32_t>(i) + 2;
      if (what == Fill::All || entry.ColTraduction()->Item(language).empty()) {
        entry.ChangeTraduction(qt::toText((*texts)[i]), language);
        ++filled.texts;
      }
    }
  });
  for (const QString& text : table.unused()) {
    filled.errors += u"the table has a text that no form shows: \"%1\""_s.arg(text);
  }
  fillFactors(model, table, what, filled);
  return filled;
}

}  // namespace kob::demo
