// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

namespace kob::testing {
namespace {

/// Harvesting a tabbed control: with and without a cell, with and without a context.
class HarvestingTabsTest : public EngineTest {
 protected:
  void givenTabs(const std::string& line = "tabs ssTab left=10", const std::string& title = "Un") {
    given("form FrmMain\n  " + line + "\n    page P0 title=\"" + title +
          "\" tip=\"1\"\n    page P1 title=\"Deux\"\n    page P2 title=\"Trois\"\n");
  }
};

TEST_F(HarvestingTabsTest, ThreeTabsWithoutTagGiveANodeWithThreeLeaves) {
  givenTabs();
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      ssTab node
        ssTab(0) control left=1 width=1
          .Caption "Un"
          .ToolTip "1"
        ssTab(1) control left=1 width=1
          .Caption "Deux"
        ssTab(2) control left=1 width=1
          .Caption "Trois"
  )"));
}

TEST_F(HarvestingTabsTest, EachTabIsMadeCurrentInTurnAndTheFormerOnePutBack) {
  givenTabs("tabs ssTab Tab=1 width=0");
  harvest();
  EXPECT_TRUE(writesAre(R"(
    set ssTab.Tab = 0
    set ssTab.Tab = 1
    set ssTab.Tab = 2
    set ssTab.Tab = 1
  )"));
}

TEST_F(HarvestingTabsTest, AnIndexIsPartOfTheTabsNames) {
  givenTabs("tabs ssTab Index=4");
  harvest();
  EXPECT_NE(cell(u"FrmMain\\ssTab(4)\\ssTab(4)(2)"), nullptr);
}

TEST_F(HarvestingTabsTest, TwiceWithoutTagChangesAndAsksNothing) {
  givenTabs();
  harvest();
  const std::string before = printed();
  harvest();
  EXPECT_TRUE(treeIs(before));
}

TEST_F(HarvestingTabsTest, AChangedTabOfAKnownControlIsUpdated) {
  givenTabs();
  harvest();
  givenTabs("tabs ssTab left=10", "Uno");
  messages.answer(true);
  harvest();
  EXPECT_EQ(
      messages.take(),
      "question \"Le Contexte ssTab(0) du controle ssTab existe déja\\r\\nVoulez vous le modifier?\\r\\n"
      "Un  ->  Uno\\r\\n1  ->  1\" -> Yes\n");
  EXPECT_EQ(cell(u"FrmMain\\ssTab\\ssTab(0)")->ColTraduction()->Item(1)->ColTraduction()->Item(1), u"Uno");
}

TEST_F(HarvestingTabsTest, AKnownControlsContextFlagIsCleared) {
  givenTabs();
  givenModel(R"(
    FrmMain node
      ssTab node context
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      ssTab node
        ssTab(0) control context left=1 width=1
          .Caption "Un"
          .ToolTip "1"
        ssTab(1) control context left=1 width=1
          .Caption "Deux"
        ssTab(2) control context left=1 width=1
          .Caption "Trois"
  )"));
}

TEST_F(HarvestingTabsTest, WithAContextTheTabsNestOneBelowAnother) {
  givenTabs("tabs ssTab tag=\"Vente\"");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      ssTab node
        Vente node context
          ssTab(0) node control context left=-1 width=1
            .Caption "Un"
            .ToolTip "1"
            Vente node context
              ssTab(1) node control context left=-1 width=1
                .Caption "Deux"
                Vente node context
                  ssTab(2) control context left=-1 width=1
                    .Caption "Trois"
  )"));
}

TEST_F(HarvestingTabsTest, AKnownControlWithoutThatContextNestsThemWithoutTouchingTheNodesFlags) {
  givenTabs("tabs ssTab tag=\"Vente\"");
  givenModel(R"(
    FrmMain node
      ssTab node
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      ssTab node
        Vente node
          ssTab(0) node control context left=-1 width=1
            .Caption "Un"
            .ToolTip "1"
            Vente node
              ssTab(1) node control context left=-1 width=1
                .Caption "Deux"
                Vente node
                  ssTab(2) control context left=-1 width=1
                    .Caption "Trois"
  )"));
}

TEST_F(HarvestingTabsTest, WithAContextTwiceUnchangedEndsWithTheErrorOfThatStep) {
  givenTabs("tabs ssTab tag=\"Vente\"");
  harvest();
  const std::string before = printed();
  harvest();
  EXPECT_TRUE(messagesAre(R"(notice "ERREUR 4512222")"));
  EXPECT_TRUE(treeIs(before));
  EXPECT_EQ(at("ssTab").held(Property::Tab)->asLong(), 1) << "the tab is not put back after a failure";
}

TEST_F(HarvestingTabsTest, AKnownContextContinuesFromEachUpdatedTab) {
  givenTabs("tabs ssTab tag=\"Vente\"");
  givenModel(R"(
    FrmMain node
      ssTab node
        Vente node
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      ssTab node
        Vente node context
          ssTab(0) node control context left=-1 width=1
            .Caption "Un"
            .ToolTip "1"
            ssTab(1) node control context left=-1 width=1
              .Caption "Deux"
              ssTab(2) control context left=-1 width=1
                .Caption "Trois"
  )"));
}

TEST_F(HarvestingTabsTest, AKnownContextWithOneChangedTabSetsItsFlags) {
  given(R"(
    form FrmMain
      tabs ssTab tag="Vente"
        page P0 title="Uno"
  )");
  givenModel(R"(
    FrmMain node
      ssTab node
        Vente node
          ssTab(0) control left=1 width=1
            .Caption "Un"
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      ssTab node
        Vente node context
          ssTab(0) control context left=-1 width=1
            .Caption "Uno"
  )"));
}

TEST_F(HarvestingTabsTest, ABareMarkerIsNoContextAndKeepsOneKindOfText) {
  givenTabs("tabs ssTab tag=\"[C]\"");
  harvest();
  EXPECT_EQ(cell(u"FrmMain\\ssTab\\ssTab(0)")->ColTraduction()->Count(), 1);
}

TEST_F(HarvestingTabsTest, ATabWithoutTextsGetsACellAllTheSame) {
  given(R"(
    form FrmMain
      tabs ssTab
        page P0 title="Un"
        page P1
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      ssTab node
        ssTab(0) control left=-1 width=1
          .Caption "Un"
        ssTab(1) control left=-1 width=1
  )"));
}

TEST_F(HarvestingTabsTest, AControlWhoseCurrentTabHasNoTextIsSkipped) {
  given(R"(
    form FrmMain
      tabs ssTab Tab=1
        page P0 title="Un"
        page P1
  )");
  harvest();
  EXPECT_TRUE(treeIs("FrmMain control left=0 width=1"));
}

TEST_F(HarvestingTabsTest, AControlOnAPageStandsBelowThePage) {
  given(R"(
    form FrmMain
      tabs ssTab
        page P0 title="Un"
          label L Caption="l"
  )");
  harvest();
  EXPECT_NE(cell(u"FrmMain\\ssTab\\P0\\L"), nullptr);
}

TEST_F(HarvestingTabsTest, AChildNamedLikeATabBelowTheContainerRefusesTheTab) {
  // Whether the name is free is looked up beside the control, not below it.
  givenTabs();
  givenModel(R"(
    FrmMain node
      ssTab(1) node
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      ssTab node
        ssTab(0) control left=1 width=1
          .Caption "Un"
          .ToolTip "1"
        ssTab(2) control left=1 width=1
          .Caption "Trois"
      ssTab(1) node
  )"));
}

TEST_F(HarvestingTabsTest, ANumberOfTabsThatIsATextConverts) {
  givenTabs("tabs ssTab Tabs=\"2\"");
  harvest();
  EXPECT_EQ(cell(u"FrmMain\\ssTab")->ColCell()->Count(), 2);
}

TEST_F(HarvestingTabsTest, WithoutTabsItIsAnOrdinaryControl) {
  givenTabs("tabs ssTab Tabs=0");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      ssTab control left=-1 width=1
        .Caption "Un"
        .ToolTip "1"
  )"));
}

TEST_F(HarvestingTabsTest, TheNumberOfTabsIsReadOnceForTheTestAndOnceForTheLoop) {
  givenTabs();
  harvest();
  EXPECT_EQ(form().callTexts([](const HostCall& call) { return call.property == Property::Tabs; }),
            "get ssTab.Tabs\nget ssTab.Tabs\n");
}

TEST_F(HarvestingTabsTest, HarvestedAloneItGivesTheSameCells) {
  givenTabs("tabs ssTab tag=\"Vente\"");
  harvestControl("ssTab");
  EXPECT_NE(cell(u"FrmMain\\ssTab\\Vente\\ssTab(0)\\Vente\\ssTab(1)\\Vente\\ssTab(2)"), nullptr);
}

}  // namespace
}  // namespace kob::testing
