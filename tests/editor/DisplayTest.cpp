// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EditorTest.h"

namespace kob::testing {

namespace {

using EditorDisplay = EditorTest;

TEST_F(EditorDisplay, APlainCellShowsItsNameAndNoTexts) {
  app->AddNoeuds(u"Form", nullptr, u"The form");
  edit(u"App\\Form", [](Person& person) {
    EXPECT_EQ(person.text(u"tbNom"), u"Form");
    EXPECT_EQ(person.text(u"tbAlias"), u"The form");
    EXPECT_EQ(person.chosen(u"OptTypFeuille"), 0);
    EXPECT_TRUE(person.sees(u"FrName"));
    EXPECT_FALSE(person.sees(u"FrMessage") || person.sees(u"FrControl"));
    EXPECT_TRUE(person.sees(u"bAdd") && person.sees(u"bSupp"));
  });
}

TEST_F(EditorDisplay, AMessageShowsItsTexts) {
  message(app, u"m", {u"a", u"b", u"c", u"d", u"e", u"f"});
  edit(u"App\\m", [](Person& person) {
    EXPECT_EQ(person.chosen(u"OptTypFeuille"), 1);
    EXPECT_TRUE(person.sees(u"FrName") && person.sees(u"FrMessage"));
    EXPECT_FALSE(person.sees(u"FrControl"));
    EXPECT_THAT(person.texts(u"tbTradMessage"), ElementsAre(u"a", u"b", u"c", u"d", u"e", u"f"));
  });
}

TEST_F(EditorDisplay, TextsBeyondTheSixthAreNotShownAndStay) {
  const CellRef cell = message(app, u"m", {u"a", u"b", u"c", u"d", u"e", u"f", u"g"});
  edit(u"App\\m", [](Person& person) {
    EXPECT_THAT(person.texts(u"tbTradMessage"), ElementsAre(u"a", u"b", u"c", u"d", u"e", u"f"));
  });
  EXPECT_EQ(texts(cell)[6], u"g");
}

TEST_F(EditorDisplay, AControlsTextsBeyondTheSixthAreNotShown) {
  control(app, u"c", {entry(u"Caption", {u"a", u"b", u"c", u"d", u"e", u"f", u"g"})});
  edit(u"App\\c", [](Person& person) {
    EXPECT_THAT(person.texts(u"tbTradCtrl"), ElementsAre(u"a", u"b", u"c", u"d", u"e", u"f"));
  });
}

TEST_F(EditorDisplay, TheBoxesAreEmptiedBeforeAnotherCellIsShown) {
  message(app, u"all", {u"a", u"b", u"c", u"d", u"e", u"f"});
  message(app, u"one", {u"x", {}, {}, {}, {}, {}});
  edit(u"App\\all", [](Person& person) {
    person.clickTag(u"App\\one");
    EXPECT_THAT(person.texts(u"tbTradMessage"), ElementsAre(u"x", u"", u"", u"", u"", u""));
  });
}

TEST_F(EditorDisplay, AShortMessageLeavesTheOtherBoxesEmpty) {
  message(app, u"one", {u"x"});
  edit(u"App\\one", [](Person& person) {
    EXPECT_THAT(person.texts(u"tbTradMessage"), ElementsAre(u"x", u"", u"", u"", u"", u""));
  });
}

TEST_F(EditorDisplay, AControlShowsItsTranslationNamesWithTheFirstSelected) {
  control(app, u"c", {caption(u"Oui", u"Yes"), entry(u"ToolTip", {u"t", {}, {}, {}, {}, {}})});
  edit(u"App\\c", [](Person& person) {
    EXPECT_EQ(person.chosen(u"OptTypFeuille"), 2);
    EXPECT_TRUE(person.sees(u"FrName") && person.sees(u"FrControl"));
    EXPECT_FALSE(person.sees(u"FrMessage"));
    EXPECT_THAT(person.lines(u"LstNomTrad"), ElementsAre(u"Caption", u"ToolTip"));
    EXPECT_EQ(person.line(u"LstNomTrad"), 0);
    EXPECT_THAT(person.texts(u"tbTradCtrl"), ElementsAre(u"Oui", u"Yes", u"", u"", u"", u""));
  });
}

TEST_F(EditorDisplay, AControlWithoutTranslationNamesShowsAnEmptyUnselectedList) {
  control(app, u"full", {caption(u"Oui")});
  control(app, u"none", {});
  edit(u"App\\full", [](Person& person) {
    person.clickTag(u"App\\none");
    EXPECT_THAT(person.lines(u"LstNomTrad"), IsEmpty());
    EXPECT_EQ(person.line(u"LstNomTrad"), -1);
    EXPECT_THAT(person.texts(u"tbTradCtrl"), ElementsAre(u"", u"", u"", u"", u"", u""));
  });
}

TEST_F(EditorDisplay, AClickOnATranslationNameShowsItsTexts) {
  control(app, u"c", {caption(u"Oui", u"Yes"), entry(u"ToolTip", {u"t", u"u", u"v", u"w", u"x", u"y"})});
  edit(u"App\\c", [](Person& person) {
    person.clickLine(u"LstNomTrad", 1);
    EXPECT_THAT(person.texts(u"tbTradCtrl"), ElementsAre(u"t", u"u", u"v", u"w", u"x", u"y"));
  });
}

TEST_F(EditorDisplay, AShorterEntryLeavesTheOtherBoxesAsTheyWere) {
  control(app, u"c", {caption(u"Oui", u"Yes"), entry(u"ToolTip", {u"t"})});
  edit(u"App\\c", [](Person& person) {
    person.clickLine(u"LstNomTrad", 1);
    EXPECT_THAT(person.texts(u"tbTradCtrl"), ElementsAre(u"t", u"Yes", u"", u"", u"", u""));
  });
}

TEST_F(EditorDisplay, AClickBesideTheLinesEmptiesAllBoxesButTheFirst) {
  control(app, u"c", {entry(u"Caption", {u"a", u"b", u"c", u"d", u"e", u"f"})});
  edit(u"App\\c", [](Person& person) {
    EXPECT_TRUE(person.clickLine(u"LstNomTrad", -1));
    EXPECT_THAT(person.texts(u"tbTradCtrl"), ElementsAre(u"a", u"", u"", u"", u"", u""));
  });
}

TEST_F(EditorDisplay, AClickBesideTheLinesChangesNoText) {
  const CellRef cell = control(app, u"c", {entry(u"Caption", {u"a", u"b", u"c", u"d", u"e", u"f"})});
  edit(u"App\\c", [](Person& person) {
    person.clickLine(u"LstNomTrad", -1);
    person.type(u"tbTradCtrl", 0, u"x");
  });
  EXPECT_THAT(textsOfEntry(cell, 1), ElementsAre(u"a", u"b", u"c", u"d", u"e", u"f"));
}

TEST_F(EditorDisplay, AContextShowsItsParentsNameAndItsOwnBesideIt) {
  const CellRef button = control(app, u"button", {caption(u"Oui")});
  control(button, u"help", {caption(u"Aide")})->setContexte(true);
  edit(u"App\\button\\help", [](Person& person) {
    EXPECT_TRUE(person.sees(u"lContexte") && person.sees(u"tbContexte"));
    EXPECT_EQ(person.text(u"tbNom"), u"button");
    EXPECT_EQ(person.text(u"tbContexte"), u"help");
    EXPECT_TRUE(person.isChecked(u"chkContexte"));
  });
}

TEST_F(EditorDisplay, WithoutAContextTheContextFieldIsHidden) {
  const CellRef button = control(app, u"button", {caption(u"Oui")});
  control(button, u"help", {caption(u"Aide")})->setContexte(true);
  edit(u"App\\button\\help", [](Person& person) {
    person.clickTag(u"App\\button");
    EXPECT_FALSE(person.sees(u"lContexte") || person.sees(u"tbContexte"));
    EXPECT_EQ(person.text(u"tbNom"), u"button");
    EXPECT_FALSE(person.isChecked(u"chkContexte"));
  });
}

TEST_F(EditorDisplay, ShowingACellWritesNothingIntoIt) {
  const CellRef button = control(app, u"button", {caption(u"Oui", u"Yes")});
  const CellRef help = control(button, u"help", {caption(u"Aide", u"Help")});
  help->setContexte(true);
  edit(u"App\\button\\help", [](Person& person) {
    person.clickTag(u"App\\button");
    person.clickTag(u"App\\button\\help");
  });
  EXPECT_EQ(help->nom(), u"help");
  EXPECT_EQ(button->nom(), u"button");
  EXPECT_TRUE(help->Contexte());
  EXPECT_FALSE(button->Contexte());
  EXPECT_THAT(textsOfEntry(help, 1), ElementsAre(u"Aide", u"Help", u"", u"", u"", u""));
  EXPECT_THAT(textsOfEntry(button, 1), ElementsAre(u"Oui", u"Yes", u"", u"", u"", u""));
}

TEST_F(EditorDisplay, ATagThatLeadsNowhereEmptiesTheNamesAndLeavesTheRest) {
  const CellRef button = control(app, u"button", {caption(u"Oui", u"Yes")});
  edit(u"App\\button", [](Person& person) {
    person.type(u"tbNom", u"renamed");
    person.clickTag(u"App\\button");
    EXPECT_EQ(person.text(u"tbNom"), u"");
    EXPECT_EQ(person.text(u"tbAlias"), u"");
    EXPECT_TRUE(person.sees(u"FrControl") && person.sees(u"bSupp"));
    EXPECT_THAT(person.lines(u"LstNomTrad"), ElementsAre(u"Caption"));
    EXPECT_THAT(person.texts(u"tbTradCtrl"), ElementsAre(u"Oui", u"Yes", u"", u"", u"", u""));
  });
  EXPECT_EQ(button->nom(), u"renamed");
}

TEST_F(EditorDisplay, WhileNoCellIsShownListClicksAndEditsDoNothing) {
  const CellRef button = control(app, u"button", {caption(u"Oui", u"Yes")});
  edit(u"App\\button", [](Person& person) {
    person.type(u"tbNom", u"renamed");
    person.clickTag(u"App\\button");
    EXPECT_TRUE(person.clickLine(u"LstNomTrad", 0));
    EXPECT_TRUE(person.type(u"tbTradCtrl", 1, u"x"));
    EXPECT_TRUE(person.type(u"tbNom", u"y"));
    EXPECT_TRUE(person.type(u"tbAlias", u"y"));
    EXPECT_TRUE(person.choose(u"OptTypFeuille", 0));
    EXPECT_TRUE(person.check(u"chkContexte"));
    EXPECT_TRUE(person.check(u"chkPosition"));
    EXPECT_TRUE(person.press(u"bAdd"));
    EXPECT_TRUE(person.press(u"bSupp"));
    EXPECT_TRUE(person.press(u"bAddTrad"));
    EXPECT_TRUE(person.press(u"bSupTrad"));
    EXPECT_TRUE(person.window.isShown());
  });
  EXPECT_THAT(widgets.shown, ElementsAre(DialogKind::Traduction));
  EXPECT_EQ(button->nom(), u"renamed");
  EXPECT_EQ(button->TypeFeuille(), 2);
  EXPECT_THAT(textsOfEntry(button, 1), ElementsAre(u"Oui", u"Yes", u"", u"", u"", u""));
}

TEST_F(EditorDisplay, OfTwoCellsOfOneNameTheFirstIsShownForBothNodes) {
  message(app, u"twin", {u"first", {}, {}, {}, {}, {}});
  message(app, u"TWIN", {u"second", {}, {}, {}, {}, {}});
  edit(u"", [](Person& person) {
    person.clickNode(3);
    EXPECT_EQ(person.text(u"tbTradMessage", 0), u"first");
  });
}

TEST_F(EditorDisplay, ANodeWithAnEmptyNameAtTheTopShowsTheRoot) {
  model.Racine()->ColCell()->Add(named(u""));
  edit(u"", [](Person& person) {
    person.clickNode(2);
    EXPECT_EQ(person.text(u"tbNom"), u"RACINE");
  });
}

TEST_F(EditorDisplay, AContextWithoutAParentEndsShow) {
  const CellRef orphan = model.Racine()->AddNoeuds(u"orphan");
  orphan->setContexte(true);
  orphan->setparentcell(nullptr);
  EXPECT_EQ(failureOf([this] { edit(u"", [](Person& person) { person.clickTag(u"orphan"); }); }),
            FailureKind::ObjectNotSet);
}

TEST_F(EditorDisplay, AMessageWithoutAnEntryEndsShow) {
  message(app, u"m", {u"a"})->setTraduction(nullptr);
  EXPECT_EQ(failureOf([this] { model.Show(full, u"App\\m"); }), FailureKind::ObjectNotSet);
}

}  // namespace

}  // namespace kob::testing
