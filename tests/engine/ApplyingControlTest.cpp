// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

namespace kob::testing {
namespace {

/// Applying a language to a single control.
class ApplyingControlTest : public EngineTest {
 protected:
  ApplyingControlTest() {
    given(R"(
      form FrmMain
        frame Frame1
          button cmdOk Caption="Valider"
        toolbar tbMain
          button Open Caption="Ouvrir"
    )");
    givenModel(R"(
      FrmMain node control left=0 width=1
        .Caption "" 2="Form"
        Frame1 node
          cmdOk control left=1 width=1
            .Caption "Valider" 2="Accept"
        tbMain node
          Open control left=-1 width=-1
            .Caption "Ouvrir" 2="Open"
    )");
  }
};

TEST_F(ApplyingControlTest, WritesThatControlOnly) {
  applyTo("cmdOk", 2);
  EXPECT_TRUE(writesAre(R"(
    set cmdOk.tag = ""
    set cmdOk.Caption = "Accept"
  )"));
}

TEST_F(ApplyingControlTest, AFormIsAControlLikeAny) {
  applyTo("FrmMain", 2);
  EXPECT_EQ(at("FrmMain").held(Property::Caption)->asText(), u"Form");
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Valider");
}

TEST_F(ApplyingControlTest, AControlWithoutATagEndsWithAnErrorAndIsNotWritten) {
  at("cmdOk").lacks(Property::Tag);
  applyTo("cmdOk", 2);
  EXPECT_TRUE(messagesAre(R"(notice "ERREUR")"));
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Valider");
}

TEST_F(ApplyingControlTest, ATagThatCannotBeRestoredEndsWithAnError) {
  at("cmdOk").answers(Property::Tag, u"Vente");
  at("cmdOk").refusesFromWrite(Property::Tag, 2);
  applyTo("cmdOk", 2);
  EXPECT_TRUE(messagesAre(R"(notice "ERREUR")"));
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Valider");
}

TEST_F(ApplyingControlTest, ATagThatCannotBeBlankedButBeRestoredIsForgiven) {
  at("cmdOk").answers(Property::Tag, u"Vente");
  at("cmdOk").before([this, writes = 0](const HostCall& call) mutable {
    if (call.writes() && call.property == Property::Tag) {
      at("cmdOk").refusesFromWrite(Property::Tag, ++writes == 1 ? 1 : 2);
    }
  });
  applyTo("cmdOk", 2);
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Valider");
}

TEST_F(ApplyingControlTest, NoControlIsAnError) {
  model.TraduitControle(nullptr, 2);
  EXPECT_TRUE(messagesAre(R"(notice "ERREUR")"));
}

TEST_F(ApplyingControlTest, AModuleThatNamesNoCellSimplyFindsNothing) {
  applyTo("cmdOk", 2, u"Achats");
  EXPECT_TRUE(writesAre(R"(set cmdOk.tag = "")"));
}

TEST_F(ApplyingControlTest, AModuleStartsThePath) {
  givenModel(R"(
    Achats node
      FrmMain node
        Frame1 node
          cmdOk control left=1 width=1
            .Caption "" 2="Buy"
  )");
  applyTo("cmdOk", 2, u"achats");
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Buy");
}

TEST_F(ApplyingControlTest, AModuleMayBeAPath) {
  givenModel(R"(
    Achats node
      Nord node
        FrmMain node
          Frame1 node
            cmdOk control left=1 width=1
              .Caption "" 2="North"
  )");
  applyTo("cmdOk", 2, u"Achats\\Nord");
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"North");
}

TEST_F(ApplyingControlTest, AToolBarDoesNotReachItsButtons) {
  applyTo("tbMain", 2);
  EXPECT_EQ(at("Open").held(Property::Caption)->asText(), u"Ouvrir");
}

TEST_F(ApplyingControlTest, HiddenControlsAreReached) {
  at("cmdOk").answers(Property::Visible, false);
  applyTo("cmdOk", 2);
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Accept");
}

TEST_F(ApplyingControlTest, ALanguageOutOfRangeIsToldAndNothingWritten) {
  applyTo("cmdOk", 9);
  EXPECT_TRUE(messagesAre(R"(notice "Erreur Traduit Controle")"));
  EXPECT_TRUE(writesAre(R"(set cmdOk.tag = "")"));
}

TEST_F(ApplyingControlTest, ADamagedEntryIsToldAndNothingWritten) {
  cell(u"FrmMain\\Frame1\\cmdOk")->ColTraduction()->Add(nullptr);
  applyTo("cmdOk", 2);
  EXPECT_TRUE(messagesAre(R"(notice "Erreur Traduit Controle")"));
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Valider");
}

TEST_F(ApplyingControlTest, ADamagedListOnThePathIsToldByTheLookup) {
  model.Racine()->GetCell(u"FrmMain")->ColCell()->Add(nullptr, 1);
  applyTo("cmdOk", 2);
  EXPECT_TRUE(messagesAre(R"(notice "GetCell - KOBCellTraduction")"));
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Valider");
}

}  // namespace
}  // namespace kob::testing
