// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EditorTest.h"

namespace kob::testing {

namespace {

using EditorCompletion = EditorTest;

TEST_F(EditorCompletion, AClickFillsTheEmptyLanguagesOfTheClickedCellOnly) {
  const CellRef clicked = message(app, u"a", {u"Bonjour", {}, u"own", {}, {}, {}});
  const CellRef other = message(app, u"b", {u"Bonjour", u"Hello", u"Hallo", {}, {}, {}});
  edit(u"", [](Person& person) {
    person.clickTag(u"App\\a");
    EXPECT_THAT(person.texts(u"tbTradMessage"), ElementsAre(u"Bonjour", u"Hello", u"own", u"", u"", u""));
  });
  EXPECT_THAT(texts(clicked), ElementsAre(u"Bonjour", u"Hello", u"own", u"", u"", u""));
  EXPECT_THAT(texts(other), ElementsAre(u"Bonjour", u"Hello", u"Hallo", u"", u"", u""));
}

TEST_F(EditorCompletion, TextsAreTheSameInAnyLetters) {
  const CellRef clicked = message(app, u"a", {u"ÉTÉ", {}, {}, {}, {}, {}});
  message(app, u"b", {u"été", u"summer", {}, {}, {}, {}});
  edit(u"", [](Person& person) { person.clickTag(u"App\\a"); });
  EXPECT_EQ(texts(clicked)[1], u"summer");
}

TEST_F(EditorCompletion, OfSeveralSourcesTheFirstInTheTreeIsTaken) {
  const CellRef clicked = message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  message(app, u"b", {u"Oui", {}, u"Ja", {}, {}, {}});
  message(app, u"c", {u"Oui", u"Yes", u"Jawohl", {}, {}, {}});
  edit(u"", [](Person& person) { person.clickTag(u"App\\a"); });
  EXPECT_THAT(texts(clicked), ElementsAre(u"Oui", u"Yes", u"Ja", u"", u"", u""));
}

TEST_F(EditorCompletion, MessagesTakeFromControls) {
  const CellRef clicked = message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  control(app, u"b", {entry(u"ToolTip", {u"other", {}, {}, {}, {}, {}}), caption(u"oui", u"Yes")});
  edit(u"", [](Person& person) { person.clickTag(u"App\\a"); });
  EXPECT_EQ(texts(clicked)[1], u"Yes");
}

TEST_F(EditorCompletion, EveryEntryOfAControlIsCompletedByItsOwnText) {
  const CellRef clicked =
      control(app, u"a", {caption(u"Oui"), entry(u"ToolTip", {u"Non", {}, {}, {}, {}, {}})});
  message(app, u"b", {u"Oui", u"Yes", {}, {}, {}, {}});
  message(app, u"c", {u"Non", u"No", {}, {}, {}, {}});
  edit(u"", [](Person& person) { person.clickTag(u"App\\a"); });
  EXPECT_EQ(textsOfEntry(clicked, 1)[1], u"Yes");
  EXPECT_EQ(textsOfEntry(clicked, 2)[1], u"No");
}

TEST_F(EditorCompletion, EntriesOfOneControlCompleteEachOther) {
  const CellRef clicked = control(app, u"a", {caption(u"Oui"), caption(u"OUI", u"Yes")});
  edit(u"", [](Person& person) { person.clickTag(u"App\\a"); });
  EXPECT_EQ(textsOfEntry(clicked, 1)[1], u"Yes");
}

TEST_F(EditorCompletion, EmptyReferenceTextsAreEqualToo) {
  const CellRef clicked = message(app, u"a", {{}, {}, {}, {}, {}, {}});
  message(app, u"b", {{}, u"x", {}, {}, {}, {}});
  edit(u"", [](Person& person) { person.clickTag(u"App\\a"); });
  EXPECT_EQ(texts(clicked)[1], u"x");
}

TEST_F(EditorCompletion, OpeningOnACellCompletesNothing) {
  const CellRef cell = message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  message(app, u"b", {u"Oui", u"Yes", {}, {}, {}, {}});
  edit(u"App\\a", [](Person&) {});
  EXPECT_EQ(texts(cell)[1], u"");
}

TEST_F(EditorCompletion, ACompletedCellIsAChange) {
  message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  message(app, u"b", {u"Oui", u"Yes", {}, {}, {}, {}});
  edit(u"", [](Person& person) {
    person.clickTag(u"App\\b");
    EXPECT_FALSE(person.window.isModified());
    person.clickTag(u"App\\a");
    EXPECT_TRUE(person.window.isModified());
  });
}

TEST_F(EditorCompletion, ItAlsoHappensInRestrictedMode) {
  const CellRef clicked = message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  message(app, u"b", {u"Oui", u"Yes", {}, {}, {}, {}});
  edit(restricted, u"", [](Person& person) { person.clickTag(u"App\\a"); });
  EXPECT_EQ(texts(clicked)[1], u"Yes");
}

TEST_F(EditorCompletion, ADamagedPlaceInTheTreeEndsShow) {
  message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  EXPECT_EQ(failureOf([this] {
              edit(u"", [this](Person& person) {
                app->ColCell()->Add(nullptr);
                person.clickTag(u"App\\a");
              });
            }),
            FailureKind::ObjectNotSet);
}

TEST_F(EditorCompletion, AnEntryTooShortForALanguageEndsShowAfterTheOnesBefore) {
  const CellRef clicked = control(app, u"a", {caption(u"Oui"), caption(u"Non")});
  message(app, u"b", {u"Oui", u"Yes", {}, {}, {}, {}});
  message(app, u"c", {u"Non"});
  EXPECT_EQ(failureOf([this] { edit(u"", [](Person& person) { person.clickTag(u"App\\a"); }); }),
            FailureKind::InvalidIndex);
  EXPECT_EQ(textsOfEntry(clicked, 1)[1], u"Yes");
}

TEST_F(EditorCompletion, ATextTypedJustNowIsTakenFrom) {
  const CellRef clicked = message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  message(app, u"b", {u"Non", {}, {}, {}, {}, {}});
  edit(u"", [](Person& person) {
    person.clickTag(u"App\\b");
    person.type(u"tbTradMessage", 0, u"oui");
    person.type(u"tbTradMessage", 1, u"Yes");
    person.clickTag(u"App\\a");
  });
  EXPECT_EQ(texts(clicked)[1], u"Yes");
}

TEST_F(EditorCompletion, ATextThatWasTypedOverIsNotTakenFrom) {
  const CellRef clicked = message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  message(app, u"b", {u"Oui", u"Yes", {}, {}, {}, {}});
  edit(u"", [](Person& person) {
    person.clickTag(u"App\\b");
    person.type(u"tbTradMessage", 0, u"Non");
    person.clickTag(u"App\\a");
  });
  EXPECT_EQ(texts(clicked)[1], u"");
}

TEST_F(EditorCompletion, WhatAHostChangesMeanwhileCounts) {
  const CellRef clicked = message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  const CellRef other = message(app, u"b", {u"Non", u"Yes", {}, {}, {}, {}});
  edit(u"", [&](Person& person) {
    person.clickTag(u"App\\b");
    other->Traduction()->ChangeTraduction(u"Oui", 1);
    person.clickTag(u"App\\a");
  });
  EXPECT_EQ(texts(clicked)[1], u"Yes");
}

}  // namespace

}  // namespace kob::testing
