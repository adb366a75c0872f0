// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EditorTest.h"
#include "tests/doubles/ScriptedService.h"

#include <kobtraduction/editor/ShowUnsaved.h>

#include <stdexcept>

namespace kob::testing {

namespace {

class EditorSaving : public EditorTest {
 protected:
  ScriptedService service;
  CellRef form = app->AddNoeuds(u"Form");
};

TEST_F(EditorSaving, SaveWritesToTheModelsFile) {
  model.setFichier(u"a.trad");
  edit(u"", [](Person& person) {
    person.chooseMenu(u"m_Save");
    EXPECT_THAT(person.window.saveFileDialog().proposals, IsEmpty());
  });
  EXPECT_EQ(service.takeCalls(), "save \"a.trad\" mode=1\n");
  EXPECT_EQ(model.Fichier(), u"a.trad");
}

TEST_F(EditorSaving, SaveWithoutAFileAsksForOne) {
  edit(u"", [](Person& person) {
    person.window.saveFileDialog().answers = {u"new.trad"};
    person.chooseMenu(u"m_Save");
    EXPECT_THAT(person.window.saveFileDialog().proposals, ElementsAre(u""));
  });
  EXPECT_EQ(service.takeCalls(), "save \"new.trad\" mode=1\n");
  EXPECT_EQ(model.Fichier(), u"new.trad");
}

TEST_F(EditorSaving, SaveAsProposesTheModelsFileAndTakesTheChosenOne) {
  model.setFichier(u"a.trad");
  edit(u"", [](Person& person) {
    person.window.saveFileDialog().answers = {u"b.trad"};
    person.chooseMenu(u"m_SaveAs");
    EXPECT_THAT(person.window.saveFileDialog().proposals, ElementsAre(u"a.trad"));
    EXPECT_EQ(person.window.caption(), u"Traduction - b.trad");
  });
  EXPECT_EQ(service.takeCalls(), "save \"b.trad\" mode=1\n");
  EXPECT_EQ(model.Fichier(), u"b.trad");
}

TEST_F(EditorSaving, ACancelledSaveAsSavesNothing) {
  model.setFichier(u"a.trad");
  edit(u"", [](Person& person) { person.chooseMenu(u"m_SaveAs"); });
  EXPECT_EQ(service.takeCalls(), "");
  EXPECT_EQ(model.Fichier(), u"a.trad");
}

TEST_F(EditorSaving, AFailedSaveAsTellsWhyAndTakesTheNameAllTheSame) {
  service.before = [] { throw std::runtime_error("full"); };
  edit(u"App\\Form", [this](Person& person) {
    person.type(u"tbAlias", u"x");
    person.window.saveFileDialog().answers = {u"b.trad"};
    person.chooseMenu(u"m_SaveAs");
    EXPECT_TRUE(person.window.isModified());
    EXPECT_EQ(form->Alias(), u"x");
  });
  EXPECT_THAT(messages.take(), ::testing::HasSubstr("Erreur de sauvegarde du modèle"));
  EXPECT_EQ(model.Fichier(), u"b.trad");
}

TEST_F(EditorSaving, TheTitleTellsOfChangesUntilTheyAreSaved) {
  model.setFichier(u"a.trad");
  edit(u"App\\Form", [](Person& person) {
    EXPECT_EQ(person.window.shownCaption, u"Traduction - a.trad");
    EXPECT_FALSE(person.window.isShownModified);
    person.type(u"tbAlias", u"x");
    EXPECT_TRUE(person.window.isShownModified);
    person.chooseMenu(u"m_Save");
    EXPECT_FALSE(person.window.isShownModified);
  });
}

TEST_F(EditorSaving, TheTitleGoesOnTellingWhenSavingFails) {
  model.setFichier(u"a.trad");
  service.before = [] { throw std::runtime_error("full"); };
  edit(u"App\\Form", [](Person& person) {
    person.type(u"tbAlias", u"x");
    person.chooseMenu(u"m_Save");
    EXPECT_TRUE(person.window.isModified());
  });
  messages.take();
}

/// What a person can change, each with the title unmarked before.
TEST_F(EditorSaving, EveryKindOfChangeMarksTheTitle) {
  model.setFichier(u"a.trad");
  const CellRef cell = control(form, u"c", {caption(u"Oui"), caption(u"Non")});
  cell->setm_left(1);
  const std::pair<const char*, Script> changes[] = {
      {"name", [](Person& person) { person.type(u"tbNom", u"d"); }},
      {"alias", [](Person& person) { person.type(u"tbAlias", u"d"); }},
      {"text", [](Person& person) { person.type(u"tbTradCtrl", 1, u"d"); }},
      {"context", [](Person& person) { person.check(u"chkContexte"); }},
      {"left", [](Person& person) { person.move(u"sldLeft", 0, 50); }},
      {"width", [](Person& person) { person.move(u"sldwidth", 0, 50); }},
      {"left reset", [](Person& person) { person.press(u"bl1", 0); }},
      {"width reset", [](Person& person) { person.press(u"bw1", 0); }},
      {"position", [](Person& person) { person.check(u"chkPosition"); }},
      {"branch", [](Person& person) { person.press(u"bAdd"); }},
      {"new name",
       [this](Person& person) {
         answer(DialogKind::AddTrad, [](Person& dialog) {
           dialog.type(u"tbNomTrad", u"New");
           dialog.press(u"bOk");
         });
         person.press(u"bAddTrad");
       }},
      {"deleted name", [](Person& person) { person.press(u"bSupTrad"); }},
      {"new cell",
       [this](Person& person) {
         answer(DialogKind::AddNoeud, [](Person& dialog) {
           dialog.type(u"tbNom", u"New");
           dialog.press(u"bOK");
         });
         person.press(u"bAdd");
       }},
      {"kind", [](Person& person) { person.choose(u"OptTypFeuille", 1); }},
      {"deleted cell", [](Person& person) { person.press(u"bSupp"); }},
  };
  for (const auto& [name, change] : changes) {
    messages.answer(true);
    edit(cell->GetCellPath(), [&, what = name, &act = change](Person& person) {
      EXPECT_FALSE(person.window.isModified()) << what;
      act(person);
      EXPECT_TRUE(person.window.isModified()) << what;
    });
  }
  messages.take();
}

TEST_F(EditorSaving, LookingAroundMarksNothing) {
  control(form, u"c", {caption(u"Oui"), caption(u"Non")});
  edit(u"App\\Form", [this](Person& person) {
    person.clickTag(u"App\\Form\\c");
    person.clickLine(u"LstNomTrad", 1);
    person.chooseMenu(u"m_Search");
    person.press(u"bAdd");
    person.press(u"bAddTrad");
    messages.answer(false);
    person.press(u"bSupp");
    messages.take();
  });
  edit(u"App\\Form", [](Person& person) {
    person.press(u"bAdd");
    EXPECT_FALSE(person.window.isModified());
  });
}

TEST_F(EditorSaving, TheStatusLineIsEmptyWhenTheEditorOpensOnAControl) {
  control(app, u"c", {caption(u"Oui")});
  edit(u"App\\c", [](Person& person) { EXPECT_EQ(person.caption(u"lbStatus"), u""); });
}

TEST_F(EditorSaving, TheStatusLineTellsWhileNothingIsRecorded) {
  message(form, u"m", {u"Oui", {}, {}, {}, {}, {}});
  answer(DialogKind::Recherche, [](Person& person) {
    person.type(u"tbSearchString", u"oui");
    person.press(u"bNewSearch");
    person.clickLine(u"List1", 0);
  });
  edit(u"", [](Person& person) {
    EXPECT_EQ(person.caption(u"lbStatus"), u"");
    person.clickTag(u"App\\Form");
    EXPECT_EQ(person.caption(u"lbStatus"), u"");
    person.chooseMenu(u"m_Search");
    EXPECT_NE(person.caption(u"lbStatus"), u"");
    person.clickTag(u"App\\Form");
    EXPECT_NE(person.caption(u"lbStatus"), u"");
    person.press(u"bAdd");
    EXPECT_EQ(person.caption(u"lbStatus"), u"");
  });
}

TEST_F(EditorSaving, AModelThatIsShownUnsavedBearsTheMarkUntilItIsSaved) {
  model.setFichier(u"a.trad");
  widgets.whenShown(DialogKind::Traduction, [](Person& person) {
    EXPECT_TRUE(person.window.isModified());
    EXPECT_EQ(person.selectedTag(), u"App\\Form");
    person.chooseMenu(u"m_Save");
    EXPECT_FALSE(person.window.isModified());
  });
  showUnsaved(model, full, u"App\\Form");
  EXPECT_EQ(service.takeCalls(), "save \"a.trad\" mode=1\n");
}

}  // namespace

}  // namespace kob::testing
