// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/DlgRecherche.h>
#include <kobtraduction/editor/DlgTraduction.h>

namespace kob {

namespace {

// The languages from the second on: nobody searches for untranslated texts of the reference language.
constexpr TextView languages[] = {u"English", u"Nederlands", u"Deutsh", u"Italiano", u"Español"};
constexpr std::int32_t firstLanguage = 2;

}  // namespace

DlgRecherche::DlgRecherche(WidgetSet& widgets, DialogWindow& owner, DlgTraduction& Editeur)
    : Editeur_(Editeur),
      window_(widgets.makeWindow(DialogKind::Recherche, &owner)),
      Frame1_(window_->addFrame({u"Frame1"})),
      byText_(window_->addCheckBox({u"CkSearch", 0, &Frame1_})),
      tbSearchString_(window_->addTextBox({u"tbSearchString", -1, &Frame1_})),
      Frame2_(window_->addFrame({u"Frame2"})),
      byLanguage_(window_->addCheckBox({u"CkSearch", 1, &Frame2_})),
      CbLangueSearch_(window_->addComboBox({u"CbLangueSearch", -1, &Frame2_})),
      bNewSearch_(window_->addButton({u"bNewSearch"})),
      List1_(window_->addListBox({u"List1"})) {
  window_->setCaption(u"Recherche");
  Frame1_.setCaption(u"Recherche de chaine");
  Frame2_.setCaption(u"Non Traduit");
  bNewSearch_.setCaption(u"Nouvelle Recherche");
  for (const TextView language : languages) {
    CbLangueSearch_.add(language);
  }

  // Each box follows the other; the answer to the answer changes nothing any more.
  byText_.onClick([this] { byLanguage_.setChecked(!byText_.isChecked()); });
  byLanguage_.onClick([this] { byText_.setChecked(!byLanguage_.isChecked()); });
  byText_.setChecked(true);
  bNewSearch_.onClick([this] { search(); });
  List1_.onClick([this] { clickHit(); });
}

void DlgRecherche::Open() {
  if (Modele_ != &Editeur_.Modele()) {
    Modele_ = &Editeur_.Modele();
    Resultats_ = nullptr;
  }
  Activate();
  window_->showModal();
}

void DlgRecherche::Activate() {
  if (CbLangueSearch_.listIndex() < 0) {
    CbLangueSearch_.setListIndex(0);
  }
  fillList();
}

void DlgRecherche::fillList() {
  if (Resultats_ == nullptr) {
    return;
  }
  List1_.clear();
  for (const auto& cell : *Resultats_) {
    List1_.add(cell->nom());
  }
}

void DlgRecherche::search() {
  if (byText_.isChecked() && !tbSearchString_.text().empty()) {
    Resultats_ = std::make_unique<CellResults>();
    Editeur_.Modele().SearchString(tbSearchString_.text(), Resultats_.get());
  } else if (byLanguage_.isChecked()) {
    Resultats_ = std::make_unique<CellResults>();
    Editeur_.Modele().SearchNonTraduit(CbLangueSearch_.listIndex() + firstLanguage, Resultats_.get());
  } else {
    return;
  }
  fillList();
}

void DlgRecherche::clickHit() {
  const std::int32_t line = List1_.listIndex();
  if (line >= 0 && Resultats_ != nullptr && line < Resultats_->Count()) {
    // By position: two hits may look alike. The list may go while the editor works.
    const std::shared_ptr<KOBCellTraduction> hit = Resultats_->Item(line + 1);
    Editeur_.SelectCell(*hit);
    window_->hide();
  }
}

}  // namespace kob
