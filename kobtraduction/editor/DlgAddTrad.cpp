// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/DlgAddTrad.h>

namespace kob {

DlgAddTrad::DlgAddTrad(WidgetSet& widgets, DialogWindow& owner)
    : window_(widgets.makeWindow(DialogKind::AddTrad, &owner)),
      Label1_(window_->addLabel({u"Label1"})),
      tbNomTrad_(window_->addTextBox({u"tbNomTrad"})),
      bOk_(window_->addButton({u"bOk"})),
      bCancel_(window_->addButton({u"bCancel"})) {
  window_->setCaption(u"Ajout d'une traduction");
  Label1_.setCaption(u"Nom");
  bOk_.setCaption(u"OK");
  bCancel_.setCaption(u"Annuler");

  bOk_.onClick([this] {
    if (!tbNomTrad_.text().empty()) {
      result_ = true;
      window_->hide();
    }
  });
  bCancel_.onClick([this] {
    result_ = false;
    window_->hide();
  });
}

bool DlgAddTrad::Ask() {
  window_->showModal();
  return result_;
}

}  // namespace kob
