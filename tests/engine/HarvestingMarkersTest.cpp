// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

namespace kob::testing {
namespace {

/// What the markers and the context in a control's tag do when a form is harvested.
class HarvestingMarkersTest : public EngineTest {};

TEST_F(HarvestingMarkersTest, TRecordsTheToolTipOnly) {
  given(R"(
    form FrmMain
      label A Caption="a" ToolTipText="t" tag="[T]"
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      A control left=-1 width=1
        .ToolTip "t"
  )"));
}

TEST_F(HarvestingMarkersTest, CRecordsTheCaptionOnly) {
  given(R"(
    form FrmMain
      label A Caption="a" ToolTipText="t" tag="[C]"
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      A control left=-1 width=1
        .Caption "a"
  )"));
}

TEST_F(HarvestingMarkersTest, ATextThatAMarkerTakesAwayMayBeTheOnlyOne) {
  given(R"(
    form FrmMain
      label A Caption="a" tag="[T]"
      label B ToolTipText="b" tag="[C]"
  )");
  harvest();
  EXPECT_TRUE(treeIs("FrmMain control left=0 width=1"));
}

TEST_F(HarvestingMarkersTest, AContextBecomesACellBelowTheControlsNode) {
  given(R"(
    form FrmMain
      label A Caption="a" ToolTipText="t" tag="Vente[C]"
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      A node
        Vente control context left=-1 width=1
          .Caption "a"
  )"));
}

TEST_F(HarvestingMarkersTest, OnlyTheLastOfTwoMarkersIsCutOff) {
  given(R"(
    form FrmMain
      label A Caption="a" ToolTipText="t" tag="x[C][T]"
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      A node
        x[C] control context left=-1 width=1
          .ToolTip "t"
  )"));
}

TEST_F(HarvestingMarkersTest, ATagThatIsANumberIsAContext) {
  given(R"(
    form FrmMain
      label A Caption="a" tag=12
  )");
  harvest();
  EXPECT_NE(cell(u"FrmMain\\A\\12"), nullptr);
}

TEST_F(HarvestingMarkersTest, AnExcludedControlIsNotHarvestedInAnyMixOfCase) {
  given(R"(
    form FrmMain
      label A Caption="a" tag="PAS TRADUIT"
      label B Caption="b" tag="Pas Traduit[T]" ToolTipText="t"
      label C Caption="c" tag="pas traduit[C]"
  )");
  harvest();
  EXPECT_TRUE(treeIs("FrmMain control left=0 width=1"));
}

TEST_F(HarvestingMarkersTest, AnExcludedControlIsHarvestedWhenItIsGivenItself) {
  given(R"(
    form FrmMain
      label C Caption="c" tag="pas traduit[C]"
  )");
  harvestControl("C");
  EXPECT_TRUE(treeIs(R"(
    FrmMain node
      C node
        "pas traduit" control context left=-1 width=1
          .Caption "c"
  )"));
}

TEST_F(HarvestingMarkersTest, AMarkerOnceMetKeepsTheCaptionsOfAllLaterTabs) {
  given(R"(
    form FrmMain
      label A Caption="a" ToolTipText="t" tag="[T]"
      tabs ssTab
        page P0 title="Un" tip="1"
        page P1 title="Deux" tip="2"
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      A control left=-1 width=1
        .ToolTip "t"
      ssTab node
        ssTab(0) control left=-1 width=1
          .ToolTip "1"
        ssTab(1) control left=-1 width=1
          .ToolTip "2"
  )"));
}

TEST_F(HarvestingMarkersTest, AMarkerOnceMetKeepsTheToolTipsOfAllLaterTabs) {
  given(R"(
    form FrmMain
      label A Caption="a" ToolTipText="t" tag="[C]"
      tabs ssTab
        page P0 title="Un" tip="1"
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      A control left=-1 width=1
        .Caption "a"
      ssTab node
        ssTab(0) control left=-1 width=1
          .Caption "Un"
  )"));
}

TEST_F(HarvestingMarkersTest, BothMarkersTogetherLeaveLaterTabsWithoutTexts) {
  given(R"(
    form FrmMain
      label A Caption="a" ToolTipText="t" tag="[C]"
      label B Caption="b" ToolTipText="t" tag="[T]"
      tabs ssTab
        page P0 title="Un" tip="1"
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      A control left=-1 width=1
        .Caption "a"
      B control left=-1 width=1
        .ToolTip "t"
      ssTab node
        ssTab(0) control left=-1 width=1
  )"));
}

TEST_F(HarvestingMarkersTest, AMarkerOnAnExcludedControlCountsToo) {
  given(R"(
    form FrmMain
      label A Caption="a" tag="PAS TRADUIT[T]"
      tabs ssTab
        page P0 title="Un" tip="1"
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      ssTab node
        ssTab(0) control left=-1 width=1
          .ToolTip "1"
  )"));
}

TEST_F(HarvestingMarkersTest, AMarkerOutsideTheContainerAskedForDoesNotCount) {
  given(R"(
    form FrmMain
      label A Caption="a" tag="[T]" ToolTipText="t"
      frame Frame1
        tabs ssTab
          page P0 title="Un" tip="1"
  )");
  harvestIn("Frame1");
  EXPECT_EQ(cell(u"FrmMain\\Frame1\\ssTab\\ssTab(0)")->ColTraduction()->Count(), 2);
}

TEST_F(HarvestingMarkersTest, OrdinaryControlsAfterAMarkerKeepBothTexts) {
  given(R"(
    form FrmMain
      label A Caption="a" ToolTipText="t" tag="[T]"
      label B Caption="b" ToolTipText="u"
  )");
  harvest();
  EXPECT_EQ(cell(u"FrmMain\\B")->ColTraduction()->Count(), 2);
}

TEST_F(HarvestingMarkersTest, TheFlagsStartAnewWithEachHarvest) {
  given(R"(
    form FrmMain
      tabs ssTab
        page P0 title="Un" tip="1"
      label A Caption="a" ToolTipText="t" tag="[T]"
  )");
  harvest();
  harvest();
  EXPECT_EQ(cell(u"FrmMain\\ssTab\\ssTab(0)")->ColTraduction()->Count(), 2);
}

}  // namespace
}  // namespace kob::testing
