// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

namespace kob::testing {
namespace {

/// Which controls of a form a language is applied to, and what ends the call.
class ApplyingFormTest : public EngineTest {
 protected:
  ApplyingFormTest() {
    given(R"(
      form FrmMain
        frame Frame1
          label A tag="[C]"
        frame Frame10
          label B
        toolbar tbMain
          button Open
            entry Recent
    )");
    givenModel(R"(
      FrmMain node control left=0 width=1
        .Caption "" 2="Form"
        Frame1 node control left=1 width=1
          .Caption "" 2="F1"
          A control left=1 width=1
            .Caption "" 2="a"
        Frame10 node control left=1 width=1
          .Caption "" 2="F10"
          B control left=1 width=1
            .Caption "" 2="b"
        tbMain node
          Open node control left=-1 width=-1
            .Caption "" 2="Open"
            .ToolTip "" 2="Opens"
            Recent control left=-1 width=-1
              .Caption "" 2="Recent"
    )");
  }

  /// The captions and tool tips written, in order, with the names of their objects.
  std::string written() {
    return form().callTexts([](const HostCall& call) {
      return call.writes() && (call.property == Property::Caption || call.property == Property::ToolTipText);
    });
  }
};

TEST_F(ApplyingFormTest, ReachesTheFormThenEveryControlButtonAndEntryInOrder) {
  apply(2);
  EXPECT_EQ(written(),
            "set FrmMain.Caption = \"Form\"\nset Frame1.Caption = \"F1\"\nset A.Caption = \"a\"\n"
            "set Frame10.Caption = \"F10\"\nset B.Caption = \"b\"\nset Open.Caption = \"Open\"\n"
            "set Open.ToolTipText = \"Opens\"\nset Recent.Caption = \"Recent\"\n");
}

TEST_F(ApplyingFormTest, AContainerLimitsItToPathsThatBeginLikeIt) {
  applyIn("Frame10", 2);
  EXPECT_EQ(written(), "set Frame10.Caption = \"F10\"\nset B.Caption = \"b\"\n");
}

TEST_F(ApplyingFormTest, AContainersPathIsOnlyABeginning) {
  applyIn("Frame1", 2);
  EXPECT_EQ(written(),
            "set Frame1.Caption = \"F1\"\nset A.Caption = \"a\"\n"
            "set Frame10.Caption = \"F10\"\nset B.Caption = \"b\"\n");
}

TEST_F(ApplyingFormTest, WithAContainerTheFormsOwnCaptionIsNeverWritten) {
  model.TraduitDialog(form().form(), 2, u"", false, form().form());
  EXPECT_EQ(written().find("FrmMain"), std::string::npos);
  EXPECT_NE(written().find("A.Caption"), std::string::npos);
}

TEST_F(ApplyingFormTest, TheBeginningIsComparedExactly) {
  at("Frame10").answers(Property::Name, u"frame10");
  applyIn("Frame1", 2);
  EXPECT_EQ(written(), "set Frame1.Caption = \"F1\"\nset A.Caption = \"a\"\n");
}

TEST_F(ApplyingFormTest, ControlsOutsideTheContainerGetTheirTagsBack) {
  applyIn("Frame10", 2);
  EXPECT_EQ(
      form().callTexts([](const HostCall& call) { return call.writes() && call.text().find("set A.") == 0; }),
      "set A.tag = \"\"\nset A.tag = \"[C]\"\n");
}

TEST_F(ApplyingFormTest, TheContainersOwnTagIsPartOfTheBeginning) {
  at("Frame1").answers(Property::Tag, u"Vente");
  applyIn("Frame1", 2);
  EXPECT_EQ(written(), "");
}

TEST_F(ApplyingFormTest, AContainerOfAnotherFormReachesNothing) {
  given(R"(
    form FrmMain
      label A in=Other
    form Other
  )");
  model.TraduitDialog(form().form(), 2, u"", false, ref("A"));
  EXPECT_EQ(written(), "");
}

TEST_F(ApplyingFormTest, HiddenControlsAreSkippedButTheirTagsBlankedAndRestored) {
  at("A").answers(Property::Visible, false);
  applyVisible(2);
  EXPECT_EQ(written().find("A.Caption"), std::string::npos);
  EXPECT_NE(form().writes().find("set A.tag = \"\"\nset A.tag = \"[C]\"\n"), std::string::npos);
}

TEST_F(ApplyingFormTest, HiddenControlsAreReachedUnlessAskedOtherwise) {
  at("A").answers(Property::Visible, false);
  apply(2);
  EXPECT_NE(written().find("A.Caption"), std::string::npos);
}

TEST_F(ApplyingFormTest, AControlInsideAHiddenFrameIsReached) {
  at("Frame1").answers(Property::Visible, false);
  applyVisible(2);
  EXPECT_EQ(written().find("Frame1.Caption"), std::string::npos);
  EXPECT_NE(written().find("A.Caption"), std::string::npos);
}

TEST_F(ApplyingFormTest, AMissingVisibleCountsAsVisible) {
  at("A").lacks(Property::Visible);
  at("B").answers(Property::Visible, u"peut-être");
  applyVisible(2);
  EXPECT_NE(written().find("A.Caption"), std::string::npos);
  EXPECT_NE(written().find("B.Caption"), std::string::npos);
}

TEST_F(ApplyingFormTest, VisibleMayBeANumberOrAText) {
  at("A").answers(Property::Visible, 0);
  at("B").answers(Property::Visible, u"false");
  at("Frame10").answers(Property::Visible, -1);
  applyVisible(2);
  EXPECT_EQ(written().find("A.Caption"), std::string::npos);
  EXPECT_EQ(written().find("B.Caption"), std::string::npos);
  EXPECT_NE(written().find("Frame10.Caption"), std::string::npos);
}

TEST_F(ApplyingFormTest, RecordsHaveNoVisibilityAndAreReached) {
  applyVisible(2);
  EXPECT_NE(written().find("Open.Caption"), std::string::npos);
  EXPECT_NE(written().find("Recent.Caption"), std::string::npos);
}

TEST_F(ApplyingFormTest, VisibleIsAskedOnlyWhenItMatters) {
  apply(2);
  EXPECT_EQ(form().callTexts([](const HostCall& call) { return call.property == Property::Visible; }), "");
}

TEST_F(ApplyingFormTest, RecordsScaleTheirOwnMinusOne) {
  cell(u"FrmMain\\tbMain\\Open")->ChangeLeft(3.5, 2);
  at("Open").answers(Property::Left, 100);
  apply(2);
  EXPECT_EQ(at("Open").held(Property::Left)->asLong(), -3);
}

TEST_F(ApplyingFormTest, AModuleThatTheRootDoesNotHaveEndsItSilently) {
  model.TraduitDialog(form().form(), 2, u"Achats");
  EXPECT_TRUE(form().calls().empty());
}

TEST_F(ApplyingFormTest, AModulesCellIsFoundIgnoringCaseAndStartsThePaths) {
  givenModel(R"(
    ACHATS node
      FrmMain control left=0 width=1
        .Caption "" 2="Purchases"
  )");
  model.TraduitDialog(form().form(), 2, u"Achats");
  EXPECT_EQ(written(), "set FrmMain.Caption = \"Purchases\"\n");
}

TEST_F(ApplyingFormTest, AModuleIsOneNameWhenItIsTestedAndAPathWhenItIsFollowed) {
  // The cell "Achats\Nord" lets the call through; the paths then lead to Nord below Achats.
  givenModel(R"(
    "Achats\\Nord" node
    Achats node
      Nord node
        FrmMain control left=0 width=1
          .Caption "" 2="North"
  )");
  model.TraduitDialog(form().form(), 2, u"Achats\\Nord");
  EXPECT_EQ(written(), "set FrmMain.Caption = \"North\"\n");
}

TEST_F(ApplyingFormTest, AModuleThatIsOnlyAPathIsNotFound) {
  givenModel(R"(
    Achats node
      Nord node
        FrmMain control left=0 width=1
          .Caption "" 2="North"
  )");
  model.TraduitDialog(form().form(), 2, u"Achats\\Nord");
  EXPECT_EQ(written(), "");
}

TEST_F(ApplyingFormTest, AnUnreadableTagOfTheFormIsAnError) {
  at("FrmMain").lacks(Property::Tag);
  apply(2);
  EXPECT_TRUE(messagesAre(R"(notice "ERREUR")"));
  EXPECT_EQ(written(), "");
}

TEST_F(ApplyingFormTest, NoFormIsAnError) {
  model.TraduitDialog(nullptr, 2);
  EXPECT_TRUE(messagesAre(R"(notice "ERREUR")"));
}

TEST_F(ApplyingFormTest, AFormWithoutControlsIsTranslatedItself) {
  at("FrmMain").lacks(Property::Controls);
  apply(2);
  EXPECT_EQ(written(), "set FrmMain.Caption = \"Form\"\n");
}

TEST_F(ApplyingFormTest, ControlsThatCannotBeEnumeratedCountAsNone) {
  form().collection("FrmMain", Property::Controls).vanish();
  apply(2);
  EXPECT_EQ(written(), "set FrmMain.Caption = \"Form\"\n");
}

TEST_F(ApplyingFormTest, NothingAmongTheControlsIsPassedOver) {
  given(R"(
    form FrmMain
      nothing
      frame Frame1
  )");
  apply(2);
  EXPECT_EQ(written(), "set FrmMain.Caption = \"Form\"\nset Frame1.Caption = \"F1\"\n");
}

TEST_F(ApplyingFormTest, AControlThatVanishesDuringTheWalkIsPassedOver) {
  at("A").before([this](const HostCall& call) {
    if (call.writes()) {
      at("B").vanish();
    }
  });
  apply(2);
  EXPECT_EQ(written().find("B.Caption"), std::string::npos);
  EXPECT_NE(written().find("Recent.Caption"), std::string::npos);
}

TEST_F(ApplyingFormTest, AControlWithoutATagIsTranslatedAllTheSame) {
  at("A").lacks(Property::Tag);
  apply(2);
  EXPECT_NE(written().find("A.Caption"), std::string::npos);
}

}  // namespace
}  // namespace kob::testing
