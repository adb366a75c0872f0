// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForms.h"
#include "LiveModel.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <gmock/gmock.h>

namespace kob::qt::live {
namespace {

using testing::IsEmpty;

struct HarvestControl : testing::Test {
  ClientDialog form;
  KOBModeleTraduction model;
  RecordedBoxes boxes;
};

TEST_F(HarvestControl, MakesTheFormAndTheContainersAsPlainNodes) {
  model.UpdateWithCtrl(hostControl(form.lblRue));
  EXPECT_EQ(print(model),
            "FrmClients\n"
            "  cadre\n"
            "    lblRue Caption \"Rue\"\n");
}

TEST_F(HarvestControl, StandsBelowTheModule) {
  model.UpdateWithCtrl(hostControl(form.btnOk), u"Achats");
  EXPECT_EQ(print(model),
            "Achats\n"
            "  FrmClients\n"
            "    btnOk Caption \"OK\" ToolTip \"Valide\"\n");
}

TEST_F(HarvestControl, FindsTheCellsThatHarvestingTheFormMade) {
  model.UpdateWithForm(hostForm(&form));
  const std::string before = print(model);
  for (QWidget* const control : {static_cast<QWidget*>(form.lblNom), static_cast<QWidget*>(form.cadre),
                                 static_cast<QWidget*>(form.lblRue), static_cast<QWidget*>(form.btnOk)}) {
    model.UpdateWithCtrl(hostControl(control));
  }
  EXPECT_EQ(print(model), before);
  EXPECT_THAT(boxes.questions, IsEmpty());
}

TEST_F(HarvestControl, AnExcludedControlIsHarvestedBelowItsMark) {
  form.btnOk->setProperty("tag", QStringLiteral("pas traduit[C]"));
  model.UpdateWithCtrl(hostControl(form.btnOk));
  EXPECT_EQ(print(model),
            "FrmClients\n"
            "  btnOk\n"
            "    pas traduit [context] Caption \"OK\"\n");
}

TEST_F(HarvestControl, AHiddenControlIsHarvested) {
  form.lblNom->hide();
  model.UpdateWithCtrl(hostControl(form.lblNom));
  EXPECT_NE(model.GetCell(u"FrmClients\\lblNom"), nullptr);
}

TEST_F(HarvestControl, ElementOfAControlArrayKeepsItsIndex) {
  form.lblNom->setProperty("Index", 3);
  model.UpdateWithCtrl(hostControl(form.lblNom));
  EXPECT_NE(model.GetCell(u"FrmClients\\lblNom(3)"), nullptr);
}

TEST_F(HarvestControl, AnActionStandsBelowItsForm) {
  MainForm window;
  model.UpdateWithCtrl(hostControl(window.actQuitter));
  EXPECT_EQ(print(model),
            "FenPrincipale\n"
            "  actQuitter Caption \"Quitter\"\n");
}

TEST_F(HarvestControl, MarkersKeepOneOfTheTextsOut) {
  form.btnOk->setProperty("tag", QStringLiteral("[C]"));
  model.UpdateWithCtrl(hostControl(form.btnOk));
  EXPECT_EQ(print(model),
            "FrmClients\n"
            "  btnOk Caption \"OK\"\n");
}

}  // namespace
}  // namespace kob::qt::live
