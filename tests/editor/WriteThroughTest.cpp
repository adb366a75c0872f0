// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EditorTest.h"

namespace kob::testing {

namespace {

using EditorWriteThrough = EditorTest;

TEST_F(EditorWriteThrough, TheNameIsWrittenAtEveryKeystroke) {
  const CellRef form = app->AddNoeuds(u"Form");
  edit(u"App\\Form", [&](Person& person) {
    person.type(u"tbNom", u"F");
    EXPECT_EQ(form->nom(), u"F");
    person.type(u"tbNom", u"Fo");
    EXPECT_EQ(form->nom(), u"Fo");
  });
}

TEST_F(EditorWriteThrough, ARenamedCellKeepsItsNodesTextAndTagUntilTheTreeIsRebuilt) {
  app->AddNoeuds(u"Form");
  edit(u"App\\Form", [](Person& person) {
    person.type(u"tbNom", u"New");
    EXPECT_EQ(person.tree().shown(2).text, u"Form");
    EXPECT_EQ(person.selectedTag(), u"App\\Form");
    person.choose(u"OptTypFeuille", 1);
    EXPECT_EQ(person.tree().shown(2).text, u"New");
    EXPECT_EQ(person.selectedTag(), u"App\\New");
  });
}

TEST_F(EditorWriteThrough, TheAliasIsWritten) {
  const CellRef form = app->AddNoeuds(u"Form");
  edit(u"App\\Form", [](Person& person) { person.type(u"tbAlias", u"x"); });
  EXPECT_EQ(form->Alias(), u"x");
  EXPECT_EQ(form->nom(), u"Form");
}

TEST_F(EditorWriteThrough, AContextsNameFieldRenamesTheContextItself) {
  const CellRef button = control(app, u"button", {});
  const CellRef help = control(button, u"help", {});
  help->setContexte(true);
  edit(u"App\\button\\help", [](Person& person) { person.type(u"tbNom", u"x"); });
  EXPECT_EQ(help->nom(), u"x");
  EXPECT_EQ(button->nom(), u"button");
}

TEST_F(EditorWriteThrough, TheContextFieldWritesNothing) {
  const CellRef help = control(control(app, u"button", {}), u"help", {});
  help->setContexte(true);
  edit(u"App\\button\\help", [](Person& person) { EXPECT_TRUE(person.type(u"tbContexte", u"x")); });
  EXPECT_EQ(help->nom(), u"help");
}

TEST_F(EditorWriteThrough, AMessagesTextsAreWrittenInTheirLanguages) {
  const CellRef cell = message(app, u"m", {u"a", u"b", u"c", u"d", u"e", u"f"});
  edit(u"App\\m", [](Person& person) {
    person.type(u"tbTradMessage", 0, u"A");
    person.type(u"tbTradMessage", 5, u"F");
  });
  EXPECT_THAT(texts(cell), ElementsAre(u"A", u"b", u"c", u"d", u"e", u"F"));
}

TEST_F(EditorWriteThrough, AControlsTextsAreWrittenIntoTheSelectedTranslation) {
  const CellRef cell = control(app, u"c", {caption(u"Oui"), entry(u"ToolTip", {u"t", {}, {}, {}, {}, {}})});
  edit(u"App\\c", [](Person& person) {
    person.clickLine(u"LstNomTrad", 1);
    person.type(u"tbTradCtrl", 2, u"x");
  });
  EXPECT_THAT(textsOfEntry(cell, 1), ElementsAre(u"Oui", u"", u"", u"", u"", u""));
  EXPECT_THAT(textsOfEntry(cell, 2), ElementsAre(u"t", u"", u"x", u"", u"", u""));
}

TEST_F(EditorWriteThrough, WithoutASelectedTranslationNothingIsWritten) {
  const CellRef cell = control(app, u"c", {});
  edit(u"App\\c", [](Person& person) { EXPECT_TRUE(person.type(u"tbTradCtrl", 1, u"x")); });
  EXPECT_THAT(entryNames(cell), IsEmpty());
}

TEST_F(EditorWriteThrough, ATextBeyondTheLanguageCountIsNotWritten) {
  Global_Util::setNbLangues(3);
  const CellRef cell = message(app, u"m", {u"a", u"b", u"c"});
  edit(u"App\\m", [](Person& person) {
    person.type(u"tbTradMessage", 3, u"x");
    EXPECT_FALSE(person.window.isModified());
  });
  EXPECT_THAT(texts(cell), ElementsAre(u"a", u"b", u"c"));
}

TEST_F(EditorWriteThrough, AnotherKindIsWrittenAndShownInARebuiltTree) {
  const CellRef cell = message(app, u"m", {u"a"});
  edit(u"App\\m", [](Person& person) {
    person.choose(u"OptTypFeuille", 2);
    EXPECT_EQ(person.selectedTag(), u"App\\m");
    EXPECT_EQ(person.tree().shown(2).image, 2);
    EXPECT_EQ(person.tree().fills, 2);
    EXPECT_TRUE(person.sees(u"FrControl"));
    EXPECT_FALSE(person.sees(u"FrMessage"));
  });
  EXPECT_EQ(cell->TypeFeuille(), 2);
}

TEST_F(EditorWriteThrough, AnotherKindOfATopLevelCellHidesIt) {
  edit(u"", [](Person& person) {
    person.clickTag(u"App");
    EXPECT_TRUE(person.sees(u"FrName"));
    person.choose(u"OptTypFeuille", 1);
    EXPECT_EQ(person.tree().selected(), 0);
    EXPECT_FALSE(person.sees(u"FrName") || person.sees(u"bAdd"));
  });
  EXPECT_EQ(app->TypeFeuille(), 1);
}

TEST_F(EditorWriteThrough, TheContextBoxIsWrittenAndThePictureFollows) {
  const CellRef button = control(app, u"c", {});
  const CellRef text = message(app, u"m", {u"a", {}, {}, {}, {}, {}});
  edit(u"App\\c", [&](Person& person) {
    person.check(u"chkContexte");
    EXPECT_TRUE(button->Contexte());
    EXPECT_EQ(person.tree().shown(2).image, 3);
    person.check(u"chkContexte");
    EXPECT_FALSE(button->Contexte());
    EXPECT_EQ(person.tree().shown(2).image, 2);
    person.clickTag(u"App\\m");
    person.check(u"chkContexte");
    EXPECT_TRUE(text->Contexte());
    EXPECT_EQ(person.tree().shown(3).image, 5);
    person.check(u"chkContexte");
    EXPECT_EQ(person.tree().shown(3).image, 4);
  });
}

TEST_F(EditorWriteThrough, TheContextBoxGivesAPlainCellAMessagesPicture) {
  app->AddNoeuds(u"Form");
  edit(u"App\\Form", [](Person& person) {
    person.check(u"chkContexte");
    EXPECT_EQ(person.tree().shown(2).image, 5);
    person.check(u"chkContexte");
    EXPECT_EQ(person.tree().shown(2).image, 4);
  });
}

TEST_F(EditorWriteThrough, TheContextBoxDoesNotShowTheCellAnew) {
  control(app, u"c", {});
  edit(u"App\\c", [](Person& person) {
    person.check(u"chkContexte");
    EXPECT_FALSE(person.sees(u"tbContexte"));
    EXPECT_EQ(person.text(u"tbNom"), u"c");
  });
}

TEST_F(EditorWriteThrough, AFailureOfTheModelEndsShowAfterWhatWasWritten) {
  const CellRef cell = message(app, u"m", {u"a", u"b"});
  bool wasOpen = true;
  EXPECT_EQ(failureOf([&] {
              edit(u"App\\m", [&](Person& person) {
                person.type(u"tbTradMessage", 1, u"x");
                person.type(u"tbTradMessage", 2, u"y");
                wasOpen = person.window.isShown();
              });
            }),
            FailureKind::InvalidIndex);
  EXPECT_FALSE(wasOpen);
  EXPECT_THAT(texts(cell), ElementsAre(u"a", u"x"));
}

TEST_F(EditorWriteThrough, ClosingSavesNothingAndAsksNothing) {
  app->AddNoeuds(u"Form");
  edit(u"App\\Form", [](Person& person) { person.type(u"tbAlias", u"x"); });
  EXPECT_EQ(messages.take(), "");
}

}  // namespace

}  // namespace kob::testing
