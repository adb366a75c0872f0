// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

#include <tests/doubles/TreeText.h>
#include <tests/doubles/Utf8.h>

namespace kob::testing {
namespace {

/// What the markers and the context in a control's tag do when a language is applied.
class ApplyingTagsTest : public EngineTest {
 protected:
  ApplyingTagsTest() {
    given(R"(
      form FrmMain
        button cmdOk Caption="Valider" ToolTipText="Valide" left=10 width=100
    )");
    givenModel(R"(
      FrmMain node
        cmdOk node control left=1 width=1 left[2]=2 width[2]=3
          .Caption "Valider" 2="Accept"
          .ToolTip "Valide" 2="Accepts"
          Vente control context left=1 width=1 left[2]=4
            .Caption "Vendre" 2="Sell"
    )");
  }
  void tag(const Value& text) { at("cmdOk").answers(Property::Tag, text); }
  std::string cmdOk() { return form().print().substr(std::string("form FrmMain\n  ").size()); }
};

TEST_F(ApplyingTagsTest, AnExcludedControlIsNotTouchedInAnyMixOfCase) {
  for (const char16_t* const text : {u"PAS TRADUIT", u"pas traduit", u"Pas Traduit"}) {
    tag(text);
    apply(2);
    applyTo("cmdOk", 2);
    EXPECT_EQ(form().writes(), "") << toUtf8(text);
  }
}

TEST_F(ApplyingTagsTest, AnExcludedControlWithAMarkerIsNotTouchedEither) {
  for (const char16_t* const text : {u"PAS TRADUIT[T]", u"pas traduit[C]"}) {
    tag(text);
    apply(2);
    applyTo("cmdOk", 2);
    EXPECT_EQ(form().writes(), "") << toUtf8(text);
    EXPECT_EQ(at("cmdOk").held(Property::Tag)->asText(), text);
  }
}

TEST_F(ApplyingTagsTest, PasTraduitWithBlanksIsAContextLikeAny) {
  tag(u"PAS TRADUIT ");
  apply(2);
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Accept");
}

TEST_F(ApplyingTagsTest, TKeepsTheCaption) {
  tag(u"[T]");
  apply(2);
  EXPECT_EQ(cmdOk(), R"(button cmdOk tag="[T]" Caption="Valider" ToolTipText="Accepts" left=20 width=300)"
                     "\n");
}

TEST_F(ApplyingTagsTest, CKeepsTheToolTip) {
  tag(u"[C]");
  apply(2);
  EXPECT_EQ(cmdOk(), R"(button cmdOk tag="[C]" Caption="Accept" ToolTipText="Valide" left=20 width=300)"
                     "\n");
}

TEST_F(ApplyingTagsTest, AContextOverridesTheTextsThatItHasAndBothFactors) {
  tag(u"Vente");
  apply(2);
  EXPECT_EQ(cmdOk(), R"(button cmdOk tag="Vente" Caption="Sell" ToolTipText="Accepts" left=40 width=100)"
                     "\n");
}

TEST_F(ApplyingTagsTest, AContextWithCGivesCaptionLeftAndWidthAndKeepsTheToolTip) {
  tag(u"Vente[C]");
  apply(2);
  EXPECT_EQ(cmdOk(), R"(button cmdOk tag="Vente[C]" Caption="Sell" ToolTipText="Valide" left=40 width=100)"
                     "\n");
}

TEST_F(ApplyingTagsTest, AContextWithoutCellLeavesTheControlsOwnTexts) {
  tag(u"Achat[C]");
  apply(2);
  EXPECT_EQ(cmdOk(), R"(button cmdOk tag="Achat[C]" Caption="Accept" ToolTipText="Valide" left=20 width=300)"
                     "\n");
}

TEST_F(ApplyingTagsTest, TheContextIsFoundIgnoringCase) {
  tag(u"VENTE");
  apply(2);
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Sell");
}

TEST_F(ApplyingTagsTest, ATextOfTheContextFallsBackToItsOwnLanguageOne) {
  tag(u"Vente");
  apply(3);
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Vendre");
}

TEST_F(ApplyingTagsTest, ALeafHasNoContext) {
  cell(u"FrmMain\\cmdOk")->setTypeCell(2);
  tag(u"Vente");
  apply(2);
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Accept");
}

TEST_F(ApplyingTagsTest, AContextThatIsNoControlCellIsAFailure) {
  cell(u"FrmMain\\cmdOk\\Vente")->setTypeFeuille(0);
  tag(u"Vente");
  apply(2);
  EXPECT_TRUE(messagesAre(R"(notice "Erreur Traduit Controle")"));
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Valider");
}

TEST_F(ApplyingTagsTest, OfTwoMarkersOnlyTheLastOneCounts) {
  tag(u"x[C][T]");
  growTree(cell(u"FrmMain\\cmdOk"), R"("x[C]" control left=0 width=0
                                         .ToolTip "Autre")");
  apply(2);
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Valider");
  EXPECT_EQ(at("cmdOk").held(Property::ToolTipText)->asText(), u"Autre");
}

TEST_F(ApplyingTagsTest, TheDialogBlanksAndRestoresEveryTag) {
  tag(u"[T]");
  apply(2);
  EXPECT_EQ(form().writes().substr(0, 53), "set cmdOk.tag = \"\"\nset cmdOk.tag = \"[T]\"\nset cmdOk.To");
}

TEST_F(ApplyingTagsTest, TheControlsOwnCallLeavesABareMarkerInPlace) {
  tag(u"[T]");
  applyTo("cmdOk", 2);
  EXPECT_TRUE(writesAre(R"(
    set cmdOk.tag = "[T]"
    set cmdOk.ToolTipText = "Accepts"
    set cmdOk.left = 20
    set cmdOk.width = 300
  )"));
}

TEST_F(ApplyingTagsTest, TheControlsOwnCallBlanksATagWithContext) {
  tag(u"Vente[T]");
  applyTo("cmdOk", 2);
  EXPECT_TRUE(writesAre(R"(
    set cmdOk.tag = ""
    set cmdOk.tag = "Vente[T]"
    set cmdOk.ToolTipText = "Accepts"
    set cmdOk.left = 40
  )"));
}

TEST_F(ApplyingTagsTest, TheTagIsRestoredBeforeTheControlIsWritten) {
  tag(u"Vente");
  apply(2);
  EXPECT_LT(form().writes().find("tag = \"Vente\""), form().writes().find("Caption"));
}

TEST_F(ApplyingTagsTest, ATagThatIsANumberIsAContextAndIsRestoredAsText) {
  tag(12);
  growTree(cell(u"FrmMain\\cmdOk"), R"(12 control left=0 width=0
                                         .Caption "Douze")");
  apply(2);
  EXPECT_EQ(cmdOk(), R"(button cmdOk tag="12" Caption="Douze" ToolTipText="Accepts" left=10 width=100)"
                     "\n");
}

TEST_F(ApplyingTagsTest, AHostThatRefusesToBlankTheTagHidesTheCell) {
  tag(u"Vente");
  at("cmdOk").refuses(Property::Tag);
  apply(2);
  // The path then ends in the context, whose cell has a caption but no child "Vente".
  EXPECT_EQ(cmdOk(), R"(button cmdOk tag="Vente" Caption="Sell" ToolTipText="Valide" left=40 width=100)"
                     "\n");
}

TEST_F(ApplyingTagsTest, FlagsDoNotCarryOverToTheNextControl) {
  given(R"(
    form FrmMain
      button other tag="[T]"
      button cmdOk Caption="Valider" tag=""
  )");
  apply(2);
  EXPECT_EQ(at("cmdOk").held(Property::Caption)->asText(), u"Accept");
}

}  // namespace
}  // namespace kob::testing
