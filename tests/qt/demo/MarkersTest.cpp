// SPDX-FileCopyrightText: The KOBTraduction authors
#include "DemoForms.h"

#include <Languages.h>
#include <ToolsPage.h>

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

namespace kob::demo {

using namespace Qt::StringLiterals;

namespace {

using Markers = DemoForms;

TEST_F(Markers, ACaptionThatIsANameStaysAndItsToolTipIsTranslated) {
  demo_.switcher().setLanguage(English);
  const auto& association = object<QLabel>("lblAssociation");
  EXPECT_EQ(association.text(), u"L’Établi du canal"_s);
  EXPECT_EQ(association.toolTip(), u"Open Wednesday evenings and Saturday mornings"_s);
}

TEST_F(Markers, AToolTipThatIsAPlaceStaysAndItsCaptionIsTranslated) {
  demo_.switcher().setLanguage(English);
  const auto& backup = object<QLabel>("lblSauvegarde");
  EXPECT_EQ(backup.text(), u"Backup up to date"_s);
  EXPECT_EQ(backup.toolTip(), u"sauvegardes/2024-05-15.zip"_s);
}

TEST_F(Markers, WhatIsExcludedIsNeitherRecordedNorWritten) {
  demo_.switcher().setLanguage(German);
  EXPECT_EQ(object<QLabel>("lblNomOutil").text(), u"Perceuse à percussion"_s);
  const QString path = qt::toQString(demo_.model().GetPath(qt::hostControl(&object<QLabel>("lblNomOutil"))));
  EXPECT_EQ(path.section(u'\\', -1), u"PAS TRADUIT"_s);
  EXPECT_EQ(demo_.model().GetCell(qt::toText(path.section(u'\\', 0, -2))), nullptr);
}

TEST_F(Markers, LanguagesKeepTheirOwnNames) {
  demo_.switcher().setLanguage(German);
  const QList<QAction*> entries = object<QMenu>("mnuLangue").actions();
  ASSERT_EQ(entries.size(), static_cast<qsizetype>(languages.size()));
  for (std::size_t i = 0; i < languages.size(); ++i) {
    EXPECT_EQ(entries[static_cast<qsizetype>(i)]->text(), QString::fromUtf16(languages[i].ownName));
  }
}

TEST_F(Markers, TheContextOfTheButtonFollowsTheChosenTool) {
  demo_.switcher().setLanguage(English);
  const QPushButton& button = *demo_.window().tools().lendButton();
  EXPECT_EQ(button.text(), u"Lend this tool…"_s);
  demo_.window().tools().chooseTool(1);
  EXPECT_EQ(button.text(), u"Take this tool back…"_s);
  EXPECT_EQ(button.toolTip(), u"Record the return and refund the deposit"_s);
  EXPECT_EQ(button.property("tag").toString(), u"Sorti"_s);
  demo_.window().tools().chooseTool(0);
  EXPECT_EQ(button.text(), u"Lend this tool…"_s);
}

TEST_F(Markers, TheContextHoldsWhileTheLanguageChanges) {
  demo_.window().tools().chooseTool(1);
  const QPushButton& button = *demo_.window().tools().lendButton();
  EXPECT_EQ(button.text(), u"Rendre cet outil…"_s);
  demo_.switcher().setLanguage(German);
  EXPECT_EQ(button.text(), u"Dieses Werkzeug zurücknehmen…"_s);
  demo_.switcher().setLanguage(French);
  EXPECT_EQ(button.text(), u"Rendre cet outil…"_s);
}

TEST_F(Markers, MembersOfAControlArrayHaveTextsOfTheirOwn) {
  EXPECT_NE(demo_.model().GetCell(u"DlgPret\\grpDuree\\optDuree(0)"), nullptr);
  EXPECT_NE(demo_.model().GetCell(u"DlgPret\\grpDuree\\optDuree(2)"), nullptr);
  demo_.switcher().setLanguage(English);
  QStringList captions;
  for (const QAbstractButton* const button :
       demo_.loanDialog().findChildren<QAbstractButton*>(u"optDuree"_s)) {
    captions += button->text();
  }
  EXPECT_EQ(captions, QStringList({u"Weekend"_s, u"One week"_s, u"One month"_s}));
}

TEST_F(Markers, AToolBarButtonAndTheEntriesOfItsMenuAreTranslated) {
  demo_.switcher().setLanguage(English);
  const auto& button = object<QToolButton>("btnPreter");
  EXPECT_EQ(button.text(), u"Lend"_s);
  EXPECT_EQ(button.toolTip(), u"Lend the selected tool"_s);
  EXPECT_EQ(button.menu()->actions().at(0)->text(), u"For a &weekend"_s);
  EXPECT_NE(demo_.model().GetCell(u"FrmPrincipale\\tbPrincipale\\btnPreter\\PretWeekEnd"), nullptr);
}

}  // namespace

}  // namespace kob::demo
