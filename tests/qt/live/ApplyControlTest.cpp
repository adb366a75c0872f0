// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForms.h"
#include "LiveModel.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <gmock/gmock.h>

namespace kob::qt::live {
namespace {

using testing::IsEmpty;

struct ApplyControl : testing::Test {
  ApplyControl() {
    model.UpdateWithForm(hostForm(&form));
    setCaption(model, u"FrmClients\\lblNom", 2, u"Name");
    setCaption(model, u"FrmClients\\cadre\\lblRue", 2, u"Street");
    setCaption(model, u"FrmClients\\btnOk", 2, u"Fine");
    setToolTip(model, u"FrmClients\\btnOk", 2, u"Accepts");
  }

  ClientDialog form;
  KOBModeleTraduction model;
  RecordedBoxes boxes;
};

TEST_F(ApplyControl, WritesThatControlAlone) {
  model.TraduitControle(hostControl(form.lblRue), 2);
  EXPECT_EQ(form.lblRue->text(), QStringLiteral("Street"));
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Nom"));
  EXPECT_THAT(boxes.notices, IsEmpty());
}

TEST_F(ApplyControl, ModuleChoosesTheCells) {
  model.UpdateWithForm(hostForm(&form), u"Achats");
  setCaption(model, u"Achats\\FrmClients\\lblNom", 2, u"Buyer");
  model.TraduitControle(hostControl(form.lblNom), 2, u"Achats");
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Buyer"));
}

TEST_F(ApplyControl, AModuleThatNamesNoCellWritesNothingSilently) {
  model.TraduitControle(hostControl(form.lblNom), 2, u"Ventes");
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Nom"));
  EXPECT_THAT(boxes.notices, IsEmpty());
}

TEST_F(ApplyControl, AnExcludedControlIsNotTouched) {
  form.lblNom->setProperty("tag", QStringLiteral("pas traduit[C]"));
  model.TraduitControle(hostControl(form.lblNom), 2);
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Nom"));
  EXPECT_EQ(form.lblNom->property("tag").toString(), QStringLiteral("pas traduit[C]"));
}

TEST_F(ApplyControl, MarkersKeepOneOfTheTexts) {
  form.btnOk->setProperty("tag", QStringLiteral("[T]"));
  model.TraduitControle(hostControl(form.btnOk), 2);
  EXPECT_EQ(form.btnOk->text(), QStringLiteral("OK"));
  EXPECT_EQ(form.btnOk->toolTip(), QStringLiteral("Accepts"));
  form.btnOk->setProperty("tag", QStringLiteral("[C]"));
  form.btnOk->setToolTip(QStringLiteral("Valide"));
  model.TraduitControle(hostControl(form.btnOk), 2);
  EXPECT_EQ(form.btnOk->text(), QStringLiteral("Fine"));
  EXPECT_EQ(form.btnOk->toolTip(), QStringLiteral("Valide"));
}

TEST_F(ApplyControl, ContextOverridesTheTextsAndTheTagReadsAsBefore) {
  std::int32_t erreur = 0;
  model.GetCell(u"FrmClients\\btnOk")->UpdateCtrl(u"", u"Vendre", 1, 1, erreur, u"", u"Vente");
  setCaption(model, u"FrmClients\\btnOk\\Vente", 2, u"Sell");
  form.btnOk->setProperty("tag", QStringLiteral("vente[C]"));
  model.TraduitControle(hostControl(form.btnOk), 2);
  EXPECT_EQ(form.btnOk->text(), QStringLiteral("Sell"));
  EXPECT_EQ(form.btnOk->toolTip(), QStringLiteral("Valide"));
  EXPECT_EQ(form.btnOk->property("tag").toString(), QStringLiteral("vente[C]"));
}

TEST_F(ApplyControl, AToolBarButtonAndAnActionAreControls) {
  MainForm window;
  model.UpdateWithForm(hostForm(&window));
  setCaption(model, u"FenPrincipale\\barre\\btnOuvrir", 2, u"Open");
  setCaption(model, u"FenPrincipale\\actQuitter", 2, u"Quit");
  model.TraduitControle(hostControl(window.btnOuvrir), 2);
  model.TraduitControle(hostControl(window.actQuitter), 2);
  EXPECT_EQ(window.btnOuvrir->text(), QStringLiteral("Open"));
  EXPECT_EQ(window.actQuitter->text(), QStringLiteral("Quit"));
  EXPECT_THAT(boxes.notices, IsEmpty());
}

}  // namespace
}  // namespace kob::qt::live
