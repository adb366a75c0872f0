// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

namespace kob::testing {
namespace {

/// Harvesting a single control.
class HarvestingOneTest : public EngineTest {};

TEST_F(HarvestingOneTest, MakesAPlainNodeOfItsFormAndItsContainers) {
  given(R"(
    form FrmMain Caption="Accueil"
      frame Frame1 Caption="Cadre"
        button cmdOk Index=1 Caption="OK" ToolTipText="Valide" left=10
  )");
  harvestControl("cmdOk(1)");
  EXPECT_TRUE(treeIs(R"(
    FrmMain node
      Frame1 node
        cmdOk(1) control left=1 width=1
          .Caption "OK"
          .ToolTip "Valide"
  )"));
}

TEST_F(HarvestingOneTest, TheFormsIndexIsPartOfItsNameHere) {
  given(R"(
    form FrmMain Index=0
      label A Caption="a"
  )");
  harvestControl("A");
  EXPECT_NE(cell(u"FrmMain(0)\\A"), nullptr);
}

TEST_F(HarvestingOneTest, FindsTheCellsThatAreThere) {
  given(R"(
    form FrmMain
      label A Caption="b"
  )");
  givenModel(R"(
    frmmain node control left=0 width=1
      a control left=1 width=1
        .Caption "a"
  )");
  harvestControl("A");
  EXPECT_TRUE(treeIs(R"(
    frmmain node control left=0 width=1
      a control left=-1 width=1
        .Caption "b"
  )"));
}

TEST_F(HarvestingOneTest, AModuleIsFoundOrMade) {
  given(R"(
    form FrmMain
      label A Caption="a"
  )");
  harvestControl("A", u"Achats");
  harvestControl("A", u"ACHATS");
  EXPECT_TRUE(treeIs(R"(
    Achats node
      FrmMain node
        A control left=-1 width=1
          .Caption "a"
  )"));
}

TEST_F(HarvestingOneTest, AHiddenControlIsHarvested) {
  given(R"(
    form FrmMain
      frame Frame1 visible=false
        label A Caption="a" visible=false
  )");
  harvestControl("A");
  EXPECT_NE(cell(u"FrmMain\\Frame1\\A"), nullptr);
}

TEST_F(HarvestingOneTest, AContextBecomesACell) {
  given(R"(
    form FrmMain
      label A Caption="a" ToolTipText="t" tag="Vente[T]"
  )");
  harvestControl("A");
  EXPECT_TRUE(treeIs(R"(
    FrmMain node
      A node
        Vente control context left=-1 width=1
          .ToolTip "t"
  )"));
}

TEST_F(HarvestingOneTest, AMenuFollowsItsParents) {
  given(R"(
    form FrmMain
      menu mnuFile
      object mnuOpen parent=mnuFile Caption="Ouvrir"
  )");
  harvestControl("mnuOpen");
  EXPECT_NE(cell(u"FrmMain\\mnuFile\\mnuOpen"), nullptr);
}

TEST_F(HarvestingOneTest, TheCellsAreThoseOfItsPath) {
  given(R"(
    form FrmMain Index=2
      frame FrmMain
        label A Index=0 Caption="a"
  )");
  harvestControl("A(0)", u"Achats");
  EXPECT_NE(model.GetCell(model.GetPath(ref("A(0)"), u"Achats")), nullptr);
}

TEST_F(HarvestingOneTest, ChainsThatEndInNothingOrCannotBeReadEndSilently) {
  given(R"(
    form FrmMain
      frame Frame1
        frame Frame2
          label A Caption="a"
  )");
  at("Frame1").lacks(Property::Container);
  harvestControl("A");
  EXPECT_NE(cell(u"Frame1\\Frame2\\A"), nullptr);
  at("Frame1").answers(Property::Container, Value());
  at("Frame1").lacks(Property::Name);
  harvestControl("A");
  EXPECT_NE(model.Racine()->GetCell(u""), nullptr);
}

TEST_F(HarvestingOneTest, ACycleOfContainersEndsAtAnObjectAlreadyMet) {
  given(R"(
    form FrmMain
      frame A in=B
        label L Caption="l"
      frame B in=A
  )");
  harvestControl("L");
  EXPECT_TRUE(treeIs(R"(
    B node
      A node
        L control left=-1 width=1
          .Caption "l"
  )"));
}

TEST_F(HarvestingOneTest, WithoutNameOrTextsItIsSkippedSilently) {
  given(R"(
    form FrmMain
      label A
      label B -Name Caption="b"
  )");
  harvestControl("A");
  harvestControl("B");
  EXPECT_TRUE(treeIs(""));
}

TEST_F(HarvestingOneTest, TheModuleIsMadeEvenForASkippedControl) {
  given(R"(
    form FrmMain
      label A
  )");
  harvestControl("A", u"Achats");
  EXPECT_TRUE(treeIs("Achats node"));
}

TEST_F(HarvestingOneTest, NoControlIsSkippedSilently) {
  model.UpdateWithCtrl(nullptr);
  EXPECT_TRUE(treeIs(""));
}

TEST_F(HarvestingOneTest, AnUnreadableTagIsNoContext) {
  given(R"(
    form FrmMain
      label A Caption="a" -tag
  )");
  harvestControl("A");
  EXPECT_NE(cell(u"FrmMain\\A"), nullptr);
}

TEST_F(HarvestingOneTest, AsksBeforeItOverwrites) {
  given(R"(
    form FrmMain
      label A Caption="aa" ToolTipText="t"
  )");
  givenModel(R"(
    FrmMain node
      A control left=1 width=1
        .Caption "a"
        .ToolTip "t"
  )");
  messages.answer(true);
  harvestControl("A");
  EXPECT_EQ(messages.take(),
            "question \"Le Controle A existe déja\\r\\nVoulez vous le modifier?\\r\\na  ->  aa\\r\\nt  ->  "
            "t\" -> Yes\n");
  EXPECT_EQ(cell(u"FrmMain\\A")->ColTraduction()->Item(1)->ColTraduction()->Item(1), u"aa");
}

}  // namespace
}  // namespace kob::testing
