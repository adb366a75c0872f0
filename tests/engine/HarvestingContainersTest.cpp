// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

namespace kob::testing {
namespace {

/// The cells of containers that harvesting a form finds and makes, and what a container leaves out.
class HarvestingContainersTest : public EngineTest {};

TEST_F(HarvestingContainersTest, AButtonBeforeItsFrameMakesAPlainNodeThatBecomesAControlLater) {
  given(R"(
    form FrmMain
      button cmdOk Caption="OK" in=Frame1
      frame Frame1 Caption="Cadre" left=10
  )");
  at("Frame1").lacks(Property::Caption);
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      Frame1 node
        cmdOk control left=-1 width=1
          .Caption "OK"
  )"));
  at("Frame1").answers(Property::Caption, u"Cadre");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      Frame1 node control left=1 width=1
        .Caption "Cadre"
        cmdOk control left=-1 width=1
          .Caption "OK"
  )"));
}

TEST_F(HarvestingContainersTest, AFrameThatComesAfterItsButtonBecomesAControlWithoutAQuestion) {
  given(R"(
    form FrmMain
      button cmdOk Caption="OK" in=Frame1
      frame Frame1 Caption="Cadre" ToolTipText="t"
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      Frame1 node control left=-1 width=1
        .Caption "Cadre"
        .ToolTip "t"
        cmdOk control left=-1 width=1
          .Caption "OK"
  )"));
}

TEST_F(HarvestingContainersTest, ContainersAreFoundIgnoringCase) {
  given(R"(
    form FrmMain
      frame FRAME1
        button cmdOk Caption="OK"
  )");
  givenModel(R"(
    FrmMain node
      Frame1 node
  )");
  harvest();
  EXPECT_NE(cell(u"FrmMain\\Frame1\\cmdOk"), nullptr);
  EXPECT_EQ(cell(u"FrmMain")->ColCell()->Count(), 1);
}

TEST_F(HarvestingContainersTest, NestedContainersStandOutermostFirst) {
  given(R"(
    form FrmMain
      frame A Index=0
        frame B
          frame C Index=3
            label L Caption="l"
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      A(0) node
        B node
          C(3) node
            L control left=-1 width=1
              .Caption "l"
  )"));
}

TEST_F(HarvestingContainersTest, ALeafOnTheWayBecomesANode) {
  given(R"(
    form FrmMain
      frame Frame1
        button cmdOk Caption="OK"
  )");
  givenModel(R"(
    FrmMain node
      Frame1 control left=1 width=1
        .Caption "Cadre"
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      Frame1 node control left=1 width=1
        .Caption "Cadre"
        cmdOk control left=-1 width=1
          .Caption "OK"
  )"));
}

TEST_F(HarvestingContainersTest, TheChainEndsAtAContainerNamedLikeTheForm) {
  given(R"(
    form FrmMain
      frame Outer
        frame FrmMain
          label L Caption="l"
  )");
  harvest();
  EXPECT_NE(cell(u"FrmMain\\L"), nullptr);
  EXPECT_EQ(cell(u"FrmMain\\Outer"), nullptr);
}

TEST_F(HarvestingContainersTest, TheFormsNameIsComparedExactly) {
  given(R"(
    form FrmMain
      frame FRMMAIN
        label L Caption="l"
  )");
  harvest();
  EXPECT_NE(cell(u"FrmMain\\FRMMAIN\\L"), nullptr);
}

TEST_F(HarvestingContainersTest, TheFirstContainersMissingNameIsAnEmptyElement) {
  given(R"(
    form FrmMain
      frame Frame1 -Name
        label L Caption="l"
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      "" node
        L control left=-1 width=1
          .Caption "l"
  )"));
}

TEST_F(HarvestingContainersTest, AParentsMissingNameIsAnEmptyElementAndNotThePreviousName) {
  given(R"(
    form FrmMain
      menu mnuFile
      object mnuSub -Name parent=mnuFile
      object mnuOpen parent=mnuSub Caption="Ouvrir"
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      mnuFile node
        "" node
          mnuOpen control left=-1 width=-1
            .Caption "Ouvrir"
  )"));
}

TEST_F(HarvestingContainersTest, AnObjectWithoutContainerAndParentStandsBelowTheForm) {
  given(R"(
    form FrmMain
      object Timer Caption="t" -Container
  )");
  harvest();
  EXPECT_NE(cell(u"FrmMain\\Timer"), nullptr);
}

TEST_F(HarvestingContainersTest, AParentChainThatLeadsNowhereEndsSilently) {
  given(R"(
    form FrmMain
      object Popup -Container
      object Entry parent=Popup Caption="e"
  )");
  harvest();
  EXPECT_NE(cell(u"FrmMain\\Popup\\Entry"), nullptr);
}

TEST_F(HarvestingContainersTest, ACycleOfContainersEndsAtAnObjectAlreadyMet) {
  given(R"(
    form FrmMain
      frame A in=B
        label L Caption="l"
      frame B in=A
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      B node
        A node
          L control left=-1 width=1
            .Caption "l"
  )"));
}

TEST_F(HarvestingContainersTest, ACycleOfParentsEndsToo) {
  given(R"(
    form FrmMain
      object A parent=B Caption="a"
      object B parent=A
  )");
  harvest();
  EXPECT_NE(cell(u"FrmMain\\A\\B\\A"), nullptr);
}

TEST_F(HarvestingContainersTest, OnlyAContainerHarvestsPathsThatBeginLikeIts) {
  given(R"(
    form FrmMain Caption="Accueil"
      frame Frame1 Caption="1"
        label A Caption="a"
      frame Frame10 Caption="10"
        label B Caption="b"
      frame Frame2 Caption="2"
        label C Caption="c"
  )");
  harvestIn("Frame1");
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      .Caption "Accueil"
      Frame1 node control left=-1 width=1
        .Caption "1"
        A control left=-1 width=1
          .Caption "a"
      Frame10 node control left=-1 width=1
        .Caption "10"
        B control left=-1 width=1
          .Caption "b"
  )"));
}

TEST_F(HarvestingContainersTest, TheContainersOwnTagIsPartOfThatBeginning) {
  given(R"(
    form FrmMain
      frame Frame1 Caption="1" tag="Vente"
        label A Caption="a"
  )");
  harvestIn("Frame1");
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      Frame1 node
        Vente control context left=-1 width=1
          .Caption "1"
  )"));
}

TEST_F(HarvestingContainersTest, HiddenControlsAreLeftOutWhenAsked) {
  given(R"(
    form FrmMain
      label A Caption="a" visible=false
      label B Caption="b" visible=0
      label C Caption="c" visible="False"
      label D Caption="d" visible=-1
  )");
  harvestVisible();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      D control left=-1 width=1
        .Caption "d"
  )"));
}

TEST_F(HarvestingContainersTest, HiddenControlsAreHarvestedOtherwise) {
  given(R"(
    form FrmMain
      frame Frame1 visible=false
        label A Caption="a" visible=false
  )");
  harvest();
  EXPECT_NE(cell(u"FrmMain\\Frame1\\A"), nullptr);
}

TEST_F(HarvestingContainersTest, AControlInsideAHiddenFrameIsLeftOutWhenAsked) {
  given(R"(
    form FrmMain
      frame Frame1 visible=false
        frame Frame2
          label A Caption="a"
      label B Caption="b"
  )");
  harvestVisible();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      B control left=-1 width=1
        .Caption "b"
  )"));
}

TEST_F(HarvestingContainersTest, TheFormsOwnVisibilityDoesNotMatter) {
  given(R"(
    form FrmMain visible=false
      label B Caption="b"
  )");
  harvestVisible();
  EXPECT_NE(cell(u"FrmMain\\B"), nullptr);
}

TEST_F(HarvestingContainersTest, AnUnreadableVisibleCountsAsVisible) {
  given(R"(
    form FrmMain
      frame Frame1 -visible
        label A Caption="a" visible="peut-être"
        label B Caption="b" -visible
  )");
  harvestVisible();
  EXPECT_NE(cell(u"FrmMain\\Frame1\\A"), nullptr);
  EXPECT_NE(cell(u"FrmMain\\Frame1\\B"), nullptr);
}

TEST_F(HarvestingContainersTest, RecordsHaveNoVisibilityButTheirToolBarHas) {
  given(R"(
    form FrmMain
      toolbar tb1
        button Open Caption="o"
      toolbar tb2 visible=false
        button Save Caption="s"
  )");
  harvestVisible();
  EXPECT_NE(cell(u"FrmMain\\tb1\\Open"), nullptr);
  EXPECT_EQ(cell(u"FrmMain\\tb2"), nullptr);
}

TEST_F(HarvestingContainersTest, TheVisibilityOfParentsDoesNotMatter) {
  given(R"(
    form FrmMain
      menu mnuFile visible=false
      object mnuOpen parent=mnuFile Caption="Ouvrir"
  )");
  harvestVisible();
  EXPECT_NE(cell(u"FrmMain\\mnuFile\\mnuOpen"), nullptr);
}

}  // namespace
}  // namespace kob::testing
