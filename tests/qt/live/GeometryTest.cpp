// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForms.h"
#include "LiveModel.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QHBoxLayout>

#include <gmock/gmock.h>

namespace kob::qt::live {
namespace {

using testing::IsEmpty;

struct Geometry : testing::Test {
  Geometry() { model.UpdateWithForm(hostForm(&form)); }

  ClientDialog form;
  KOBModeleTraduction model;
  RecordedBoxes boxes;
};

TEST_F(Geometry, FactorsMultiplyWhatTheControlHasAndTruncate) {
  setLeftFactor(model, u"FrmClients\\btnOk", 2, 1.5);
  setWidthFactor(model, u"FrmClients\\btnOk", 2, 1.5);
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(form.btnOk->geometry(), QRect(451, 260, 112, 30));
}

TEST_F(Geometry, FactorsOfOneZeroAndBelowLeaveTheControlAlone) {
  for (const double factor : {1.0, 0.0, -1.0}) {
    setLeftFactor(model, u"FrmClients\\btnOk", 2, factor);
    setWidthFactor(model, u"FrmClients\\btnOk", 2, factor);
    model.TraduitDialog(hostForm(&form), 2);
    EXPECT_EQ(form.btnOk->geometry(), QRect(301, 260, 75, 30)) << factor;
  }
}

TEST_F(Geometry, TheEngineCompounds) {
  setWidthFactor(model, u"FrmClients\\lblNom", 2, 2);
  model.TraduitDialog(hostForm(&form), 2);
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(form.lblNom->width(), 400);
  model.TraduitControle(hostControl(form.lblNom), 2);
  EXPECT_EQ(form.lblNom->width(), 800);
}

TEST_F(Geometry, TheFormsOwnWidthIsScaled) {
  setWidthFactor(model, u"FrmClients", 2, 1.25);
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(form.size(), QSize(500, 300));
}

TEST_F(Geometry, ContextFactorsOverrideTheControlsOwn) {
  std::int32_t erreur = 0;
  model.GetCell(u"FrmClients\\btnOk")->UpdateCtrl(u"", u"Vendre", 1, 1, erreur, u"", u"Vente");
  setWidthFactor(model, u"FrmClients\\btnOk", 2, 3);
  setWidthFactor(model, u"FrmClients\\btnOk\\Vente", 2, 2);
  form.btnOk->setProperty("tag", QStringLiteral("Vente[C]"));
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(form.btnOk->width(), 150);
}

TEST_F(Geometry, AControlInsideAFrameIsPlacedInTheFrame) {
  setLeftFactor(model, u"FrmClients\\cadre", 2, 2);
  setLeftFactor(model, u"FrmClients\\cadre\\lblRue", 2, 2);
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(form.cadre->x(), 20);
  EXPECT_EQ(form.lblRue->x(), 40);
}

TEST_F(Geometry, AWidgetThatALayoutPlacesRefuses) {
  QDialog laidOut;
  laidOut.setObjectName(QStringLiteral("FrmLayout"));
  auto* const layout = new QHBoxLayout(&laidOut);
  QLabel* const label = addLabel(laidOut, "lblNom", "Nom");
  layout->addWidget(label);
  laidOut.resize(300, 100);
  laidOut.show();
  const QRect before = label->geometry();
  model.UpdateWithForm(hostForm(&laidOut));
  setCaption(model, u"FrmLayout\\lblNom", 2, u"Name");
  setLeftFactor(model, u"FrmLayout\\lblNom", 2, 3);
  setWidthFactor(model, u"FrmLayout\\lblNom", 2, 3);
  model.TraduitDialog(hostForm(&laidOut), 2);
  EXPECT_EQ(label->text(), QStringLiteral("Name"));
  EXPECT_EQ(label->geometry(), before);
  EXPECT_THAT(boxes.notices, IsEmpty());
}

TEST_F(Geometry, ToolBarButtonsRefuse) {
  MainForm window;
  window.show();
  model.UpdateWithForm(hostForm(&window));
  const QRect before = window.btnOuvrir->geometry();
  setWidthFactor(model, u"FenPrincipale\\barre\\btnOuvrir", 2, 3);
  setLeftFactor(model, u"FenPrincipale\\barre\\btnOuvrir", 2, 3);
  model.TraduitDialog(hostForm(&window), 2);
  EXPECT_EQ(window.btnOuvrir->geometry(), before);
  EXPECT_THAT(boxes.notices, IsEmpty());
}

TEST_F(Geometry, HarvestingRecordsWhetherAControlCanBePlaced) {
  form.lblNom->move(0, 10);
  model.UpdateWithForm(hostForm(&form), u"Autre");
  EXPECT_EQ(model.GetCell(u"Autre\\FrmClients\\btnOk")->m_left(), 1);
  EXPECT_EQ(model.GetCell(u"Autre\\FrmClients\\btnOk")->m_width(), 1);
  EXPECT_EQ(model.GetCell(u"Autre\\FrmClients\\lblNom")->m_left(), -1);
}

}  // namespace
}  // namespace kob::qt::live
