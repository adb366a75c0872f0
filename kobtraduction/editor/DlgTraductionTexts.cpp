// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/DlgTraduction.h>
#include <kobtraduction/model/Entries.h>

#include <algorithm>

namespace kob {

namespace {

constexpr std::int32_t asInteger(std::size_t slot) {
  return static_cast<std::int32_t>(slot);
}

void clearTexts(const PerLanguage<TextBox>& boxes) {
  for (TextBox* const box : boxes) {
    box->setText({});
  }
}

/// Puts the texts into the boxes; what has no box is not shown, what has no text keeps its box as it is.
void showTexts(const TextList& texts, const PerLanguage<TextBox>& boxes) {
  const std::int32_t shown = std::min(texts.Count(), asInteger(boxes.size()));
  for (std::int32_t i = 1; i <= shown; ++i) {
    boxes[static_cast<std::size_t>(i) - 1]->setText(texts.Item(i));
  }
}

}  // namespace

void DlgTraduction::connectTexts() {
  w.LstNomTrad.onClick(handler([this] { clickTranslationName(); }));
  w.tbNom.onChange(handler([this] {
    // Of a context cell this box shows the parent's name; typing renames the cell itself all the same.
    if (isRecording()) {
      Cell_->setnom(w.tbNom.text());
      changed();
    }
  }));
  w.tbAlias.onChange(handler([this] {
    if (isRecording()) {
      Cell_->setAlias(w.tbAlias.text());
      changed();
    }
  }));
  for (std::size_t i = 0; i < shownLanguages; ++i) {
    w.tbTradMessage[i]->onChange(handler([this, i] {
      if (isRecording() && Cell_->TypeFeuille() == 1) {
        changeText(required(Cell_->Traduction()), w.tbTradMessage[i]->text(), asInteger(i) + 1);
      }
    }));
    w.tbTradCtrl[i]->onChange(handler([this, i] {
      if (isRecording() && Cell_->TypeFeuille() == 2 && w.LstNomTrad.listIndex() >= 0) {
        changeText(selectedEntry(), w.tbTradCtrl[i]->text(), asInteger(i) + 1);
      }
    }));
  }
  for (std::size_t kind = 0; kind < w.OptTypFeuille.size(); ++kind) {
    w.OptTypFeuille[kind]->onClick(handler([this, kind] {
      if (isRecording()) {
        Cell_->setTypeFeuille(asInteger(kind));
        changed();
        FillTV();
      }
    }));
  }
  w.chkContexte.onClick(handler([this] {
    if (!isRecording()) {
      return;
    }
    const bool isContext = w.chkContexte.isChecked();
    Cell_->setContexte(isContext);
    changed();
    // A cell that is shown without a node in the tree has no picture.
    if (const Node node = w.TV.selected(); node != 0) {
      const bool isControl = Cell_->TypeFeuille() == 2;
      w.TV.setImage(node, isControl ? (isContext ? 3 : 2) : (isContext ? 5 : 4));
    }
  }));
}

KOBTraductionObj& DlgTraduction::selectedEntry() const {
  return required(required(Cell_->ColTraduction()).Item(w.LstNomTrad.listIndex() + 1));
}

void DlgTraduction::changeText(KOBTraductionObj& entry, TextView text, std::int32_t language) {
  const std::shared_ptr<TextList> texts = entry.ColTraduction();
  const bool differs = language <= model_.NbLangues() && texts != nullptr && language <= texts->Count() &&
                       texts->Item(language) != text;
  if (differs && language == 1) {
    known_.changeReference(entry, text);
  } else {
    entry.ChangeTraduction(text, language);
  }
  if (differs) {
    changed();
  }
}

void DlgTraduction::DisplayCell(Node node) {
  if (node == 0) {
    w.bAdd.setVisible(false);
    w.bSupp.setVisible(false);
    w.FrName.setVisible(false);
    w.FrControl.setVisible(false);
    w.FrMessage.setVisible(false);
    return;
  }
  if (Mode_ != restricted) {
    w.bAdd.setVisible(true);
    w.bSupp.setVisible(true);
  }
  // By its path, not by identity: the tag of a cell that was renamed, deleted or doubled leads elsewhere or
  // nowhere.
  Cell_ = model_.GetCell(w.TV.tag(node));
  if (Cell_ == nullptr) {
    w.tbNom.setText({});
    w.tbAlias.setText({});
    return;
  }
  displayName();
  clearTexts(w.tbTradCtrl);
  clearTexts(w.tbTradMessage);
  w.FrName.setVisible(true);
  w.FrMessage.setVisible(Cell_->TypeFeuille() == 1);
  w.FrControl.setVisible(Cell_->TypeFeuille() == 2);
  if (Cell_->TypeFeuille() == 1) {
    displayMessage();
  } else if (Cell_->TypeFeuille() == 2) {
    displayControl();
  }
}

void DlgTraduction::displayName() {
  w.tbNom.setText(Cell_->nom());
  w.tbAlias.setText(Cell_->Alias());
  w.OptTypFeuille[static_cast<std::size_t>(Cell_->TypeFeuille())]->setOn();
  const bool isContext = Cell_->Contexte();
  w.lContexte.setVisible(isContext);
  w.tbContexte.setVisible(isContext);
  if (isContext) {
    w.tbNom.setText(required(Cell_->parentcell()).nom());
    w.tbContexte.setText(Cell_->nom());
  }
  w.chkContexte.setChecked(isContext);
}

void DlgTraduction::displayMessage() {
  showTexts(textsOf(required(Cell_->Traduction())), w.tbTradMessage);
}

void DlgTraduction::displayControl() {
  w.LstNomTrad.clear();
  for (const auto& entry : required(Cell_->ColTraduction())) {
    w.LstNomTrad.add(required(entry).nom());
  }
  if (w.LstNomTrad.count() > 0) {
    w.LstNomTrad.setListIndex(0);
  }
  if (Mode_ != restricted) {
    displayPosition();
  }
}

void DlgTraduction::clickTranslationName() {
  const Updating updating(*this);
  if (w.LstNomTrad.listIndex() < 0) {
    // The reference text stays where it is.
    for (std::size_t i = 1; i < shownLanguages; ++i) {
      w.tbTradCtrl[i]->setText({});
    }
  } else if (Cell_ != nullptr) {
    // The list outlives its cell when the clicked node leads nowhere.
    showTexts(textsOf(selectedEntry()), w.tbTradCtrl);
  }
}

}  // namespace kob
