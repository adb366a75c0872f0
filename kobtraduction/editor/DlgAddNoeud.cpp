// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/DlgAddNoeud.h>

namespace kob {

DlgAddNoeud::DlgAddNoeud(WidgetSet& widgets, DialogWindow& owner)
    : window_(widgets.makeWindow(DialogKind::AddNoeud, &owner)),
      lbName_(window_->addLabel({u"lbName"})),
      tbNom_(window_->addTextBox({u"tbNom"})),
      Label2_(window_->addLabel({u"Label2"})),
      tbAlias_(window_->addTextBox({u"tbAlias"})),
      empty_(window_->addOptionButton({u"OptTypFeuille", 0}, nullptr)),
      message_(window_->addOptionButton({u"OptTypFeuille", 1}, &empty_)),
      control_(window_->addOptionButton({u"OptTypFeuille", 2}, &empty_)),
      chkContexte_(window_->addCheckBox({u"chkContexte"})),
      lb1_(window_->addLabel({u"lb1"})),
      tb1_(window_->addTextBox({u"tb1"})),
      lb2_(window_->addLabel({u"lb2"})),
      tb2_(window_->addTextBox({u"tb2"})),
      bOK_(window_->addButton({u"bOK"})),
      bCancel_(window_->addButton({u"bCancel"})) {
  window_->setCaption(u"Ajout d'un noeud");
  lbName_.setCaption(u"Name");
  Label2_.setCaption(u"Alias");
  empty_.setCaption(u"Empty");
  message_.setCaption(u"Message");
  control_.setCaption(u"Controle");
  chkContexte_.setCaption(u"Contexte");
  lb1_.setCaption(u"Message");
  lb2_.setCaption(u"ToolTip");
  bOK_.setCaption(u"OK");
  bCancel_.setCaption(u"Annuler");

  empty_.onClick([this] { chooseKind(0); });
  message_.onClick([this] { chooseKind(1); });
  control_.onClick([this] { chooseKind(2); });
  bOK_.onClick([this] {
    if (!tbNom_.text().empty()) {
      result_ = true;
      window_->hide();
    }
  });
  bCancel_.onClick([this] {
    result_ = false;
    window_->hide();
  });
  empty_.setOn();
}

bool DlgAddNoeud::Ask() {
  window_->showModal();
  return result_;
}

std::int32_t DlgAddNoeud::TypeFeuille() const noexcept {
  return message_.isOn() ? 1 : control_.isOn() ? 2 : 0;
}

void DlgAddNoeud::chooseKind(std::int32_t kind) {
  const bool hasText = kind != 0;
  const bool isControl = kind == 2;
  chkContexte_.setVisible(hasText);
  if (hasText) {
    lb1_.setCaption(isControl ? u"Caption" : u"Message");
  }
  lb1_.setVisible(hasText);
  tb1_.setVisible(hasText);
  lb2_.setVisible(isControl);
  tb2_.setVisible(isControl);
}

}  // namespace kob
