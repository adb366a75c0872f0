// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelCheck.h"

#include "ModelTexts.h"
#include "Utf8.h"

#include <cmath>
#include <set>
#include <unordered_map>
#include <unordered_set>

namespace kob::command {

namespace {

constexpr TextView rootName = u"RACINE";

class Checker {
 public:
  explicit Checker(const KOBModeleTraduction& model) : model_(model) {}

  std::vector<Finding> run() {
    if (model_.Racine()->nom() != rootName) {
      add("the root is named \"" + visible(model_.Racine()->nom()) + "\" and not \"RACINE\"");
    }
    for (const CellPlace& place : cellsOf(model_)) {
      path_ = place.depth == 0 ? std::string() : visible(place.cell->GetCellPath());
      if (place.isRepeated) {
        add("the same cell stands here and elsewhere in the tree");
        continue;
      }
      if (place.depth > 0) {
        checkName(*place.cell);
      }
      checkChildren(*place.cell);
      checkTexts(*place.cell);
    }
    return std::move(findings_);
  }

 private:
  void add(std::string problem) { findings_.push_back({path_, std::move(problem)}); }

  void checkName(const KOBCellTraduction& cell) {
    if (cell.nom().empty()) {
      add("a cell without a name: no path leads to it");
    } else if (cell.nom().find(u'\\') != TextView::npos) {
      add("a name with a \"\\\" in it: no path leads to the cell");
    } else if (cell.nom() == rootName && cell.TypeCell() == 1) {
      add("named like the root: paths of the cells below it leave the name out, and lead elsewhere");
    }
  }

  void checkChildren(const KOBCellTraduction& cell) {
    if (cell.TypeCell() != 1) {
      return;
    }
    if (cell.ColCell() == nullptr) {
      add("a node without a list of children");
      return;
    }
    std::unordered_set<Text> names;
    for (const std::shared_ptr<KOBCellTraduction>& child : *cell.ColCell()) {
      if (child == nullptr) {
        add("a child that is nothing: what stands behind it is not found");
      } else if (!child->nom().empty() && !names.insert(upper(child->nom())).second) {
        add("two children are named \"" + visible(child->nom()) + "\": only the first is found");
      }
    }
  }

  void checkTexts(const KOBCellTraduction& cell) {
    if (cell.TypeFeuille() == 1) {
      if (cell.Traduction() == nullptr) {
        add("a message without its text");
      } else {
        checkEntry(*cell.Traduction());
      }
    } else if (cell.TypeFeuille() == 2) {
      checkControl(cell);
    }
  }

  void checkControl(const KOBCellTraduction& cell) {
    if (cell.ColTraduction() == nullptr) {
      add("a control without a list of texts");
    } else {
      checkControlTexts(*cell.ColTraduction());
    }
    checkFactors(cell.ColLeft().get(), "left");
    checkFactors(cell.ColWidth().get(), "width");
  }

  void checkControlTexts(const EntryList& entries) {
    std::set<Text> names;
    for (const std::shared_ptr<KOBTraductionObj>& entry : entries) {
      if (entry == nullptr) {
        add("a text of a control that is nothing");
        continue;
      }
      const Text name = upper(entry->nom());
      if (name != u"CAPTION" && name != u"TOOLTIP") {
        add("a text named \"" + visible(entry->nom()) + "\": only Caption and ToolTip are ever shown");
      } else if (!names.insert(name).second) {
        add("two texts named \"" + visible(entry->nom()) + "\": only the last is shown");
      }
      checkEntry(*entry);
    }
  }

  void checkEntry(const KOBTraductionObj& entry) {
    const TextList* const texts = entry.ColTraduction().get();
    if (texts == nullptr) {
      add(labelOf(entry) + " has no list of texts");
      return;
    }
    if (texts->Count() < model_.NbLangues()) {
      add(labelOf(entry) + " has " + std::to_string(texts->Count()) + " texts for " +
          std::to_string(model_.NbLangues()) + " languages");
    }
    for (std::int32_t langue = 2; langue <= model_.NbLangues(); ++langue) {
      if (textIn(entry, 1).empty() && !textIn(entry, langue).empty()) {
        add(labelOf(entry) + " has a text in language " + std::to_string(langue) + " and none in language 1");
        return;
      }
    }
  }

  void checkFactors(const FactorList* factors, const char* which) {
    if (factors == nullptr) {
      add(std::string("a control without its list of ") + which + " factors");
      return;
    }
    if (factors->Count() < model_.NbLangues()) {
      add(std::to_string(factors->Count()) + " " + which + " factors for " +
          std::to_string(model_.NbLangues()) + " languages");
    }
    std::int32_t langue = 0;
    for (const Factor& factor : *factors) {
      ++langue;
      if (!std::isfinite(factor.value())) {
        add(std::string("the ") + which + " factor of language " + std::to_string(langue) +
            " is no number that something can be multiplied by");
      }
    }
  }

  const KOBModeleTraduction& model_;
  std::string path_;
  std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> check(const KOBModeleTraduction& model) {
  return Checker(model).run();
}

}  // namespace kob::command
