// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForms.h"
#include "LiveModel.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <gmock/gmock.h>

namespace kob::qt::live {
namespace {

struct Path : testing::Test {
  std::string pathOf(QWidget* control, TextView module = {}) const {
    return utf8(model.GetPath(hostControl(control), module));
  }

  KOBModeleTraduction model;
};

TEST_F(Path, OfAForm) {
  ClientDialog form;
  EXPECT_EQ(utf8(model.GetPath(hostForm(&form))), "\\FrmClients");
  EXPECT_EQ(utf8(model.GetPath(hostForm(&form), u"Achats")), "Achats\\FrmClients");
}

TEST_F(Path, OfAFormIgnoresItsParentWindow) {
  QMainWindow owner;
  owner.setObjectName(QStringLiteral("owner"));
  QDialog form(&owner);
  form.setObjectName(QStringLiteral("FrmEnfant"));
  EXPECT_EQ(utf8(model.GetPath(hostForm(&form))), "\\FrmEnfant");
  EXPECT_EQ(pathOf(addLabel(form, "lbl", "x")), "\\FrmEnfant\\lbl");
}

TEST_F(Path, OfAControlOnTheForm) {
  ClientDialog form;
  EXPECT_EQ(pathOf(form.btnOk), "\\FrmClients\\btnOk");
}

TEST_F(Path, NamesContainersOutermostFirst) {
  ClientDialog form;
  EXPECT_EQ(pathOf(form.lblRue), "\\FrmClients\\cadre\\lblRue");
  EXPECT_EQ(pathOf(form.lblRue, u"Achats"), "Achats\\FrmClients\\cadre\\lblRue");
}

TEST_F(Path, WritesTheIndexInParentheses) {
  ClientDialog form;
  form.btnOk->setProperty("Index", 0);
  EXPECT_EQ(pathOf(form.btnOk), "\\FrmClients\\btnOk(0)");
  form.btnOk->setProperty("Index", -1);
  EXPECT_EQ(pathOf(form.btnOk), "\\FrmClients\\btnOk");
}

TEST_F(Path, IndexOfAContainerIsPartOfThePath) {
  ClientDialog form;
  form.cadre->setProperty("Index", 7);
  EXPECT_EQ(pathOf(form.lblRue), "\\FrmClients\\cadre(7)\\lblRue");
}

TEST_F(Path, EndsWithTheContext) {
  ClientDialog form;
  form.btnOk->setProperty("tag", QStringLiteral("Vente[C]"));
  EXPECT_EQ(pathOf(form.btnOk), "\\FrmClients\\btnOk\\Vente");
  form.btnOk->setProperty("tag", QStringLiteral("[T]"));
  EXPECT_EQ(pathOf(form.btnOk), "\\FrmClients\\btnOk");
  form.btnOk->setProperty("tag", QStringLiteral("x[C][T]"));
  EXPECT_EQ(pathOf(form.btnOk), "\\FrmClients\\btnOk\\x[C]");
  form.btnOk->setProperty("tag", QStringLiteral("PAS TRADUIT"));
  EXPECT_EQ(pathOf(form.btnOk), "\\FrmClients\\btnOk\\PAS TRADUIT");
}

TEST_F(Path, ANumberAsTagReadsAsText) {
  ClientDialog form;
  form.btnOk->setProperty("tag", 7);
  EXPECT_EQ(pathOf(form.btnOk), "\\FrmClients\\btnOk\\7");
  EXPECT_EQ(form.btnOk->property("tag"), QVariant(7));
}

TEST_F(Path, OfMenusAndActions) {
  MainForm form;
  EXPECT_EQ(pathOf(form.mnuFichier), "\\FenPrincipale\\mnuFichier");
  EXPECT_EQ(utf8(model.GetPath(hostControl(form.actQuitter))), "\\FenPrincipale\\actQuitter");
}

TEST_F(Path, OfAToolBarButtonAndItsMenu) {
  MainForm form;
  EXPECT_EQ(pathOf(form.btnOuvrir), "\\FenPrincipale\\barre\\btnOuvrir");
  EXPECT_EQ(utf8(model.GetPath(hostControl(form.actRecent))), "\\FenPrincipale\\barre\\btnOuvrir\\actRecent");
}

TEST_F(Path, SkipsTheToolkitsOwnContainers) {
  TabDialog form;
  EXPECT_EQ(pathOf(form.lblPage), "\\FrmOnglets\\onglets\\pageUn\\lblPage");
}

TEST_F(Path, FindsTheCellThatHarvestingMade) {
  ClientDialog dialog;
  MainForm window;
  TabDialog tabs;
  model.UpdateWithForm(hostForm(&dialog));
  model.UpdateWithForm(hostForm(&window));
  model.UpdateWithForm(hostForm(&tabs));
  for (QWidget* const control :
       {static_cast<QWidget*>(dialog.lblNom), static_cast<QWidget*>(dialog.lblRue),
        static_cast<QWidget*>(window.btnOuvrir), static_cast<QWidget*>(window.mnuFichier),
        static_cast<QWidget*>(tabs.lblPage), static_cast<QWidget*>(tabs.onglets)}) {
    EXPECT_NE(model.GetCell(model.GetPath(hostControl(control))), nullptr) << pathOf(control);
  }
}

TEST_F(Path, ReadingAPathLeavesTheModelEmpty) {
  ClientDialog form;
  pathOf(form.lblRue);
  EXPECT_EQ(print(model), "");
}

}  // namespace
}  // namespace kob::qt::live
