// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EditorTest.h"

namespace kob::testing {

namespace {

class EditorTranslationNames : public EditorTest {
 protected:
  /// Opens the editor on the control and asks for a new translation name.
  void add(Script script, Script then) {
    answer(DialogKind::AddTrad, std::move(script));
    edit(u"App\\c", [&then](Person& person) {
      EXPECT_TRUE(person.press(u"bAddTrad"));
      then(person);
    });
  }
  void add(Script script) {
    add(std::move(script), [](Person&) {});
  }
  static Script naming(TextView name) {
    return [name](Person& person) {
      person.type(u"tbNomTrad", name);
      person.press(u"bOk");
      EXPECT_FALSE(person.window.isShown());
    };
  }

  CellRef cell = control(app, u"c", {caption(u"Oui", u"Yes")});
};

TEST_F(EditorTranslationNames, TheDialogHasTheDesignedCaptions) {
  add([](Person& person) {
    EXPECT_EQ(person.window.caption(), u"Ajout d'une traduction");
    EXPECT_EQ(person.caption(u"Label1"), u"Nom");
    EXPECT_EQ(person.caption(u"bCancel"), u"Annuler");
  });
}

TEST_F(EditorTranslationNames, ANewNameIsLastAndSelectedWithEmptyTexts) {
  add(naming(u"ToolTip"), [](Person& person) {
    EXPECT_THAT(person.lines(u"LstNomTrad"), ElementsAre(u"Caption", u"ToolTip"));
    EXPECT_EQ(person.line(u"LstNomTrad"), 1);
    EXPECT_THAT(person.texts(u"tbTradCtrl"), ElementsAre(u"", u"", u"", u"", u"", u""));
    person.type(u"tbTradCtrl", 0, u"Aide");
  });
  EXPECT_THAT(entryNames(cell), ElementsAre(u"Caption", u"ToolTip"));
  EXPECT_THAT(textsOfEntry(cell, 1), ElementsAre(u"Oui", u"Yes", u"", u"", u"", u""));
  EXPECT_THAT(textsOfEntry(cell, 2), ElementsAre(u"Aide", u"", u"", u"", u"", u""));
}

TEST_F(EditorTranslationNames, WithoutANameTheDialogStaysOpen) {
  add([](Person& person) {
    person.press(u"bOk");
    EXPECT_TRUE(person.window.isShown());
  });
  EXPECT_THAT(entryNames(cell), ElementsAre(u"Caption"));
}

TEST_F(EditorTranslationNames, CancellingAddsNothing) {
  add([](Person& person) {
    person.type(u"tbNomTrad", u"x");
    person.press(u"bCancel");
    EXPECT_FALSE(person.window.isShown());
  });
  EXPECT_THAT(entryNames(cell), ElementsAre(u"Caption"));
}

TEST_F(EditorTranslationNames, ClosingTheWindowAddsNothing) {
  add([](Person& person) { person.type(u"tbNomTrad", u"x"); });
  EXPECT_THAT(entryNames(cell), ElementsAre(u"Caption"));
}

TEST_F(EditorTranslationNames, ANameThatExistsIsRefused) {
  add(naming(u"Caption"), [](Person& person) { EXPECT_EQ(person.line(u"LstNomTrad"), 0); });
  EXPECT_EQ(messages.take(), "notice \"Cette Traduction existe déja\"\n");
  EXPECT_THAT(entryNames(cell), ElementsAre(u"Caption"));
}

TEST_F(EditorTranslationNames, ANameInOtherLettersIsAnotherName) {
  add(naming(u"CAPTION"));
  EXPECT_THAT(entryNames(cell), ElementsAre(u"Caption", u"CAPTION"));
}

TEST_F(EditorTranslationNames, TheDialogStartsAnewAfterARefusal) {
  answer(DialogKind::AddTrad, naming(u"Caption"));
  answer(DialogKind::AddTrad, [](Person& person) { EXPECT_EQ(person.text(u"tbNomTrad"), u""); });
  edit(u"App\\c", [](Person& person) {
    person.press(u"bAddTrad");
    person.press(u"bAddTrad");
  });
  messages.take();
}

TEST_F(EditorTranslationNames, TheLastNameCannotBeDeletedAndNothingIsAsked) {
  edit(u"App\\c", [](Person& person) { person.press(u"bSupTrad"); });
  EXPECT_EQ(messages.take(), "");
  EXPECT_THAT(entryNames(cell), ElementsAre(u"Caption"));
}

TEST_F(EditorTranslationNames, WithoutASelectedNameNothingIsAsked) {
  cell->ColTraduction()->Add(caption(u"Non"));
  edit(u"App\\c", [](Person& person) {
    person.clickLine(u"LstNomTrad", -1);
    person.press(u"bSupTrad");
  });
  EXPECT_EQ(messages.take(), "");
}

TEST_F(EditorTranslationNames, DeletingIsAskedFor) {
  cell->ColTraduction()->Add(entry(u"ToolTip", {u"t", {}, {}, {}, {}, {}}));
  messages.answer(false);
  edit(u"App\\c", [](Person& person) { person.press(u"bSupTrad"); });
  EXPECT_EQ(messages.take(), "question \"Voulez vous supprimer cette Traduction\" -> No\n");
  EXPECT_THAT(entryNames(cell), ElementsAre(u"Caption", u"ToolTip"));
}

TEST_F(EditorTranslationNames, TheSelectedNameIsDeletedAndTheCellShownAnew) {
  cell->ColTraduction()->Add(entry(u"ToolTip", {u"t", {}, {}, {}, {}, {}}));
  cell->ColTraduction()->Add(entry(u"Text", {u"x", {}, {}, {}, {}, {}}));
  messages.answer(true);
  edit(u"App\\c", [](Person& person) {
    person.clickLine(u"LstNomTrad", 1);
    person.press(u"bSupTrad");
    EXPECT_THAT(person.lines(u"LstNomTrad"), ElementsAre(u"Caption", u"Text"));
    EXPECT_EQ(person.line(u"LstNomTrad"), 0);
    EXPECT_EQ(person.text(u"tbTradCtrl", 0), u"Oui");
    person.type(u"tbTradCtrl", 2, u"Ja");
  });
  EXPECT_EQ(messages.take(), "question \"Voulez vous supprimer cette Traduction\" -> Yes\n");
  EXPECT_THAT(entryNames(cell), ElementsAre(u"Caption", u"Text"));
  EXPECT_EQ(textsOfEntry(cell, 1)[2], u"Ja");
}

TEST_F(EditorTranslationNames, AControlWithoutAListEndsShow) {
  EXPECT_EQ(failureOf([this] {
              edit(u"App\\c", [this](Person& person) {
                cell->setColTraduction(nullptr);
                person.press(u"bSupTrad");
              });
            }),
            FailureKind::ObjectNotSet);
}

}  // namespace

}  // namespace kob::testing
