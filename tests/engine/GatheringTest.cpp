// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

namespace kob::testing {
namespace {

/// How the controls, buttons and entries of a form are collected before any of them is translated.
class GatheringTest : public EngineTest {
 protected:
  GatheringTest() {
    given(R"(
      form FrmMain
        label First
        toolbar tbMain
          button Open
            entry Recent
            entry Last
          button Save
        label Late
    )");
    givenModel(R"(
      FrmMain node control left=0 width=1
        .Caption "" 2="Form"
        First control left=1 width=1
          .Caption "" 2="First"
        Late control left=1 width=1
          .Caption "" 2="Late"
        tbMain node
          Open node control left=-1 width=-1
            .Caption "" 2="Open"
            Last control left=-1 width=-1
              .Caption "" 2="Last"
            Recent control left=-1 width=-1
              .Caption "" 2="Recent"
          Save control left=-1 width=-1
            .Caption "" 2="Save"
    )");
  }

  std::string captions() {
    std::string texts;
    for (const HostCall& call : form().calls()) {
      texts += call.writes() && call.property == Property::Caption ? call.object->label() + " " : "";
    }
    return texts;
  }
};

TEST_F(GatheringTest, ButtonsFollowTheirToolBarAndEntriesTheirButton) {
  apply(2);
  EXPECT_EQ(captions(), "FrmMain First Open Recent Last Save Late ");
}

TEST_F(GatheringTest, NothingIsPassedOverHoweverFarBehindItStands) {
  std::string controls = "form FrmMain\n";
  for (int i = 0; i < 20; ++i) {
    controls += "  label Other" + std::to_string(i) + "\n  nothing\n";
  }
  given(controls + "  label Late\n");
  apply(2);
  EXPECT_EQ(captions(), "FrmMain Late ");
}

TEST_F(GatheringTest, CountsAreReadOnce) {
  apply(2);
  EXPECT_EQ(form().callTexts([](const HostCall& call) {
    return call.kind == HostCall::Kind::Get && call.property == Property::Count;
  }),
            "get tbMain.Buttons.count\nget Open.ButtonMenus.count\nget Save.ButtonMenus.count\n");
}

TEST_F(GatheringTest, ACountThatIsATextConverts) {
  form().collection("tbMain", Property::Buttons).answers(Property::Count, u"1");
  apply(2);
  EXPECT_EQ(captions(), "FrmMain First Open Recent Last Late ");
}

TEST_F(GatheringTest, ANegativeCountIsNoButtons) {
  form().collection("tbMain", Property::Buttons).answers(Property::Count, -3);
  apply(2);
  EXPECT_EQ(captions(), "FrmMain First Late ");
}

TEST_F(GatheringTest, WhatAButtonOrEntryLacksEndsTheCallBeforeAnyControl) {
  struct Lack {
    const char* object;
    Property property;
  };
  for (const Lack lack :
       {Lack{"Open", Property::Caption}, Lack{"Open", Property::ToolTipText}, Lack{"Open", Property::Key},
        Lack{"Save", Property::ButtonMenus}, Lack{"Last", Property::Caption},
        Lack{"Last", Property::ToolTipText}, Lack{"Last", Property::Key}}) {
    ScriptedObject& object = at(lack.object);
    const Value before = *object.held(lack.property);
    object.lacks(lack.property);
    form().calls().clear();
    apply(2);
    EXPECT_TRUE(messagesAre(R"(notice "ERREUR")")) << lack.object;
    EXPECT_EQ(captions(), "FrmMain ") << lack.object;
    object.answers(lack.property, before);
  }
}

TEST_F(GatheringTest, ButtonsWithoutACountEndTheCall) {
  form().collection("tbMain", Property::Buttons).lacks(Property::Count);
  apply(2);
  EXPECT_TRUE(messagesAre(R"(notice "ERREUR")"));
  EXPECT_EQ(captions(), "FrmMain ");
}

TEST_F(GatheringTest, MenusWithoutACountEndTheCall) {
  form().collection("Open", Property::ButtonMenus).lacks(Property::Count);
  apply(2);
  EXPECT_TRUE(messagesAre(R"(notice "ERREUR")"));
}

TEST_F(GatheringTest, ACountThatIsTooLargeEndsTheCall) {
  form().collection("tbMain", Property::Buttons).answers(Property::Count, 3);
  apply(2);
  EXPECT_TRUE(messagesAre(R"(notice "ERREUR")"));
}

TEST_F(GatheringTest, AnEntryCountThatIsTooLargeEndsTheCall) {
  form().collection("Open", Property::ButtonMenus).answers(Property::Count, 3);
  apply(2);
  EXPECT_TRUE(messagesAre(R"(notice "ERREUR")"));
}

TEST_F(GatheringTest, ButtonsThatAreNothingAreNone) {
  at("tbMain").answers(Property::Buttons, Value());
  apply(2);
  EXPECT_EQ(captions(), "FrmMain First Late ");
}

TEST_F(GatheringTest, ButtonsThatAreNoObjectAreNone) {
  at("tbMain").answers(Property::Buttons, 2);
  apply(2);
  EXPECT_EQ(captions(), "FrmMain First Late ");
}

TEST_F(GatheringTest, SubControlsFollowTheirControlOneLevelDeep) {
  given(R"(
    form FrmMain
      object First Caption="" tag=""
        label Sub sub
          label SubSub sub
      label Late
  )");
  givenModel(R"(
    FrmMain node
      First node control left=1 width=1
        .Caption "" 2="First"
        Sub node control left=1 width=1
          .Caption "" 2="Sub"
          SubSub control left=1 width=1
            .Caption "" 2="SubSub"
      Late control left=1 width=1
        .Caption "" 2="Late"
  )");
  model.Racine()->ColCell()->Remove(1);
  apply(2);
  EXPECT_EQ(captions(), "First Sub Late ");
}

TEST_F(GatheringTest, SubControlsThatCannotBeEnumeratedEndTheCall) {
  given(R"(
    form FrmMain
      label First
        label Sub sub
  )");
  form().collection("First", Property::Controls).vanish();
  apply(2);
  EXPECT_TRUE(messagesAre(R"(notice "ERREUR")"));
  EXPECT_EQ(captions(), "FrmMain ");
}

TEST_F(GatheringTest, ASubControlThatIsNothingIsPassedOver) {
  given(R"(
    form FrmMain
      label First
        nothing sub
        label Sub sub
  )");
  apply(2);
  EXPECT_EQ(captions(), "FrmMain First ");
}

TEST_F(GatheringTest, HarvestingDoesNotBindItsRecords) {
  model.Racine()->ColCell()->Remove(1);
  for (const char* const button : {"Open", "Recent", "Last", "Save"}) {
    at(button).answers(Property::Caption, u"texte");
  }
  harvest();
  EXPECT_NE(cell(u"FrmMain\\tbMain\\Open\\Last"), nullptr);
  EXPECT_EQ(form().writes(), "");
}

}  // namespace
}  // namespace kob::testing
