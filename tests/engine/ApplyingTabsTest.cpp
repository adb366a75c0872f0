// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

#include <tests/doubles/TreeText.h>

namespace kob::testing {
namespace {

class ApplyingTabsTest : public EngineTest {
 protected:
  ApplyingTabsTest() {
    given(R"(
      form FrmMain
        tabs ssTab left=10 width=100 Tab=1
          page P0 title="Un" tip="1"
          page P1 title="Deux" tip="2"
          page P2 title="Trois" tip="3"
    )");
    givenModel(R"(
      FrmMain node
        ssTab node left=1 width=1
          ssTab(0) control left=1 width=1
            .Caption "Un" 2="One"
            .ToolTip "1" 2="first"
          ssTab(1) control left=1 width=1
            .Caption "Deux" 2="Two"
          ssTab(2) control left=1 width=1
            .Caption "Trois" 2="Three"
    )");
  }
  std::string titles() {
    std::string titles;
    for (const ScriptedObject::Page& page : at("ssTab").pages()) {
      titles += std::string(page.title.begin(), page.title.end()) + "|";
    }
    return titles;
  }
  void tag(const char16_t* text) { at("ssTab").answers(Property::Tag, text); }
  void growTabs(const char* text) { growTree(cell(u"FrmMain\\ssTab"), text); }
};

TEST_F(ApplyingTabsTest, WritesTheCaptionOfEachTab) {
  apply(2);
  EXPECT_EQ(titles(), "One|Two|Three|");
}

TEST_F(ApplyingTabsTest, NeitherItsOwnTextsNorItsPositionNorItsTabNorToolTipsAreWritten) {
  cell(u"FrmMain\\ssTab")->setTypeFeuille(2);
  cell(u"FrmMain\\ssTab")->ChangeLeft(2, 2);
  applyTo("ssTab", 2);
  EXPECT_TRUE(writesAre(R"(
    set ssTab.tag = ""
    set ssTab.TabCaption(0) = "One"
    set ssTab.TabCaption(1) = "Two"
    set ssTab.TabCaption(2) = "Three"
  )"));
}

TEST_F(ApplyingTabsTest, ATabWithoutCellIsBlanked) {
  cell(u"FrmMain\\ssTab")->ColCell()->Remove(2);
  apply(2);
  EXPECT_EQ(titles(), "One||Three|");
}

TEST_F(ApplyingTabsTest, ACaptionFallsBackToLanguageOne) {
  apply(3);
  EXPECT_EQ(titles(), "Un|Deux|Trois|");
}

TEST_F(ApplyingTabsTest, TKeepsTheTabsCaptions) {
  tag(u"[T]");
  apply(2);
  EXPECT_EQ(titles(), "Un|Deux|Trois|");
}

TEST_F(ApplyingTabsTest, CKeepsNothingOfATab) {
  tag(u"[C]");
  apply(2);
  EXPECT_EQ(titles(), "One|Two|Three|");
}

TEST_F(ApplyingTabsTest, AContextOverridesTheTabsThatItHas) {
  tag(u"Vente");
  growTabs(R"(Vente node
                ssTab(1) control left=1 width=1
                  .Caption "Vendre" 2="Sell")");
  apply(2);
  EXPECT_EQ(titles(), "One|Sell|Three|");
}

TEST_F(ApplyingTabsTest, AnEmptyEntryOfTheContextOverridesToo) {
  tag(u"Vente");
  growTabs(R"(Vente node
                ssTab(1) control left=1 width=1
                  .Caption "")");
  apply(2);
  EXPECT_EQ(titles(), "One||Three|");
}

TEST_F(ApplyingTabsTest, NestedTabsOfAHarvestAreFoundAtTheFirstLevelOnly) {
  // Harvesting chains the tabs of a context one below another; applying looks beside one another.
  given(R"(
    form FrmMain
      tabs ssTab tag="Vente"
        page P0 title="Un"
        page P1 title="Deux"
  )");
  model.Racine()->ColCell()->Remove(1);
  harvest();
  EXPECT_NE(cell(u"FrmMain\\ssTab\\Vente\\ssTab(0)\\Vente\\ssTab(1)"), nullptr);
  apply(1);
  EXPECT_EQ(titles(), "Un||");
}

TEST_F(ApplyingTabsTest, KeysComeFromTheCellsNameAndNotFromTheHosts) {
  cell(u"FrmMain\\ssTab")->setnom(u"SSTAB");
  apply(2);
  EXPECT_EQ(titles(), "One|Two|Three|");
}

TEST_F(ApplyingTabsTest, ATabStripsCellMayBeOfAnyKind) {
  EXPECT_EQ(cell(u"FrmMain\\ssTab")->TypeFeuille(), 0);
  applyTo("ssTab", 2);
  EXPECT_EQ(titles(), "One|Two|Three|");
}

TEST_F(ApplyingTabsTest, ALeafBlanksAllTabs) {
  cell(u"FrmMain\\ssTab")->setTypeCell(2);
  apply(2);
  EXPECT_EQ(titles(), "|||");
}

TEST_F(ApplyingTabsTest, ATabsCellThatIsNoControlIsAFailureBeforeAnyWrite) {
  cell(u"FrmMain\\ssTab\\ssTab(2)")->setTypeFeuille(0);
  apply(2);
  EXPECT_TRUE(messagesAre(R"(notice "Erreur Traduit Controle")"));
  EXPECT_EQ(titles(), "Un|Deux|Trois|");
}

TEST_F(ApplyingTabsTest, ATabThatRefusesItsCaptionEndsItAndTheOthersBeforeAreKept) {
  at("ssTab").refusesFromWrite(Property::TabCaption, 2);
  apply(2);
  EXPECT_TRUE(messagesAre(R"(notice "Erreur Traduit Controle")"));
  EXPECT_EQ(titles(), "One|Deux|Trois|");
}

TEST_F(ApplyingTabsTest, TabsIsReadThreeTimes) {
  applyTo("ssTab", 2);
  EXPECT_EQ(form().callTexts([](const HostCall& call) { return call.property == Property::Tabs; }),
            "get ssTab.Tabs\nget ssTab.Tabs\nget ssTab.Tabs\n");
}

TEST_F(ApplyingTabsTest, TabsThatFailLaterAreAFailure) {
  for (const int read : {2, 3}) {
    at("ssTab").failsFromRead(Property::Tabs, read);
    applyTo("ssTab", 2);
    EXPECT_TRUE(messagesAre(R"(notice "Erreur Traduit Controle")"));
  }
  EXPECT_EQ(titles(), "Un|Deux|Trois|");
}

TEST_F(ApplyingTabsTest, ATabThatAppearsMeanwhileIsAFailure) {
  at("ssTab").answersInTurn(Property::Tabs, {2, 2, 3});
  applyTo("ssTab", 2);
  EXPECT_TRUE(messagesAre(R"(notice "Erreur Traduit Controle")"));
  EXPECT_EQ(titles(), "One|Two|Trois|");
}

TEST_F(ApplyingTabsTest, WithoutTabsItIsAnOrdinaryControl) {
  at("ssTab").answers(Property::Tabs, 0);
  cell(u"FrmMain\\ssTab")->setTypeFeuille(2);
  growTabs(R"(.Caption "" 2="Tabs")");
  apply(2);
  EXPECT_EQ(titles(), "Un|Tabs|Trois|");
}

TEST_F(ApplyingTabsTest, TrueAsANumberOfTabsIsMinusOneAndNone) {
  at("ssTab").answers(Property::Tabs, true);
  apply(2);
  EXPECT_EQ(titles(), "Un|Deux|Trois|");
}

TEST_F(ApplyingTabsTest, ANumberOfTabsMayBeAText) {
  at("ssTab").answers(Property::Tabs, u" 2 ");
  apply(2);
  EXPECT_EQ(titles(), "One|Two|Trois|");
}

TEST_F(ApplyingTabsTest, ALanguageOutOfRangeIsTold) {
  apply(7);
  EXPECT_TRUE(messagesAre(R"(notice "Erreur Traduit Controle")"));
  EXPECT_EQ(titles(), "Un|Deux|Trois|");
}

}  // namespace
}  // namespace kob::testing
