// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

namespace kob::testing {
namespace {

/// What harvesting a form records of its controls.
class HarvestingTest : public EngineTest {};

TEST_F(HarvestingTest, ALabelWithoutToolTipGivesALeafWithOneEntry) {
  given(R"(
    form FrmMain Caption="Accueil"
      label Label1 Caption="Nom" left=10
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      .Caption "Accueil"
      Label1 control left=1 width=1
        .Caption "Nom"
  )"));
}

TEST_F(HarvestingTest, TheFormsToolTipAndLeftAreNotRecorded) {
  given(R"(form FrmMain Caption="Accueil" ToolTipText="Bienvenue" left=10)");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain control left=0 width=1
      .Caption "Accueil"
  )"));
  EXPECT_EQ(form().callsOn("FrmMain").find("left"), std::string::npos);
}

TEST_F(HarvestingTest, AFormWithoutWidthHasIndicatorMinusOne) {
  given(R"(form FrmMain Caption="Accueil" width=0)");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain control left=0 width=-1
      .Caption "Accueil"
  )"));
}

TEST_F(HarvestingTest, TheFormsTagIsItsContextAsItStands) {
  given(R"(form FrmMain Caption="Accueil" tag="Vente[C]")");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node
      Vente[C] control context left=0 width=1
        .Caption "Accueil"
  )"));
}

TEST_F(HarvestingTest, AFormMarkedPasTraduitIsHarvestedAllTheSame) {
  given(R"(form FrmMain Caption="Accueil" tag="PAS TRADUIT")");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node
      "PAS TRADUIT" control context left=0 width=1
        .Caption "Accueil"
  )"));
}

TEST_F(HarvestingTest, TheFormsIndexIsNotPartOfItsCellsName) {
  given(R"(form FrmMain Caption="Accueil" Index=1)");
  harvest();
  EXPECT_NE(cell(u"FrmMain"), nullptr);
  EXPECT_EQ(cell(u"FrmMain(1)"), nullptr);
}

TEST_F(HarvestingTest, AModuleIsFoundIgnoringCase) {
  given(R"(form FrmMain Caption="Accueil")");
  givenModel("ACHATS node");
  model.UpdateWithForm(form().form(), u"Achats");
  EXPECT_TRUE(treeIs(R"(
    ACHATS node
      FrmMain control left=0 width=1
        .Caption "Accueil"
  )"));
}

TEST_F(HarvestingTest, AMissingModuleIsMade) {
  given(R"(form FrmMain Caption="Accueil")");
  model.UpdateWithForm(form().form(), u"Achats");
  EXPECT_TRUE(treeIs(R"(
    Achats node
      FrmMain control left=0 width=1
        .Caption "Accueil"
  )"));
}

TEST_F(HarvestingTest, AModuleWithOddCharactersIsOneName) {
  given(R"(form FrmMain Caption="Accueil")");
  model.UpdateWithForm(form().form(), u" A\\b.(é)=\" ");
  EXPECT_TRUE(treeIs(R"(
    " A\\b.(é)=\" " node
      FrmMain control left=0 width=1
        .Caption "Accueil"
  )"));
}

TEST_F(HarvestingTest, TwiceWithTheSameTextsChangesAndAsksNothing) {
  given(R"(
    form FrmMain Caption="Accueil"
      frame Frame1 Caption="Cadre"
        button cmdOk Index=0 Caption="OK" ToolTipText="Valide"
        button cmdOk Index=1 Caption="OK" tag="Vente[C]"
      menu mnuFile Caption="Fichier"
      tabs ssTab
        page P0 title="Un" tip="1"
        page P1 title="Deux"
  )");
  harvest();
  const std::string before = printed();
  EXPECT_NE(before.find("ssTab(1)"), std::string::npos);
  harvest();
  EXPECT_TRUE(treeIs(before));
}

TEST_F(HarvestingTest, IndicatorsTellWhetherLeftAndWidthAreGreaterThanZero) {
  given(R"(
    form FrmMain
      label A Caption="a" left=1 width=0
      label B Caption="b" left=-5 width=0.25
      label C Caption="c" -left -width
      label D Caption="d" left="12" width="large"
      label E Caption="e" left=true width=3e9
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      A control left=1 width=-1
        .Caption "a"
      B control left=-1 width=1
        .Caption "b"
      C control left=-1 width=-1
        .Caption "c"
      D control left=1 width=-1
        .Caption "d"
      E control left=-1 width=1
        .Caption "e"
  )"));
}

TEST_F(HarvestingTest, TextsThatAreNumbersOrBooleansAreReadAsText) {
  given(R"(
    form FrmMain
      label A Caption=12 ToolTipText=1.5
      label B Caption=true ToolTipText=100000
      label C Caption=nothing ToolTipText="c"
  )");
  at("B").answers(Property::ToolTipText, 100000.0);
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      A control left=-1 width=1
        .Caption "12"
        .ToolTip "1.5"
      B control left=-1 width=1
        .Caption "True"
        .ToolTip "100000"
      C control left=-1 width=1
        .ToolTip "c"
  )"));
}

TEST_F(HarvestingTest, AControlWithoutTextsIsSkippedSilently) {
  given(R"(
    form FrmMain
      label A
      object B Caption="" tag=""
      object C
  )");
  harvest();
  EXPECT_TRUE(treeIs("FrmMain control left=0 width=1"));
}

TEST_F(HarvestingTest, AControlWithoutNameIsSkippedSilently) {
  given(R"(
    form FrmMain
      label "" Caption="a"
      label B -Name Caption="b"
  )");
  harvest();
  EXPECT_TRUE(treeIs("FrmMain control left=0 width=1"));
}

TEST_F(HarvestingTest, AnIndexMakesANamelessControlANamedOne) {
  given(R"(
    form FrmMain
      label B -Name Index=2 Caption="b"
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"tree(
    FrmMain node control left=0 width=1
      "(2)" control left=-1 width=1
        .Caption "b"
  )tree"));
}

TEST_F(HarvestingTest, ElementsOfAControlArrayAreCellsOfTheirOwn) {
  given(R"(
    form FrmMain
      label L Index=0 Caption="a"
      label L Index="1" Caption="b"
      label L Index=2.5 Caption="c"
  )");
  harvest();
  EXPECT_NE(cell(u"FrmMain\\L(0)"), nullptr);
  EXPECT_NE(cell(u"FrmMain\\L(1)"), nullptr);
  EXPECT_NE(cell(u"FrmMain\\L(2)"), nullptr);
}

TEST_F(HarvestingTest, AMenuStandsBelowItsForm) {
  given(R"(
    form FrmMain
      menu mnuFile Caption="Fichier"
      object mnuOpen parent=mnuFile Caption="Ouvrir"
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      mnuFile node control left=-1 width=-1
        .Caption "Fichier"
        mnuOpen control left=-1 width=-1
          .Caption "Ouvrir"
  )"));
}

TEST_F(HarvestingTest, ButtonsAndEntriesStandBelowTheirToolBar) {
  given(R"(
    form FrmMain
      toolbar tbMain
        button Open Caption="Ouvrir" ToolTipText="Ouvre"
          entry Recent Caption="Récents"
          entry Last ToolTipText="Dernier"
        button Save
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      tbMain node
        Open node control left=-1 width=-1
          .Caption "Ouvrir"
          .ToolTip "Ouvre"
          Last control left=-1 width=-1
            .ToolTip "Dernier"
          Recent control left=-1 width=-1
            .Caption "Récents"
  )"));
}

TEST_F(HarvestingTest, SubControlsAreHarvestedOneLevelDeep) {
  given(R"(
    form FrmMain
      frame Frame1
        label A Caption="a" sub
          label B Caption="b" sub
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      Frame1 node
        A control left=-1 width=1
          .Caption "a"
  )"));
}

TEST_F(HarvestingTest, AControlThatVanishesDuringTheWalkIsSkipped) {
  given(R"(
    form FrmMain
      label A Caption="a"
      label B Caption="b"
      label C Caption="c"
  )");
  at("A").before([this](const HostCall&) { at("B").vanish(); });
  harvest();
  EXPECT_EQ(cell(u"FrmMain\\B"), nullptr);
  EXPECT_NE(cell(u"FrmMain\\C"), nullptr);
}

TEST_F(HarvestingTest, NothingAmongTheControlsIsSkipped) {
  given(R"(
    form FrmMain
      nothing
      label A Caption="a"
  )");
  harvest();
  EXPECT_NE(cell(u"FrmMain\\A"), nullptr);
}

TEST_F(HarvestingTest, AFormWithoutControlsIsRecordedItself) {
  given(R"(form FrmMain Caption="Accueil" -Controls)");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain control left=0 width=1
      .Caption "Accueil"
  )"));
}

TEST_F(HarvestingTest, AMessageCellOfThatNameRefusesTheControlSilently) {
  given(R"(
    form FrmMain
      label A Caption="a"
      label B Caption="b"
  )");
  givenModel(R"(
    FrmMain node
      A message
        . "message"
  )");
  harvest();
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      A message
        . "message"
      B control left=-1 width=1
        .Caption "b"
  )"));
}

TEST_F(HarvestingTest, AnsweringNoLeavesThatCellAndGoesOn) {
  given(R"(
    form FrmMain
      label A Caption="aa" ToolTipText="t"
      label B Caption="b"
  )");
  givenModel(R"(
    FrmMain node
      A control left=5 width=5
        .Caption "a"
        .ToolTip "t"
  )");
  messages.answer(false);
  harvest();
  EXPECT_NE(messages.take().find("a  ->  aa\\r\\nt  ->  t\" -> No"), std::string::npos);
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      A control left=5 width=5
        .Caption "a"
        .ToolTip "t"
      B control left=-1 width=1
        .Caption "b"
  )"));
}

TEST_F(HarvestingTest, WritesNothingToTheForm) {
  given(R"(
    form FrmMain Caption="Accueil"
      button cmdOk Caption="OK" tag="Vente[C]"
  )");
  harvest();
  EXPECT_EQ(form().writes(), "");
}

}  // namespace
}  // namespace kob::testing
