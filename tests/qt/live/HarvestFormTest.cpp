// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForms.h"
#include "LiveModel.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QLineEdit>

#include <gmock/gmock.h>

namespace kob::qt::live {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct HarvestForm : testing::Test {
  KOBModeleTraduction model;
  RecordedBoxes boxes;
};

TEST_F(HarvestForm, RecordsCaptionsAndToolTipsBelowTheContainers) {
  ClientDialog form;
  model.UpdateWithForm(hostForm(&form));
  EXPECT_EQ(print(model),
            "FrmClients Caption \"Clients\"\n"
            "  btnOk Caption \"OK\" ToolTip \"Valide\"\n"
            "  cadre Caption \"Adresse\"\n"
            "    lblRue Caption \"Rue\"\n"
            "  lblNom Caption \"Nom\"\n");
  EXPECT_THAT(boxes.notices, IsEmpty());
  EXPECT_THAT(boxes.questions, IsEmpty());
}

TEST_F(HarvestForm, HarvestingTwiceAsksNothingAndChangesNothing) {
  ClientDialog dialog;
  MainForm window;
  TabDialog tabs;
  for (QWidget* const form :
       {static_cast<QWidget*>(&dialog), static_cast<QWidget*>(&window), static_cast<QWidget*>(&tabs)}) {
    model.UpdateWithForm(hostForm(form));
    setCaption(model, toText(form->objectName()), 2, u"translated");
  }
  const std::string before = print(model);
  for (QWidget* const form :
       {static_cast<QWidget*>(&dialog), static_cast<QWidget*>(&window), static_cast<QWidget*>(&tabs)}) {
    model.UpdateWithForm(hostForm(form));
  }
  EXPECT_EQ(print(model), before);
  EXPECT_EQ(utf8(model.GetCell(u"FrmClients")->ColTraduction()->Item(1)->ColTraduction()->Item(2)),
            "translated");
  EXPECT_THAT(boxes.notices, IsEmpty());
  EXPECT_THAT(boxes.questions, IsEmpty());
}

TEST_F(HarvestForm, ChangesNothingOnTheForm) {
  ClientDialog dialog;
  MainForm window;
  TabDialog tabs;
  const std::string before = printTexts(dialog) + printTexts(window) + printTexts(tabs);
  model.UpdateWithForm(hostForm(&dialog));
  model.UpdateWithForm(hostForm(&window));
  model.UpdateWithForm(hostForm(&tabs));
  EXPECT_EQ(printTexts(dialog) + printTexts(window) + printTexts(tabs), before);
}

TEST_F(HarvestForm, AsksBeforeCaptionAndToolTipAreOverwrittenAndNoKeepsThem) {
  ClientDialog form;
  model.UpdateWithForm(hostForm(&form));
  const std::string before = print(model);
  form.btnOk->setText(QStringLiteral("Accepter"));
  boxes.answer = false;
  model.UpdateWithForm(hostForm(&form));
  EXPECT_THAT(boxes.questions, ElementsAre("Le Controle btnOk existe déja\r\nVoulez vous le modifier?\r\n"
                                           "OK  ->  Accepter\r\nValide  ->  Valide"));
  EXPECT_EQ(print(model), before);
}

TEST_F(HarvestForm, YesOverwrites) {
  ClientDialog form;
  model.UpdateWithForm(hostForm(&form));
  form.btnOk->setText(QStringLiteral("Accepter"));
  model.UpdateWithForm(hostForm(&form));
  EXPECT_EQ(boxes.questions.size(), 1U);
  EXPECT_THAT(print(model), testing::HasSubstr("btnOk Caption \"Accepter\" ToolTip \"Valide\""));
}

TEST_F(HarvestForm, ReplacesACaptionWithoutToolTipSilently) {
  ClientDialog form;
  model.UpdateWithForm(hostForm(&form));
  form.lblNom->setText(QStringLiteral("Prénom"));
  model.UpdateWithForm(hostForm(&form));
  EXPECT_THAT(boxes.questions, IsEmpty());
  EXPECT_THAT(print(model), testing::HasSubstr("lblNom Caption \"Prénom\"\n"));
}

TEST_F(HarvestForm, ModuleCellIsMadeOnceAndHoldsTheForms) {
  ClientDialog first;
  TabDialog second;
  model.UpdateWithForm(hostForm(&first), u"Achats");
  model.UpdateWithForm(hostForm(&second), u"ACHATS");
  EXPECT_EQ(model.Racine()->ColCell()->Count(), 1);
  EXPECT_NE(model.GetCell(u"Achats\\FrmClients\\cadre\\lblRue"), nullptr);
  EXPECT_NE(model.GetCell(u"Achats\\FrmOnglets"), nullptr);
}

TEST_F(HarvestForm, OnlyVisibleLeavesOutHiddenControlsAndWhatStandsInHiddenContainers) {
  ClientDialog form;
  form.cadre->hide();
  form.btnOk->hide();
  model.UpdateWithForm(hostForm(&form), {}, true);
  EXPECT_EQ(print(model),
            "FrmClients Caption \"Clients\"\n"
            "  lblNom Caption \"Nom\"\n");
}

TEST_F(HarvestForm, WithoutOnlyVisibleHiddenControlsAreHarvested) {
  ClientDialog form;
  form.cadre->hide();
  model.UpdateWithForm(hostForm(&form));
  EXPECT_NE(model.GetCell(u"FrmClients\\cadre\\lblRue"), nullptr);
}

TEST_F(HarvestForm, OnlyContainerTakesWhatTheContainersPathBeginsAndTheFormItself) {
  ClientDialog form;
  QGroupBox* const similar = addFrame(form, "cadre2", "Livraison");
  addLabel(*similar, "lblVille", "Ville");
  model.UpdateWithForm(hostForm(&form), {}, false, hostControl(form.cadre));
  EXPECT_EQ(print(model),
            "FrmClients Caption \"Clients\"\n"
            "  cadre Caption \"Adresse\"\n"
            "    lblRue Caption \"Rue\"\n"
            "  cadre2 Caption \"Livraison\"\n"
            "    lblVille Caption \"Ville\"\n");
}

TEST_F(HarvestForm, ExcludedControlIsLeftOutWhateverItsMarkerAndCase) {
  ClientDialog form;
  form.btnOk->setProperty("tag", QStringLiteral("pas traduit[C]"));
  form.lblNom->setProperty("tag", QStringLiteral("PAS TRADUIT"));
  form.lblRue->setProperty("tag", QStringLiteral("Pas Traduit[T]"));
  model.UpdateWithForm(hostForm(&form));
  EXPECT_EQ(print(model),
            "FrmClients Caption \"Clients\"\n"
            "  cadre Caption \"Adresse\"\n");
}

TEST_F(HarvestForm, MarkersKeepOneOfTheTextsOut) {
  ClientDialog form;
  form.btnOk->setProperty("tag", QStringLiteral("[T]"));
  QPushButton* const other = addButton(form, "btnNon", "Non", "Refuse");
  other->setProperty("tag", QStringLiteral("[C]"));
  model.UpdateWithForm(hostForm(&form));
  EXPECT_THAT(print(model), testing::HasSubstr("btnNon Caption \"Non\"\n"));
  EXPECT_THAT(print(model), testing::HasSubstr("btnOk ToolTip \"Valide\"\n"));
}

TEST_F(HarvestForm, ControlWhoseOnlyTextIsMarkedIsLeftOut) {
  ClientDialog form;
  form.lblNom->setProperty("tag", QStringLiteral("[T]"));
  model.UpdateWithForm(hostForm(&form));
  EXPECT_EQ(model.GetCell(u"FrmClients\\lblNom"), nullptr);
}

TEST_F(HarvestForm, ContextHoldsTheTextsBelowTheControl) {
  ClientDialog form;
  form.btnOk->setProperty("tag", QStringLiteral("Vente[C]"));
  model.UpdateWithForm(hostForm(&form));
  EXPECT_THAT(print(model), testing::HasSubstr("  btnOk\n"
                                               "    Vente [context] Caption \"OK\"\n"));
  EXPECT_EQ(form.btnOk->property("tag").toString(), QStringLiteral("Vente[C]"));
}

TEST_F(HarvestForm, ControlArraysAreToldApartByIndex) {
  ClientDialog form;
  for (int index = 0; index < 3; ++index) {
    QPushButton* const button = addButton(form, "cmdJour",
                                          index == 0   ? "Lundi"
                                          : index == 1 ? "Mardi"
                                                       : "Mercredi");
    button->setProperty("Index", index * 2);
  }
  model.UpdateWithForm(hostForm(&form));
  EXPECT_THAT(print(model), testing::HasSubstr("  cmdJour(0) Caption \"Lundi\"\n"
                                               "  cmdJour(2) Caption \"Mardi\"\n"
                                               "  cmdJour(4) Caption \"Mercredi\"\n"));
}

TEST_F(HarvestForm, EqualNamesWithoutIndexAreNumberedInTreeOrder) {
  ClientDialog form;
  addLabel(form, "label", "Premier");
  addLabel(form, "Label", "Second");
  model.UpdateWithForm(hostForm(&form));
  EXPECT_THAT(print(model), testing::HasSubstr("  label(0) Caption \"Premier\"\n"
                                               "  Label(1) Caption \"Second\"\n"));
}

TEST_F(HarvestForm, WhatTheUserTypedIsNotHarvested) {
  ClientDialog form;
  auto* const edit = add<QLineEdit>(form, "txtNom");
  edit->setText(QStringLiteral("Dupont"));
  edit->setPlaceholderText(QStringLiteral("Nom du client"));
  model.UpdateWithForm(hostForm(&form));
  EXPECT_THAT(print(model), testing::HasSubstr("  txtNom Caption \"Nom du client\"\n"));
}

TEST_F(HarvestForm, ToolBarButtonsStandBelowTheToolBarAndTheirMenusBelowTheButtons) {
  MainForm form;
  model.UpdateWithForm(hostForm(&form));
  EXPECT_EQ(print(model),
            "FenPrincipale Caption \"Principale\"\n"
            "  actQuitter Caption \"Quitter\"\n"
            "  barre\n"
            "    btnOuvrir Caption \"Ouvrir\" ToolTip \"Ouvre un dossier\"\n"
            "      actNouveau Caption \"Nouveau\"\n"
            "      actRecent Caption \"Récents\"\n"
            "  mnuFichier Caption \"Fichier\"\n");
  EXPECT_THAT(boxes.notices, IsEmpty());
}

}  // namespace
}  // namespace kob::qt::live
