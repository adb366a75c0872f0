// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EditorTest.h"

namespace kob::testing {

namespace {

class EditorSearch : public EditorTest {
 protected:
  /// Opens the search dialog once for each script, and lets the person act in the editor afterwards.
  void search(std::initializer_list<Script> scripts, Script then = {}, std::int32_t mode = full) {
    for (const Script& script : scripts) {
      answer(DialogKind::Recherche, script);
    }
    edit(mode, u"", [&](Person& person) {
      for (std::size_t i = 0; i < scripts.size(); ++i) {
        EXPECT_TRUE(person.chooseMenu(u"m_Search"));
      }
      if (then) {
        then(person);
      }
    });
  }
  /// Searches for a text.
  static void find(Person& person, TextView text) {
    person.type(u"tbSearchString", text);
    person.press(u"bNewSearch");
  }
  static void findUntranslated(Person& person, std::int32_t line) {
    if (!person.isChecked(u"CkSearch", 1)) {
      person.check(u"CkSearch", 1);
    }
    person.chooseLine(u"CbLangueSearch", line);
    person.press(u"bNewSearch");
  }
  /// Searches for a text and clicks a hit.
  static Script choosing(TextView text, std::int32_t line) {
    return [text, line](Person& person) {
      find(person, text);
      EXPECT_TRUE(person.clickLine(u"List1", line));
    };
  }
};

TEST_F(EditorSearch, TheDialogHasTheDesignedCaptionsAndLanguages) {
  search({[](Person& person) {
    EXPECT_EQ(person.window.caption(), u"Recherche");
    EXPECT_EQ(person.caption(u"Frame1"), u"Recherche de chaine");
    EXPECT_EQ(person.caption(u"Frame2"), u"Non Traduit");
    EXPECT_EQ(person.caption(u"bNewSearch"), u"Nouvelle Recherche");
    EXPECT_THAT(person.the<ScriptedComboBox>(u"CbLangueSearch").shownLines,
                ElementsAre(u"English", u"Nederlands", u"Deutsh", u"Italiano", u"Español"));
  }});
}

TEST_F(EditorSearch, AtFirstATextIsSearchedAndEnglishChosen) {
  search({[](Person& person) {
    EXPECT_TRUE(person.isChecked(u"CkSearch", 0));
    EXPECT_FALSE(person.isChecked(u"CkSearch", 1));
    EXPECT_EQ(person.the<ScriptedComboBox>(u"CbLangueSearch").shownIndex, 0);
    EXPECT_THAT(person.lines(u"List1"), IsEmpty());
  }});
}

TEST_F(EditorSearch, ExactlyOneBoxIsChecked) {
  search({[](Person& person) {
    person.check(u"CkSearch", 0);
    EXPECT_FALSE(person.isChecked(u"CkSearch", 0));
    EXPECT_TRUE(person.isChecked(u"CkSearch", 1));
    person.check(u"CkSearch", 0);
    EXPECT_FALSE(person.isChecked(u"CkSearch", 1));
    person.check(u"CkSearch", 1);
    EXPECT_FALSE(person.isChecked(u"CkSearch", 0));
    person.check(u"CkSearch", 1);
    EXPECT_TRUE(person.isChecked(u"CkSearch", 0));
    EXPECT_FALSE(person.isChecked(u"CkSearch", 1));
  }});
}

TEST_F(EditorSearch, ATextIsFoundInMessagesAndControlsInTreeOrder) {
  control(app, u"control", {caption(u"Fermer la porte")});
  message(app, u"message", {u"LA PORTE", {}, {}, {}, {}, {}});
  message(app, u"other", {u"le port", {}, {}, {}, {}, {}});
  search({[](Person& person) {
    find(person, u"porte");
    EXPECT_THAT(person.lines(u"List1"), ElementsAre(u"control", u"message"));
    EXPECT_EQ(person.line(u"List1"), -1);
  }});
}

TEST_F(EditorSearch, AnEmptyTextSearchesNothingAndLeavesTheList) {
  message(app, u"m", {u"Oui", {}, {}, {}, {}, {}});
  search({[](Person& person) {
    find(person, u"oui");
    find(person, u"");
    EXPECT_THAT(person.lines(u"List1"), ElementsAre(u"m"));
  }});
}

TEST_F(EditorSearch, ACellIsListedOnceHoweverManyOfItsNamesMatch) {
  control(app, u"c", {caption(u"Oui"), entry(u"ToolTip", {u"oui", {}, {}, {}, {}, {}})});
  search({[](Person& person) {
    find(person, u"Oui");
    EXPECT_THAT(person.lines(u"List1"), ElementsAre(u"c"));
  }});
}

TEST_F(EditorSearch, TranslationsAreNotSearched) {
  message(app, u"m", {u"Oui", u"Yes", {}, {}, {}, {}});
  search({[](Person& person) {
    find(person, u"Yes");
    EXPECT_THAT(person.lines(u"List1"), IsEmpty());
  }});
}

TEST_F(EditorSearch, UntranslatedCellsOfTheChosenLanguageAreListed) {
  message(app, u"without", {u"Oui", u"Yes", u"Ja", {}, u"Si", u"Si"});
  message(app, u"with", {u"Oui", {}, {}, u"Ja", {}, {}});
  control(app, u"one of two", {caption(u"Oui"), entry(u"ToolTip", {u"a", u"b", u"c", u"d", u"e", u"f"})});
  search({[](Person& person) {
    findUntranslated(person, 2);
    EXPECT_THAT(person.lines(u"List1"), ElementsAre(u"without", u"one of two"));
  }});
}

TEST_F(EditorSearch, EachLineOfTheLanguagesIsTwoBelowItsNumber) {
  for (std::int32_t language = 2; language <= 6; ++language) {
    const CellRef cell = message(app, u"l" + decimal(language), {u"a", u"b", u"c", u"d", u"e", u"f"});
    cell->Traduction()->ChangeTraduction({}, language);
  }
  search({[](Person& person) {
    for (std::int32_t line = 0; line < 5; ++line) {
      findUntranslated(person, line);
      EXPECT_THAT(person.lines(u"List1"), ElementsAre(u"l" + decimal(line + 2)));
    }
  }});
}

TEST_F(EditorSearch, WithTheLanguageBoxCheckedATextIsNoMatter) {
  message(app, u"m", {u"Oui", u"Yes", u"Ja", u"Ja", u"Si", u"Si"});
  search({[](Person& person) {
    person.check(u"CkSearch", 1);
    find(person, u"oui");
    EXPECT_THAT(person.lines(u"List1"), IsEmpty());
  }});
}

TEST_F(EditorSearch, ANewSearchReplacesTheHits) {
  message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  message(app, u"b", {u"Non", {}, {}, {}, {}, {}});
  search({[](Person& person) {
    find(person, u"oui");
    find(person, u"non");
    EXPECT_THAT(person.lines(u"List1"), ElementsAre(u"b"));
    find(person, u"nothing");
    EXPECT_THAT(person.lines(u"List1"), IsEmpty());
  }});
}

TEST_F(EditorSearch, AClickedHitIsShownAndTheDialogHidden) {
  message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  message(app, u"b", {u"Oui", u"Yes", {}, {}, {}, {}});
  search({[](Person& person) {
           find(person, u"oui");
           person.clickLine(u"List1", 1);
           EXPECT_FALSE(person.window.isShown());
         }},
         [](Person& person) {
           EXPECT_EQ(person.selectedTag(), u"App\\b");
           EXPECT_EQ(person.text(u"tbTradMessage", 1), u"Yes");
         });
}

TEST_F(EditorSearch, AHitIsShownWithoutBeingCompleted) {
  const CellRef hit = message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  message(app, u"b", {u"Oui", u"Yes", {}, {}, {}, {}});
  search({choosing(u"Oui", 0)});
  EXPECT_EQ(texts(hit)[1], u"");
}

TEST_F(EditorSearch, HitsOfOneNameAreToldApartByTheirPlace) {
  message(app->AddNoeuds(u"A"), u"m", {u"Oui", u"first", {}, {}, {}, {}});
  message(app->AddNoeuds(u"B"), u"m", {u"Oui", u"second", {}, {}, {}, {}});
  search({[](Person& person) {
           find(person, u"oui");
           EXPECT_THAT(person.lines(u"List1"), ElementsAre(u"m", u"m"));
           person.clickLine(u"List1", 1);
         }},
         [](Person& person) { EXPECT_EQ(person.text(u"tbTradMessage", 1), u"second"); });
}

TEST_F(EditorSearch, TheHitsAreThereAgainWhenTheDialogIsReopened) {
  message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  search({choosing(u"oui", 0), [](Person& person) {
            EXPECT_THAT(person.lines(u"List1"), ElementsAre(u"a"));
            EXPECT_EQ(person.line(u"List1"), -1);
            EXPECT_EQ(person.text(u"tbSearchString"), u"oui");
          }});
}

TEST_F(EditorSearch, ReopenedItShowsTheHitsPresentNames) {
  const CellRef hit = message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  search({[](Person& person) { find(person, u"oui"); },
          [](Person& person) { EXPECT_THAT(person.lines(u"List1"), ElementsAre(u"a")); }},
         [&](Person& person) {
           hit->setnom(u"renamed");
           answer(DialogKind::Recherche,
                  [](Person& dialog) { EXPECT_THAT(dialog.lines(u"List1"), ElementsAre(u"renamed")); });
           person.chooseMenu(u"m_Search");
         });
}

TEST_F(EditorSearch, TheChosenLanguageIsKeptForTheNextOpening) {
  search({[](Person& person) { person.chooseLine(u"CbLangueSearch", 3); },
          [](Person& person) { EXPECT_EQ(person.the<ScriptedComboBox>(u"CbLangueSearch").listIndex(), 3); }});
}

TEST_F(EditorSearch, AnotherEditorStartsWithoutHits) {
  message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  search({[](Person& person) { find(person, u"oui"); }});
  search({[](Person& person) { EXPECT_THAT(person.lines(u"List1"), IsEmpty()); }});
}

TEST_F(EditorSearch, AClickBesideTheHitsShowsNothing) {
  message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  search({[](Person& person) {
           find(person, u"oui");
           person.clickLine(u"List1", -1);
           EXPECT_TRUE(person.window.isShown());
         }},
         [](Person& person) { EXPECT_EQ(person.tree().selected(), 0); });
}

TEST_F(EditorSearch, WhatIsTypedAfterAHitIsNotRecordedUntilTheTreeIsRebuilt) {
  const CellRef hit = message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  search({choosing(u"oui", 0)}, [&](Person& person) {
    person.type(u"tbNom", u"x");
    person.type(u"tbAlias", u"x");
    person.type(u"tbTradMessage", 1, u"x");
    person.choose(u"OptTypFeuille", 0);
    person.check(u"chkContexte");
    EXPECT_EQ(hit->nom(), u"a");
    EXPECT_EQ(hit->Alias(), u"");
    EXPECT_EQ(texts(hit)[1], u"");
    EXPECT_EQ(hit->TypeFeuille(), 1);
    EXPECT_FALSE(hit->Contexte());
    person.press(u"bAdd");
    person.type(u"tbNom", u"x");
    EXPECT_EQ(hit->nom(), u"x");
  });
}

TEST_F(EditorSearch, PositionsAreNotRecordedAfterAHitEither) {
  const CellRef hit = control(app, u"c", {caption(u"Oui")});
  hit->ChangeLeft(1.5, 1);
  search({choosing(u"oui", 0)}, [&](Person& person) {
    person.move(u"sldLeft", 0, 200);
    person.move(u"sldwidth", 0, 200);
    person.press(u"bl1", 0);
    person.press(u"bw1", 0);
    person.check(u"chkPosition");
    EXPECT_EQ(person.value(u"sldLeft", 0), 200);
  });
  EXPECT_EQ(hit->ColLeft()->Item(1).value(), 1.5);
  EXPECT_FALSE(hit->ColWidth()->Item(1).isDouble());
  EXPECT_EQ(hit->m_left(), 0);
}

TEST_F(EditorSearch, AClickOnANodeLeavesTheGuardOfAHitSet) {
  const CellRef other = message(app, u"b", {u"Non", {}, {}, {}, {}, {}});
  message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  search({choosing(u"oui", 0)}, [&](Person& person) {
    person.clickTag(u"App\\b");
    EXPECT_EQ(person.text(u"tbNom"), u"b");
    person.type(u"tbNom", u"x");
  });
  EXPECT_EQ(other->nom(), u"b");
}

TEST_F(EditorSearch, AListClickLeavesTheGuardOfAHitSet) {
  const CellRef hit = control(app, u"c", {caption(u"Oui"), caption(u"Non")});
  search({choosing(u"oui", 0)}, [](Person& person) {
    person.clickLine(u"LstNomTrad", 1);
    EXPECT_EQ(person.text(u"tbTradCtrl", 0), u"Non");
    person.type(u"tbTradCtrl", 1, u"x");
  });
  EXPECT_EQ(textsOfEntry(hit, 2)[1], u"");
}

TEST_F(EditorSearch, DeletingATranslationNameClearsTheGuardOfAHit) {
  const CellRef hit = control(app, u"c", {caption(u"Oui"), caption(u"Non")});
  messages.answer(true);
  search({choosing(u"oui", 0)}, [](Person& person) {
    person.press(u"bSupTrad");
    person.type(u"tbTradCtrl", 1, u"x");
  });
  messages.take();
  EXPECT_EQ(textsOfEntry(hit, 1)[1], u"x");
}

TEST_F(EditorSearch, AHitThatHasNoNodeShowsNothingAndClearsTheGuard) {
  const CellRef first = message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  const CellRef second = message(app, u"b", {u"Oui", {}, {}, {}, {}, {}});
  search({choosing(u"oui", 0)}, [&](Person& person) {
    second->setnom(u"renamed");
    answer(DialogKind::Recherche, [](Person& dialog) { dialog.clickLine(u"List1", 1); });
    person.chooseMenu(u"m_Search");
    EXPECT_EQ(person.selectedTag(), u"App\\a");
    person.type(u"tbNom", u"recorded");
  });
  EXPECT_EQ(first->nom(), u"recorded");
}

TEST_F(EditorSearch, ADeletedHitStaysInTheListAndIsNotFoundInTheTree) {
  message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  search({choosing(u"oui", 0)}, [&](Person& person) {
    messages.answer(true);
    person.press(u"bSupp");
    answer(DialogKind::Recherche, [](Person& dialog) {
      EXPECT_THAT(dialog.lines(u"List1"), ElementsAre(u"a"));
      dialog.clickLine(u"List1", 0);
      EXPECT_FALSE(dialog.window.isShown());
    });
    person.chooseMenu(u"m_Search");
    EXPECT_EQ(person.tree().selected(), 0);
  });
  messages.take();
}

TEST_F(EditorSearch, ItWorksInRestrictedModeToo) {
  message(app, u"a", {u"Oui", {}, {}, {}, {}, {}});
  search(
      {choosing(u"oui", 0)}, [](Person& person) { EXPECT_EQ(person.selectedTag(), u"App\\a"); }, restricted);
}

TEST_F(EditorSearch, AnEntryWithoutTheLanguageEndsShow) {
  message(app, u"a", {u"Oui"});
  EXPECT_EQ(failureOf([this] { search({[](Person& person) { findUntranslated(person, 4); }}); }),
            FailureKind::InvalidIndex);
  EXPECT_EQ(widgets.windows, 0);
}

}  // namespace

}  // namespace kob::testing
