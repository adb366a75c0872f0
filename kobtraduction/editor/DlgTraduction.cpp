// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/editor/DlgRecherche.h>
#include <kobtraduction/editor/DlgTraduction.h>
#include <kobtraduction/editor/ShowUnsaved.h>

#include <utility>

namespace kob {

namespace {

WidgetSet& widgetsOfThread() {
  WidgetSet* const widgets = widgetSet();
  if (widgets == nullptr) {
    throw Failure(FailureKind::ObjectNotSet);
  }
  return *widgets;
}

}  // namespace

void KOBModeleTraduction::Show(std::int32_t mode, TextView path) {
  DlgTraduction dialog(widgetsOfThread(), *this, path.empty() ? nullptr : GetCell(path), mode);
  dialog.Show();
}

void showUnsaved(KOBModeleTraduction& model, std::int32_t mode, TextView path) {
  DlgTraduction dialog(widgetsOfThread(), model, path.empty() ? nullptr : model.GetCell(path), mode);
  dialog.setUnsaved();
  dialog.Show();
}

DlgTraduction::DlgTraduction(WidgetSet& widgets, KOBModeleTraduction& Modele,
                             std::shared_ptr<KOBCellTraduction> Cell, std::int32_t Mode)
    : set_(widgets),
      window_(widgets.makeWindow(DialogKind::Traduction, nullptr)),
      w(*window_),
      model_(Modele),
      Cell_(std::move(Cell)),
      Mode_(Mode),
      known_(Modele) {
  connect();
  connectTexts();
  connectPosition();
  w.DlgFile.setFilter(u"Fichiers Traductions(*.trad)|*.trad");
  m_Recherche = std::make_unique<DlgRecherche>(set_, *window_, *this);
}

DlgTraduction::~DlgTraduction() = default;

void DlgTraduction::connect() {
  w.m_Save.onClick(handler([this] { save(); }));
  w.m_SaveAs.onClick(handler([this] { saveAs(); }));
  w.m_Search.onClick(handler([this] { m_Recherche->Open(); }));
  w.TV.onNodeClick(handler([this](Node node) { clickNode(node); }));
  w.bAdd.onClick(handler([this] { addCell(); }));
  w.bSupp.onClick(handler([this] { deleteCell(); }));
  w.bAddTrad.onClick(handler([this] { addTranslationName(); }));
  w.bSupTrad.onClick(handler([this] { deleteTranslationName(); }));
}

void DlgTraduction::Show() {
  handler([this] { Activate(); })();
  window_->showModal();
}

void DlgTraduction::Activate() {
  showTitle();
  w.TV.setImageList(w.ImageList1);
  if (Mode_ == restricted) {
    restrict();
  }
  FillTV();
}

void DlgTraduction::restrict() {
  w.FrName.setEnabled(false);
  w.bAdd.setVisible(false);
  w.bSupp.setVisible(false);
  w.bAddTrad.setVisible(false);
  w.bSupTrad.setVisible(false);
  w.chkPosition.setVisible(false);
  w.chkContexte.setVisible(true);
  for (std::size_t i = 0; i < shownLanguages; ++i) {
    w.bl1[i]->setVisible(false);
    w.bw1[i]->setVisible(false);
    w.sldLeft[i]->setVisible(false);
    w.sldwidth[i]->setVisible(false);
  }
  // The reference texts are those of the forms themselves.
  w.tbTradMessage[0]->setLocked(true);
  w.tbTradCtrl[0]->setLocked(true);
}

void DlgTraduction::showTitle() {
  const Text& file = model_.Fichier();
  window_->setCaption(file.empty() ? Text(u"Traduction") : u"Traduction - " + file);
}

void DlgTraduction::showStatus() {
  w.lbStatus.setCaption(m_Updating ? u"Après cette recherche, ce qui est saisi n'est pas enregistré tant que "
                                     u"l'arbre n'est pas reconstruit."
                                   : u"");
}

void DlgTraduction::save() {
  if (model_.Fichier().empty()) {
    saveAs();
  } else {
    saveTo(model_.Fichier());
  }
}

void DlgTraduction::saveAs() {
  w.DlgFile.setFileName(model_.Fichier());
  const Text chosen = w.DlgFile.showSave();
  if (!chosen.empty()) {
    saveTo(chosen);
    // Also when saving has failed: the next attempt goes to the same place.
    model_.setFichier(chosen);
    showTitle();
  }
}

void DlgTraduction::saveTo(TextView file) {
  // Save tells the person itself what went wrong; the title goes on telling that something is to be saved.
  if (model_.Save(file)) {
    window_->setModified(false);
  }
}

}  // namespace kob
