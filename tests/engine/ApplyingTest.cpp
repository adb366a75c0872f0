// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

#include <tests/doubles/TreeText.h>

namespace kob::testing {
namespace {

/// A form in French, and its English (2) and Dutch (3) texts.
class ApplyingTest : public EngineTest {
 protected:
  ApplyingTest() {
    given(R"(
      form FrmMain Caption="Accueil" width=600
        button cmdOk Caption="Valider" ToolTipText="Valide" left=1000 width=300
    )");
    givenModel(R"(
      FrmMain node control left=0 width=1
        .Caption "Accueil" 2="Home"
        cmdOk node control left=1 width=1
          .Caption "Valider" 2="Accept" 3="Akkoord"
          .ToolTip "Valide" 2="Accepts"
    )");
  }
};

TEST_F(ApplyingTest, WritesCaptionsAndToolTipsOfTheLanguage) {
  apply(2);
  EXPECT_TRUE(formIs(R"(
    form FrmMain Caption="Home" width=600
      button cmdOk Caption="Accept" ToolTipText="Accepts" left=1000 width=300
  )"));
}

TEST_F(ApplyingTest, AnEmptyTextFallsBackToLanguageOne) {
  apply(2);
  apply(3);
  EXPECT_TRUE(formIs(R"(
    form FrmMain Caption="Accueil" width=600
      button cmdOk Caption="Akkoord" ToolTipText="Valide" left=1000 width=300
  )"));
}

TEST_F(ApplyingTest, AnEntryEmptyInLanguageOneTooBlanksTheText) {
  cell(u"FrmMain\\cmdOk")->ColTraduction()->Item(1)->ChangeTraduction(u"", 1);
  cell(u"FrmMain\\cmdOk")->ColTraduction()->Item(1)->ChangeTraduction(u"", 2);
  apply(2);
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"");
}

TEST_F(ApplyingTest, ACaptionWithoutEntryIsLeftAlone) {
  cell(u"FrmMain\\cmdOk")->ColTraduction()->Remove(1);
  applyTo("cmdOk", 2);
  EXPECT_TRUE(writesAre(R"(
    set cmdOk.tag = ""
    set cmdOk.ToolTipText = "Accepts"
  )"));
}

TEST_F(ApplyingTest, AToolTipWithoutEntryIsLeftAlone) {
  cell(u"FrmMain\\cmdOk")->ColTraduction()->Remove(2);
  applyTo("cmdOk", 2);
  EXPECT_TRUE(writesAre(R"(
    set cmdOk.tag = ""
    set cmdOk.Caption = "Accept"
  )"));
}

TEST_F(ApplyingTest, EntryNamesAreComparedIgnoringCaseAndTheLastOneWins) {
  const auto again = std::make_shared<KOBTraductionObj>();
  again->setnom(u"cApTiOn");
  again->ChangeTraduction(u"OK", 2);
  cell(u"FrmMain\\cmdOk")->ColTraduction()->Add(again);
  apply(2);
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"OK");
}

TEST_F(ApplyingTest, EntriesOfOtherNamesAreNotWritten) {
  cell(u"FrmMain\\cmdOk")->ColTraduction()->Item(1)->setnom(u"Text");
  apply(2);
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Valider");
}

TEST_F(ApplyingTest, AControlWithoutCellIsLeftAloneSilently) {
  model.Racine()->GetCell(u"FrmMain")->ColCell()->Remove(1);
  apply(2);
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Valider");
}

TEST_F(ApplyingTest, ACellThatIsNoControlWritesNothing) {
  cell(u"FrmMain\\cmdOk")->setTypeFeuille(0);
  cell(u"FrmMain")->setTypeFeuille(1);
  apply(2);
  EXPECT_TRUE(formIs(R"(
    form FrmMain Caption="Accueil" width=600
      button cmdOk Caption="Valider" ToolTipText="Valide" left=1000 width=300
  )"));
}

TEST_F(ApplyingTest, WritesInTheOrderCaptionToolTipLeftWidth) {
  cell(u"FrmMain\\cmdOk")->ChangeLeft(1.5, 2);
  cell(u"FrmMain\\cmdOk")->ChangeWidth(2, 2);
  applyTo("cmdOk", 2);
  EXPECT_TRUE(writesAre(R"(
    set cmdOk.tag = ""
    set cmdOk.Caption = "Accept"
    set cmdOk.ToolTipText = "Accepts"
    set cmdOk.left = 1500
    set cmdOk.width = 600
  )"));
}

TEST_F(ApplyingTest, AWriteThatIsRefusedDoesNotStopTheOthers) {
  cell(u"FrmMain\\cmdOk")->ChangeLeft(1.5, 2);
  cell(u"FrmMain\\cmdOk")->ChangeWidth(2, 2);
  at("cmdOk").lacks(Property::Caption);
  at("cmdOk").refuses(Property::Left);
  apply(2);
  EXPECT_EQ(at("cmdOk").held(Property::ToolTipText)->asText(), u"Accepts");
  EXPECT_EQ(at("cmdOk").held(Property::Left)->asLong(), 1000);
  EXPECT_EQ(at("cmdOk").held(Property::Width)->asLong(), 600);
}

TEST_F(ApplyingTest, NothingIsUndoneWhenALaterControlFails) {
  cell(u"FrmMain\\cmdOk")->setColLeft(nullptr);
  apply(2);
  EXPECT_TRUE(messagesAre(R"(notice "Erreur Traduit Controle")"));
  EXPECT_EQ(at("FrmMain").held(Property::Caption)->asText(), u"Home");
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Valider");
}

TEST_F(ApplyingTest, ALanguageBeyondTheListsTellsSoForEachControlAndWritesNothing) {
  apply(7);
  EXPECT_TRUE(messagesAre(R"(
    notice "Erreur Traduit Controle"
    notice "Erreur Traduit Controle"
  )"));
  EXPECT_TRUE(writesAre(R"(
    set cmdOk.tag = ""
    set cmdOk.tag = ""
  )"));
}

TEST_F(ApplyingTest, LanguagesZeroAndBelowAreOutOfRangeToo) {
  apply(0);
  apply(-1);
  EXPECT_TRUE(messagesAre(R"(
    notice "Erreur Traduit Controle"
    notice "Erreur Traduit Controle"
    notice "Erreur Traduit Controle"
    notice "Erreur Traduit Controle"
  )"));
  EXPECT_EQ(at("FrmMain").held(Property::Caption)->asText(), u"Accueil");
}

TEST_F(ApplyingTest, TheFormsOwnWidthIsScaled) {
  cell(u"FrmMain")->ChangeWidth(1.25, 2);
  apply(2);
  EXPECT_EQ(at("FrmMain").held(Property::Width)->asLong(), 750);
}

TEST_F(ApplyingTest, AFormMarkedPasTraduitIsLeftButItsControlsAreNot) {
  at("FrmMain").answers(Property::Tag, u"Pas Traduit");
  apply(2);
  EXPECT_EQ(at("FrmMain").held(Property::Caption)->asText(), u"Accueil");
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Accept");
}

TEST_F(ApplyingTest, NoMarkerIsStrippedFromTheFormsTag) {
  // With the marker the tag does not read "PAS TRADUIT", and it is part of the form's path.
  at("FrmMain").answers(Property::Tag, u"PAS TRADUIT[C]");
  apply(2);
  EXPECT_EQ(at("FrmMain").held(Property::Caption)->asText(), u"Accueil");
  growTree(cell(u"FrmMain"), R"(
    "PAS TRADUIT" control left=0 width=0
      .Caption "Contexte"
  )");
  apply(2);
  EXPECT_EQ(at("FrmMain").held(Property::Caption)->asText(), u"Contexte");
}

TEST_F(ApplyingTest, TheFormsTagIsNeitherBlankedNorRestored) {
  at("FrmMain").answers(Property::Tag, u"[T]");
  apply(2);
  EXPECT_EQ(form().writes().find("FrmMain.tag"), std::string::npos);
  EXPECT_EQ(at("FrmMain").held(Property::Caption)->asText(), u"Home");
}

TEST_F(ApplyingTest, LanguageOneBringsTheReferenceTextsBack) {
  apply(2);
  apply(1);
  EXPECT_TRUE(formIs(R"(
    form FrmMain Caption="Accueil" width=600
      button cmdOk Caption="Valider" ToolTipText="Valide" left=1000 width=300
  )"));
}

TEST_F(ApplyingTest, DoesNotChangeTheModel) {
  apply(2);
  EXPECT_TRUE(treeIs(R"(
    FrmMain node control left=0 width=1
      .Caption "Accueil" 2="Home"
      cmdOk node control left=1 width=1
        .Caption "Valider" 2="Accept" 3="Akkoord"
        .ToolTip "Valide" 2="Accepts"
  )"));
}

}  // namespace
}  // namespace kob::testing
