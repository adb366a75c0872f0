// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/editor/DlgAddNoeud.h>
#include <kobtraduction/editor/DlgAddTrad.h>
#include <kobtraduction/editor/DlgTraduction.h>
#include <kobtraduction/model/Entries.h>

namespace kob {

namespace {

std::shared_ptr<KOBTraductionObj> namedEntry(TextView name) {
  auto entry = std::make_shared<KOBTraductionObj>();
  entry->setnom(name);
  return entry;
}

/// A text that is not given makes no entry.
void addEntry(KOBCellTraduction& control, TextView name, const Text& text) {
  if (!text.empty()) {
    auto entry = namedEntry(name);
    entry->ChangeTraduction(text, 1);
    required(control.ColTraduction()).Add(std::move(entry));
  }
}

}  // namespace

void DlgTraduction::addCell() {
  if (Cell_ == nullptr) {
    return;
  }
  // Asking is enough to make a leaf a branch, also when the answer is "Annuler".
  if (Cell_->TypeCell() == 2) {
    Cell_->setTypeCell(1);
    changed();
  }
  DlgAddNoeud dialog(set_, *window_);
  if (dialog.Ask()) {
    std::int32_t error = 0;
    if (const auto cell = Cell_->AddNoeuds(dialog.nom(), &error, dialog.Alias())) {
      fillNewCell(*cell, dialog);
      changed();
    } else {
      Global_Util::messageBoxes().notice(u"Ce noeud existe déja");
    }
  }
  FillTV();
}

void DlgTraduction::fillNewCell(KOBCellTraduction& cell, const DlgAddNoeud& dialog) {
  cell.setTypeCell(2);
  cell.setTypeFeuille(dialog.TypeFeuille());
  if (dialog.TypeFeuille() == 0) {
    // The box is hidden for such a cell, whatever it says.
    return;
  }
  if (dialog.Contexte()) {
    cell.setContexte(true);
  }
  if (dialog.TypeFeuille() == 1) {
    cell.Traduction()->ChangeTraduction(dialog.text1(), 1);
  } else {
    addEntry(cell, u"Caption", dialog.text1());
    addEntry(cell, u"ToolTip", dialog.text2());
  }
}

void DlgTraduction::deleteCell() {
  if (Cell_ == nullptr ||
      !Global_Util::messageBoxes().question(u"Voulez Supprimer ce noeuds ainsi que ses fils?")) {
    return;
  }
  CellList& siblings = required(required(Cell_->parentcell()).ColCell());
  std::int32_t position = 1;
  for (const auto& sibling : siblings) {
    if (sibling == Cell_) {
      siblings.Remove(position);
      changed();
      break;
    }
    ++position;
  }
  FillTV();
}

void DlgTraduction::addTranslationName() {
  if (Cell_ == nullptr) {
    return;
  }
  DlgAddTrad dialog(set_, *window_);
  if (!dialog.Ask()) {
    return;
  }
  EntryList& entries = required(Cell_->ColTraduction());
  for (const auto& entry : entries) {
    // Letter by letter: a name in other letters is another name.
    if (required(entry).nom() == dialog.nom()) {
      Global_Util::messageBoxes().notice(u"Cette Traduction existe déja");
      return;
    }
  }
  entries.Add(namedEntry(dialog.nom()));
  known_.prepare();
  changed();
  w.LstNomTrad.add(dialog.nom());
  w.LstNomTrad.setListIndex(w.LstNomTrad.count() - 1);
}

void DlgTraduction::deleteTranslationName() {
  if (Cell_ == nullptr || w.LstNomTrad.listIndex() < 0 || required(Cell_->ColTraduction()).Count() < 2) {
    return;
  }
  if (!Global_Util::messageBoxes().question(u"Voulez vous supprimer cette Traduction")) {
    return;
  }
  required(Cell_->ColTraduction()).Remove(w.LstNomTrad.listIndex() + 1);
  known_.prepare();
  changed();
  // This clears the guard also after a search hit.
  const Updating updating(*this, false);
  DisplayCell(w.TV.selected());
}

}  // namespace kob
