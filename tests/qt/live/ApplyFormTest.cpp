// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForms.h"
#include "LiveModel.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QTabBar>

#include <gmock/gmock.h>

namespace kob::qt::live {
namespace {

using testing::IsEmpty;

struct ApplyForm : testing::Test {
  ApplyForm() {
    model.UpdateWithForm(hostForm(&form));
    setCaption(model, u"FrmClients", 2, u"Customers");
    setCaption(model, u"FrmClients\\lblNom", 2, u"Name");
    setCaption(model, u"FrmClients\\cadre", 2, u"Address");
    setCaption(model, u"FrmClients\\cadre\\lblRue", 2, u"Street");
    setToolTip(model, u"FrmClients\\btnOk", 2, u"Accepts");
  }

  ClientDialog form;
  KOBModeleTraduction model;
  RecordedBoxes boxes;
};

TEST_F(ApplyForm, WritesEveryTextOfTheLanguage) {
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(form.windowTitle(), QStringLiteral("Customers"));
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Name"));
  EXPECT_EQ(form.cadre->title(), QStringLiteral("Address"));
  EXPECT_EQ(form.lblRue->text(), QStringLiteral("Street"));
  EXPECT_EQ(form.btnOk->toolTip(), QStringLiteral("Accepts"));
  EXPECT_THAT(boxes.notices, IsEmpty());
}

TEST_F(ApplyForm, AMissingTextFallsBackToTheReference) {
  form.btnOk->setText(QStringLiteral("something else"));
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(form.btnOk->text(), QStringLiteral("OK"));
}

TEST_F(ApplyForm, ANewTextFollowsEveryLanguageBackAndForth) {
  const std::string before = printTexts(form);
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_NE(printTexts(form), before);
  model.TraduitDialog(hostForm(&form), 1);
  EXPECT_EQ(printTexts(form), before);
}

TEST_F(ApplyForm, TheReferenceLanguageChangesNoTextOfAFreshForm) {
  MainForm window;
  TabDialog tabs;
  model.UpdateWithForm(hostForm(&window));
  model.UpdateWithForm(hostForm(&tabs));
  ClientDialog freshDialog;
  MainForm freshWindow;
  TabDialog freshTabs;
  for (QWidget* const fresh : {static_cast<QWidget*>(&freshDialog), static_cast<QWidget*>(&freshWindow),
                               static_cast<QWidget*>(&freshTabs)}) {
    const std::string before = printTexts(*fresh);
    model.TraduitDialog(hostForm(fresh), 1);
    EXPECT_EQ(printTexts(*fresh), before);
  }
}

TEST_F(ApplyForm, ModuleChoosesTheCells) {
  ClientDialog other;
  model.UpdateWithForm(hostForm(&other), u"Achats");
  setCaption(model, u"Achats\\FrmClients\\lblNom", 2, u"Buyer");
  model.TraduitDialog(hostForm(&other), 2, u"achats");
  EXPECT_EQ(other.lblNom->text(), QStringLiteral("Buyer"));
}

TEST_F(ApplyForm, AModuleThatNamesNoCellWritesNothingSilently) {
  const std::string before = printTexts(form);
  model.TraduitDialog(hostForm(&form), 2, u"Ventes");
  EXPECT_EQ(printTexts(form), before);
  EXPECT_THAT(boxes.notices, IsEmpty());
}

TEST_F(ApplyForm, OnlyVisibleSkipsHiddenControlsAndKeepsTheirTags) {
  form.lblNom->hide();
  form.lblNom->setProperty("tag", QStringLiteral("Vente[T]"));
  form.cadre->hide();
  model.TraduitDialog(hostForm(&form), 2, {}, true);
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Nom"));
  EXPECT_EQ(form.lblNom->property("tag").toString(), QStringLiteral("Vente[T]"));
  EXPECT_EQ(form.cadre->title(), QStringLiteral("Adresse"));
  EXPECT_EQ(form.lblRue->text(), QStringLiteral("Street"))
      << "a control's own flag counts, not its container's";
}

// A control's cell is remembered for what follows it: not longer than the control itself.
TEST_F(ApplyForm, WhatStandsInATaggedFrameBehindATabStripIsTranslated) {
  auto* const strip = new QTabBar(&form);
  strip->setObjectName(QStringLiteral("tabSuite"));
  QGroupBox* const frame = addFrame(form, "cadre2", "Livraison");
  frame->setProperty("tag", QStringLiteral("[T]"));
  auto* const label = new QLabel(QStringLiteral("Ville"), frame);
  label->setObjectName(QStringLiteral("lblVille"));
  model.UpdateWithForm(hostForm(&form));
  setCaption(model, u"FrmClients\\cadre2\\lblVille", 2, u"City");
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(label->text(), QStringLiteral("City"));
  EXPECT_THAT(boxes.notices, IsEmpty());
}

TEST_F(ApplyForm, OnlyContainerTakesWhatItsPathBeginsAndNeverTheForm) {
  QGroupBox* const similar = addFrame(form, "cadre2", "Livraison");
  model.UpdateWithForm(hostForm(&form));
  setCaption(model, u"FrmClients\\cadre2", 2, u"Delivery");
  model.TraduitDialog(hostForm(&form), 2, {}, false, hostControl(form.cadre));
  EXPECT_EQ(form.windowTitle(), QStringLiteral("Clients"));
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Nom"));
  EXPECT_EQ(form.cadre->title(), QStringLiteral("Address"));
  EXPECT_EQ(form.lblRue->text(), QStringLiteral("Street"));
  EXPECT_EQ(similar->title(), QStringLiteral("Delivery"));
}

TEST_F(ApplyForm, AnExcludedControlIsNotTouchedAndKeepsItsTag) {
  for (const char* const tag : {"PAS TRADUIT", "pas traduit", "Pas Traduit[T]", "pas TRADUIT[C]"}) {
    form.lblNom->setProperty("tag", QString::fromUtf8(tag));
    model.TraduitDialog(hostForm(&form), 2);
    EXPECT_EQ(form.lblNom->text(), QStringLiteral("Nom")) << tag;
    EXPECT_EQ(form.lblNom->property("tag").toString(), QString::fromUtf8(tag));
  }
}

TEST_F(ApplyForm, AnExcludedFormKeepsItsTitleWhileItsControlsAreTranslated) {
  form.setProperty("tag", QStringLiteral("pas traduit"));
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(form.windowTitle(), QStringLiteral("Clients"));
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Name"));
}

TEST_F(ApplyForm, MarkersKeepOneOfTheTexts) {
  setCaption(model, u"FrmClients\\btnOk", 2, u"Fine");
  form.btnOk->setProperty("tag", QStringLiteral("[T]"));
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(form.btnOk->text(), QStringLiteral("OK"));
  EXPECT_EQ(form.btnOk->toolTip(), QStringLiteral("Accepts"));
  model.TraduitDialog(hostForm(&form), 1);
  form.btnOk->setProperty("tag", QStringLiteral("[C]"));
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(form.btnOk->text(), QStringLiteral("Fine"));
  EXPECT_EQ(form.btnOk->toolTip(), QStringLiteral("Valide"));
}

TEST_F(ApplyForm, ContextOverridesTheControlsOwnTexts) {
  form.btnOk->setText(QStringLiteral("Vendre"));
  form.btnOk->setProperty("tag", QStringLiteral("Vente"));
  model.UpdateWithForm(hostForm(&form));
  setCaption(model, u"FrmClients\\btnOk\\Vente", 2, u"Sell");
  setCaption(model, u"FrmClients\\btnOk", 2, u"Fine");
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(form.btnOk->text(), QStringLiteral("Sell"));
  EXPECT_EQ(form.btnOk->property("tag").toString(), QStringLiteral("Vente"));
  form.btnOk->setProperty("tag", QVariant());
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(form.btnOk->text(), QStringLiteral("Fine"));
}

TEST_F(ApplyForm, AnUnknownContextLeavesTheControlsOwnTexts) {
  form.lblNom->setProperty("tag", QStringLiteral("Inconnu[C]"));
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Name"));
  EXPECT_EQ(form.lblNom->property("tag").toString(), QStringLiteral("Inconnu[C]"));
}

TEST_F(ApplyForm, ElementsOfAControlArrayHaveTextsOfTheirOwn) {
  QPushButton* const days[] = {addButton(form, "cmdJour", "Lundi"), addButton(form, "cmdJour", "Mardi")};
  days[0]->setProperty("Index", 1);
  days[1]->setProperty("Index", 5);
  model.UpdateWithForm(hostForm(&form));
  setCaption(model, u"FrmClients\\cmdJour(1)", 2, u"Monday");
  setCaption(model, u"FrmClients\\cmdJour(5)", 2, u"Tuesday");
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(days[0]->text(), QStringLiteral("Monday"));
  EXPECT_EQ(days[1]->text(), QStringLiteral("Tuesday"));
}

TEST_F(ApplyForm, ToolBarButtonsTheirMenusAndTheMenuBarFollow) {
  MainForm window;
  model.UpdateWithForm(hostForm(&window));
  setCaption(model, u"FenPrincipale\\barre\\btnOuvrir", 2, u"Open");
  setToolTip(model, u"FenPrincipale\\barre\\btnOuvrir", 2, u"Opens a folder");
  setCaption(model, u"FenPrincipale\\barre\\btnOuvrir\\actRecent", 2, u"Recent");
  setCaption(model, u"FenPrincipale\\mnuFichier", 2, u"File");
  setCaption(model, u"FenPrincipale\\actQuitter", 2, u"Quit");
  model.TraduitDialog(hostForm(&window), 2);
  EXPECT_EQ(window.btnOuvrir->text(), QStringLiteral("Open"));
  EXPECT_EQ(window.btnOuvrir->toolTip(), QStringLiteral("Opens a folder"));
  EXPECT_EQ(window.actRecent->text(), QStringLiteral("Recent"));
  EXPECT_EQ(window.actRecent->toolTip(), QStringLiteral("Recent"));
  EXPECT_EQ(window.actNouveau->text(), QStringLiteral("Nouveau"));
  EXPECT_EQ(window.mnuFichier->title(), QStringLiteral("File"));
  EXPECT_EQ(window.actQuitter->text(), QStringLiteral("Quit"));
}

}  // namespace
}  // namespace kob::qt::live
