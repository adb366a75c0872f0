// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EditorTest.h"

namespace kob::testing {

namespace {

class EditorNodes : public EditorTest {
 protected:
  /// Opens the editor on "App\Form" and asks for a new cell.
  void add(Script script) {
    answer(DialogKind::AddNoeud, std::move(script));
    edit(u"App\\Form", [](Person& person) { EXPECT_TRUE(person.press(u"bAdd")); });
  }
  CellRef made(TextView name) { return form->GetCell(name); }

  CellRef form = app->AddNoeuds(u"Form");
};

TEST_F(EditorNodes, TheAddDialogHasTheDesignedCaptions) {
  add([](Person& person) {
    EXPECT_EQ(person.window.caption(), u"Ajout d'un noeud");
    EXPECT_EQ(person.caption(u"lbName"), u"Name");
    EXPECT_EQ(person.caption(u"Label2"), u"Alias");
    EXPECT_EQ(person.caption(u"OptTypFeuille", 0), u"Empty");
    EXPECT_EQ(person.caption(u"OptTypFeuille", 1), u"Message");
    EXPECT_EQ(person.caption(u"OptTypFeuille", 2), u"Controle");
    EXPECT_EQ(person.caption(u"chkContexte"), u"Contexte");
    EXPECT_EQ(person.caption(u"lb1"), u"Message");
    EXPECT_EQ(person.caption(u"lb2"), u"ToolTip");
    EXPECT_EQ(person.caption(u"bCancel"), u"Annuler");
  });
}

TEST_F(EditorNodes, TheAddDialogStartsWithEmptyAndItsFieldsHidden) {
  add([](Person& person) {
    EXPECT_EQ(person.chosen(u"OptTypFeuille"), 0);
    for (const TextView name : {u"chkContexte", u"lb1", u"tb1", u"lb2", u"tb2"}) {
      EXPECT_FALSE(person.sees(name)) << toUtf8(name);
    }
  });
}

TEST_F(EditorNodes, ChoosingMessageShowsOneText) {
  add([](Person& person) {
    person.choose(u"OptTypFeuille", 2);
    person.choose(u"OptTypFeuille", 1);
    EXPECT_TRUE(person.sees(u"chkContexte") && person.sees(u"lb1") && person.sees(u"tb1"));
    EXPECT_EQ(person.caption(u"lb1"), u"Message");
    EXPECT_FALSE(person.sees(u"lb2") || person.sees(u"tb2"));
  });
}

TEST_F(EditorNodes, ChoosingControlShowsTwoTexts) {
  add([](Person& person) {
    person.choose(u"OptTypFeuille", 2);
    EXPECT_EQ(person.caption(u"lb1"), u"Caption");
    for (const TextView name : {u"chkContexte", u"lb1", u"tb1", u"lb2", u"tb2"}) {
      EXPECT_TRUE(person.sees(name)) << toUtf8(name);
    }
  });
}

TEST_F(EditorNodes, ChoosingEmptyAgainHidesTheFields) {
  add([](Person& person) {
    person.choose(u"OptTypFeuille", 2);
    person.choose(u"OptTypFeuille", 0);
    for (const TextView name : {u"chkContexte", u"lb1", u"tb1", u"lb2", u"tb2"}) {
      EXPECT_FALSE(person.sees(name)) << toUtf8(name);
    }
  });
}

TEST_F(EditorNodes, WithoutANameTheAddDialogStaysOpen) {
  add([](Person& person) {
    person.press(u"bOK");
    EXPECT_TRUE(person.window.isShown());
  });
  EXPECT_THAT(names(form), IsEmpty());
}

TEST_F(EditorNodes, AnEmptyCellIsALeafWithoutTexts) {
  add([](Person& person) {
    person.type(u"tbNom", u"new");
    person.type(u"tbAlias", u"alias");
    person.press(u"bOK");
    EXPECT_FALSE(person.window.isShown());
  });
  ASSERT_NE(made(u"new"), nullptr);
  EXPECT_EQ(made(u"new")->TypeCell(), 2);
  EXPECT_EQ(made(u"new")->TypeFeuille(), 0);
  EXPECT_EQ(made(u"new")->Alias(), u"alias");
  EXPECT_FALSE(made(u"new")->Contexte());
  EXPECT_EQ(made(u"new")->parentcell(), form);
}

TEST_F(EditorNodes, AnEmptyCellIgnoresWhatWasEnteredForOthers) {
  add([](Person& person) {
    person.type(u"tbNom", u"new");
    person.choose(u"OptTypFeuille", 1);
    person.check(u"chkContexte");
    person.type(u"tb1", u"text");
    person.choose(u"OptTypFeuille", 0);
    person.press(u"bOK");
  });
  EXPECT_FALSE(made(u"new")->Contexte());
  EXPECT_EQ(made(u"new")->Traduction(), nullptr);
}

TEST_F(EditorNodes, AMessageGetsItsReferenceText) {
  add([](Person& person) {
    person.type(u"tbNom", u"new");
    person.choose(u"OptTypFeuille", 1);
    person.type(u"tb1", u"Bonjour");
    person.press(u"bOK");
  });
  EXPECT_EQ(made(u"new")->TypeFeuille(), 1);
  EXPECT_EQ(made(u"new")->TypeCell(), 2);
  EXPECT_THAT(texts(made(u"new")), ElementsAre(u"Bonjour", u"", u"", u"", u"", u""));
  EXPECT_EQ(made(u"new")->Alias(), u"new");
}

TEST_F(EditorNodes, AMessageMayBeEmptyAndAContext) {
  add([](Person& person) {
    person.type(u"tbNom", u"new");
    person.choose(u"OptTypFeuille", 1);
    person.check(u"chkContexte");
    person.press(u"bOK");
  });
  EXPECT_TRUE(made(u"new")->Contexte());
  EXPECT_THAT(texts(made(u"new")), ElementsAre(u"", u"", u"", u"", u"", u""));
}

TEST_F(EditorNodes, AControlGetsCaptionBeforeToolTip) {
  add([](Person& person) {
    person.type(u"tbNom", u"new");
    person.choose(u"OptTypFeuille", 2);
    person.type(u"tb2", u"Aide");
    person.type(u"tb1", u"Oui");
    person.check(u"chkContexte");
    person.press(u"bOK");
  });
  const CellRef cell = made(u"new");
  EXPECT_EQ(cell->TypeFeuille(), 2);
  EXPECT_TRUE(cell->Contexte());
  EXPECT_THAT(entryNames(cell), ElementsAre(u"Caption", u"ToolTip"));
  EXPECT_THAT(textsOfEntry(cell, 1), ElementsAre(u"Oui", u"", u"", u"", u"", u""));
  EXPECT_THAT(textsOfEntry(cell, 2), ElementsAre(u"Aide", u"", u"", u"", u"", u""));
}

TEST_F(EditorNodes, AControlWithBothTextsEmptyHasNoTranslationNames) {
  add([](Person& person) {
    person.type(u"tbNom", u"new");
    person.choose(u"OptTypFeuille", 2);
    person.press(u"bOK");
  });
  EXPECT_EQ(made(u"new")->TypeFeuille(), 2);
  EXPECT_THAT(entryNames(made(u"new")), IsEmpty());
}

TEST_F(EditorNodes, AControlWithOnlyAToolTipHasOnlyThat) {
  add([](Person& person) {
    person.type(u"tbNom", u"new");
    person.choose(u"OptTypFeuille", 2);
    person.type(u"tb2", u"Aide");
    person.press(u"bOK");
  });
  EXPECT_THAT(entryNames(made(u"new")), ElementsAre(u"ToolTip"));
}

TEST_F(EditorNodes, TheTreeIsRebuiltWithTheSameCellShown) {
  answer(DialogKind::AddNoeud, [](Person& person) {
    person.type(u"tbNom", u"new");
    person.press(u"bOK");
  });
  edit(u"App\\Form", [](Person& person) {
    person.press(u"bAdd");
    EXPECT_EQ(person.tree().count(), 3);
    EXPECT_EQ(person.selectedTag(), u"App\\Form");
    EXPECT_EQ(person.text(u"tbNom"), u"Form");
  });
}

TEST_F(EditorNodes, CancellingAddsNothing) {
  add([](Person& person) {
    person.type(u"tbNom", u"new");
    person.press(u"bCancel");
    EXPECT_FALSE(person.window.isShown());
  });
  EXPECT_THAT(names(form), IsEmpty());
}

TEST_F(EditorNodes, ClosingTheAddDialogsWindowAddsNothing) {
  add([](Person& person) { person.type(u"tbNom", u"new"); });
  EXPECT_THAT(names(form), IsEmpty());
}

TEST_F(EditorNodes, AskingMakesALeafABranchAlsoWhenCancelled) {
  form->setTypeCell(2);
  add([](Person& person) { person.press(u"bCancel"); });
  EXPECT_EQ(form->TypeCell(), 1);
  EXPECT_THAT(names(form), IsEmpty());
}

TEST_F(EditorNodes, CancellingRebuildsTheTreeToo) {
  edit(u"App\\Form", [](Person& person) {
    person.type(u"tbNom", u"renamed");
    person.press(u"bAdd");
    EXPECT_EQ(person.selectedTag(), u"App\\renamed");
  });
}

TEST_F(EditorNodes, ANameThatExistsIsRefusedInAnyLetters) {
  message(form, u"twin", {u"a"});
  add([](Person& person) {
    person.type(u"tbNom", u"TWIN");
    person.press(u"bOK");
  });
  EXPECT_EQ(messages.take(), "notice \"Ce noeud existe déja\"\n");
  EXPECT_THAT(names(form), ElementsAre(u"twin"));
}

TEST_F(EditorNodes, TheAddDialogStartsAnewEachTime) {
  answer(DialogKind::AddNoeud, [](Person& person) {
    person.type(u"tbNom", u"one");
    person.choose(u"OptTypFeuille", 2);
    person.press(u"bOK");
  });
  answer(DialogKind::AddNoeud, [](Person& person) {
    EXPECT_EQ(person.text(u"tbNom"), u"");
    EXPECT_EQ(person.chosen(u"OptTypFeuille"), 0);
  });
  edit(u"App\\Form", [this](Person& person) {
    person.press(u"bAdd");
    person.press(u"bAdd");
    EXPECT_EQ(widgets.windows, 2);
  });
  EXPECT_THAT(names(form), ElementsAre(u"one"));
}

TEST_F(EditorNodes, DeletingIsAskedFor) {
  messages.answer(false);
  edit(u"App\\Form", [](Person& person) {
    person.press(u"bSupp");
    EXPECT_EQ(person.tree().fills, 1);
  });
  EXPECT_EQ(messages.take(), "question \"Voulez Supprimer ce noeuds ainsi que ses fils?\" -> No\n");
  EXPECT_THAT(names(app), ElementsAre(u"Form"));
}

TEST_F(EditorNodes, ADeletedCellGoesWithItsChildren) {
  message(form, u"m", {u"a"});
  messages.answer(true);
  edit(u"App\\Form", [](Person& person) {
    person.press(u"bSupp");
    EXPECT_EQ(person.tree().count(), 1);
    EXPECT_EQ(person.tree().selected(), 0);
    EXPECT_FALSE(person.sees(u"FrName") || person.sees(u"bSupp"));
  });
  EXPECT_EQ(messages.take(), "question \"Voulez Supprimer ce noeuds ainsi que ses fils?\" -> Yes\n");
  EXPECT_THAT(names(app), IsEmpty());
}

TEST_F(EditorNodes, TheShownCellIsDeletedAndNotItsNamesake) {
  const CellRef first = message(app, u"twin", {u"a"});
  message(app, u"twin", {u"b"});
  messages.answer(true);
  edit(u"App\\twin", [](Person& person) { person.press(u"bSupp"); });
  messages.take();
  ASSERT_THAT(names(app), ElementsAre(u"Form", u"twin"));
  EXPECT_NE(app->ColCell()->Item(2), first);
}

TEST_F(EditorNodes, ACellThatItsParentDoesNotHoldIsNotDeletedAndTheTreeIsRebuilt) {
  messages.answer(true);
  edit(u"App\\Form", [this](Person& person) {
    form->setparentcell(model.Racine());
    person.press(u"bSupp");
    EXPECT_EQ(person.tree().fills, 2);
    EXPECT_FALSE(person.window.isModified());
  });
  messages.take();
  EXPECT_THAT(names(app), ElementsAre(u"Form"));
}

TEST_F(EditorNodes, DeletingACellWithoutAParentEndsShow) {
  model.Racine()->ColCell()->Add(named(u""));
  messages.answer(true);
  EXPECT_EQ(failureOf([this] {
              edit(u"", [](Person& person) {
                // A top-level node without a name leads to the root.
                person.clickNode(3);
                person.press(u"bSupp");
              });
            }),
            FailureKind::ObjectNotSet);
  messages.take();
}

}  // namespace

}  // namespace kob::testing
