// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForms.h"
#include "LiveModel.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QSignalSpy>
#include <QTabBar>
#include <QToolBox>

#include <gmock/gmock.h>

namespace kob::qt::live {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct Tabs : testing::Test {
  QStringList captions() const {
    QStringList texts;
    for (int i = 0; i < form.onglets->count(); ++i) {
      texts += form.onglets->tabText(i);
    }
    return texts;
  }

  TabDialog form;
  KOBModeleTraduction model;
  RecordedBoxes boxes;
};

TEST_F(Tabs, EachTabBecomesALeafBelowTheStrip) {
  model.UpdateWithForm(hostForm(&form));
  EXPECT_THAT(print(model), HasSubstr("  onglets\n"
                                      "    onglets(0) Caption \"Un\"\n"
                                      "    onglets(1) Caption \"Deux\"\n"
                                      "    onglets(2) Caption \"Trois\"\n"
                                      "    pageUn\n"
                                      "      lblPage Caption \"Page\"\n"));
}

TEST_F(Tabs, HarvestingIsNotNoticed) {
  form.onglets->setCurrentIndex(1);
  form.show();
  const QSignalSpy flips(form.onglets, &QTabWidget::currentChanged);
  model.UpdateWithForm(hostForm(&form));
  EXPECT_EQ(flips.count(), 0);
  EXPECT_EQ(form.onglets->currentIndex(), 1);
}

TEST_F(Tabs, ShowTheLanguageAndFallBackToTheReference) {
  model.UpdateWithForm(hostForm(&form));
  setCaption(model, u"FrmOnglets\\onglets\\onglets(0)", 2, u"One");
  setCaption(model, u"FrmOnglets\\onglets\\onglets(2)", 2, u"Three");
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(captions(),
            QStringList({QStringLiteral("One"), QStringLiteral("Deux"), QStringLiteral("Three")}));
}

TEST_F(Tabs, ATabWithoutACellGetsABlankCaption) {
  model.UpdateWithForm(hostForm(&form));
  model.GetCell(u"FrmOnglets\\onglets")->ColCell()->Remove(2);
  ASSERT_EQ(model.GetCell(u"FrmOnglets\\onglets\\onglets(1)"), nullptr);
  model.TraduitDialog(hostForm(&form), 1);
  EXPECT_EQ(captions(), QStringList({QStringLiteral("Un"), QString(), QStringLiteral("Trois")}));
}

TEST_F(Tabs, AStripWithoutACellIsLeftAlone) {
  model.TraduitDialog(hostForm(&form), 1);
  EXPECT_EQ(captions(), QStringList({QStringLiteral("Un"), QStringLiteral("Deux"), QStringLiteral("Trois")}));
}

TEST_F(Tabs, KeptCaptionsAreNotWritten) {
  model.UpdateWithForm(hostForm(&form));
  setCaption(model, u"FrmOnglets\\onglets\\onglets(0)", 2, u"One");
  form.onglets->setProperty("tag", QStringLiteral("[T]"));
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(captions().first(), QStringLiteral("Un"));
}

TEST_F(Tabs, ToolTipsAreHarvestedAndWrittenNowhere) {
  form.onglets->setTabToolTip(0, QStringLiteral("Premier"));
  model.UpdateWithForm(hostForm(&form));
  setToolTip(model, u"FrmOnglets\\onglets\\onglets(0)", 2, u"First");
  EXPECT_THAT(print(model), HasSubstr("onglets(0) Caption \"Un\" ToolTip \"Premier\"\n"));
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(form.onglets->tabToolTip(0), QStringLiteral("Premier"));
}

TEST_F(Tabs, WithAContextTheyNestOneBelowTheOther) {
  form.onglets->setProperty("tag", QStringLiteral("Vente"));
  model.UpdateWithForm(hostForm(&form));
  EXPECT_THAT(boxes.notices, IsEmpty());
  EXPECT_NE(model.GetCell(u"FrmOnglets\\onglets\\Vente\\onglets(0)\\Vente\\onglets(1)\\Vente\\onglets(2)"),
            nullptr)
      << print(model);
}

TEST_F(Tabs, WithAContextASecondHarvestEndsWithAMessageAndLosesNothing) {
  form.onglets->setProperty("tag", QStringLiteral("Vente"));
  model.UpdateWithForm(hostForm(&form));
  const std::string before = print(model);
  model.UpdateWithForm(hostForm(&form));
  EXPECT_THAT(boxes.notices, ElementsAre("ERREUR 4512222"));
  EXPECT_EQ(print(model), before);
}

TEST_F(Tabs, ContextOverridesTheStripsOwnCaptions) {
  model.UpdateWithForm(hostForm(&form));
  const auto context = model.GetCell(u"FrmOnglets\\onglets")->AddNoeuds(u"Vente");
  std::int32_t erreur = 0;
  context->AddCtrl(u"onglets(1)", u"", u"Ventes", 1, 1, erreur, u"", u"");
  form.onglets->setProperty("tag", QStringLiteral("Vente"));
  model.TraduitDialog(hostForm(&form), 1);
  EXPECT_EQ(captions(),
            QStringList({QStringLiteral("Un"), QStringLiteral("Ventes"), QStringLiteral("Trois")}));
  EXPECT_EQ(form.onglets->property("tag").toString(), QStringLiteral("Vente"));
}

TEST_F(Tabs, TabBarsAndToolBoxesAreStripsToo) {
  auto* const bar = add<QTabBar>(form, "barre");
  bar->addTab(QStringLiteral("Gauche"));
  auto* const box = add<QToolBox>(form, "boite");
  auto* const page = new QWidget;
  page->setObjectName(QStringLiteral("pageBoite"));
  box->addItem(page, QStringLiteral("Outils"));
  model.UpdateWithForm(hostForm(&form));
  setCaption(model, u"FrmOnglets\\barre\\barre(0)", 2, u"Left");
  setCaption(model, u"FrmOnglets\\boite\\boite(0)", 2, u"Tools");
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(bar->tabText(0), QStringLiteral("Left"));
  EXPECT_EQ(box->itemText(0), QStringLiteral("Tools"));
}

}  // namespace
}  // namespace kob::qt::live
