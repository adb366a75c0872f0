// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Desk.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

namespace kob::qt::testing {
namespace {

struct EditorSearch : EditorOnScreen {
  EditorSearch() {
    message(app, u"Un", {u"Bonjour Max", u"Hello", u"", u"", u"", u""});
    const CellRef branch = app->AddNoeuds(u"Branche");
    message(branch, u"Un", {u"Bonjour Lea", u"", u"", u"Hallo", u"", u""});
  }
  void search(const Window& window, Script script) {
    answer(std::move(script));
    window.key(Qt::Key_F, Qt::ControlModifier);
  }
  static void find(const Window& search, const QString& text) {
    search.type("tbSearchString", text);
    search.press("bNewSearch");
  }
};

TEST_F(EditorSearch, HitsAreListedByTheirNames) {
  edit(u"", [this](const Window& window) {
    search(window, [](const Window& dialog) {
      EXPECT_EQ(dialog.widget().windowTitle(), QStringLiteral("Recherche[*]"));
      find(dialog, QStringLiteral("BONJOUR"));
      EXPECT_EQ(dialog.lines("List1"), (QStringList{QStringLiteral("Un"), QStringLiteral("Un")}));
    });
  });
}

TEST_F(EditorSearch, AClickShowsTheCellByItsPositionAndHidesTheSearch) {
  edit(u"", [this](const Window& window) {
    search(window, [](const Window& dialog) {
      find(dialog, QStringLiteral("bonjour"));
      dialog.clickLine("List1", 0);
      EXPECT_FALSE(dialog.widget().isVisible());
    });
    EXPECT_EQ(window.selectedNode(), QStringLiteral("App\\Branche\\Un"));
    EXPECT_EQ(window.text("tbTradMessage(3)"), QStringLiteral("Hallo"));
  });
}

TEST_F(EditorSearch, ReturnOnAHitIsAClickAndWalkingIsNot) {
  edit(u"", [this](const Window& window) {
    search(window, [](const Window& dialog) {
      find(dialog, QStringLiteral("bonjour"));
      EXPECT_EQ(dialog.lines("List1").size(), 2);
      dialog.the("List1").setFocus();
      dialog.key(Qt::Key_Down);
      dialog.key(Qt::Key_Down);
      EXPECT_TRUE(dialog.widget().isVisible());
      EXPECT_EQ(dialog.line("List1"), 1);
      dialog.key(Qt::Key_Return);
      EXPECT_FALSE(dialog.widget().isVisible());
    });
    EXPECT_EQ(window.selectedNode(), QStringLiteral("App\\Un"));
  });
}

TEST_F(EditorSearch, ReturnInTheTextSearches) {
  edit(u"", [this](const Window& window) {
    search(window, [](const Window& dialog) {
      dialog.type("tbSearchString", QStringLiteral("max"));
      dialog.key(Qt::Key_Return);
      EXPECT_EQ(dialog.lines("List1").size(), 1);
    });
  });
}

TEST_F(EditorSearch, AnEmptyTextSearchesNothing) {
  edit(u"", [this](const Window& window) {
    search(window, [](const Window& dialog) {
      dialog.press("bNewSearch");
      EXPECT_TRUE(dialog.lines("List1").isEmpty());
    });
  });
}

TEST_F(EditorSearch, UntranslatedTextsAreFoundInTheChosenLanguage) {
  edit(u"", [this](const Window& window) {
    search(window, [](const Window& dialog) {
      dialog.press("CkSearch(1)");
      EXPECT_FALSE(dialog.the<QCheckBox>("CkSearch(0)").isChecked());
      auto& languages = dialog.the<QComboBox>("CbLangueSearch");
      EXPECT_EQ(languages.currentText(), QStringLiteral("English"));
      languages.setFocus();
      dialog.key(Qt::Key_Down);
      dialog.key(Qt::Key_Down);
      EXPECT_EQ(languages.currentText(), QStringLiteral("Deutsh"));
      dialog.press("bNewSearch");
      EXPECT_EQ(dialog.lines("List1").size(), 1);
      dialog.clickLine("List1", 0);
    });
    EXPECT_EQ(window.selectedNode(), QStringLiteral("App\\Un"));
  });
}

TEST_F(EditorSearch, OneOfTheTwoBoxesIsAlwaysChecked) {
  edit(u"", [this](const Window& window) {
    search(window, [](const Window& dialog) {
      EXPECT_TRUE(dialog.the<QCheckBox>("CkSearch(0)").isChecked());
      dialog.press("CkSearch(0)");
      EXPECT_TRUE(dialog.the<QCheckBox>("CkSearch(1)").isChecked());
      dialog.press("CkSearch(1)");
      EXPECT_TRUE(dialog.the<QCheckBox>("CkSearch(0)").isChecked());
    });
  });
}

TEST_F(EditorSearch, TheHitsAreThereWhenItOpensAgain) {
  edit(u"", [this](const Window& window) {
    search(window, [](const Window& dialog) { find(dialog, QStringLiteral("max")); });
    search(window, [](const Window& dialog) {
      EXPECT_EQ(dialog.lines("List1").size(), 1);
      EXPECT_EQ(dialog.text("tbSearchString"), QStringLiteral("max"));
    });
  });
}

TEST_F(EditorSearch, AfterAHitTypingIsNotRecordedAndTheStatusLineSaysSo) {
  edit(u"", [this](const Window& window) {
    EXPECT_EQ(window.the<QLabel>("lbStatus").text(), QString());
    search(window, [](const Window& dialog) {
      find(dialog, QStringLiteral("max"));
      dialog.clickLine("List1", 0);
    });
    EXPECT_NE(window.the<QLabel>("lbStatus").text(), QString());
    window.type("tbNom", QStringLiteral("Deux"));
    EXPECT_EQ(window.text("tbNom"), QStringLiteral("Deux"));
  });
  EXPECT_NE(model.GetCell(u"App\\Un"), nullptr);
  EXPECT_EQ(model.GetCell(u"App\\Deux"), nullptr);
}

TEST_F(EditorSearch, EscapeLeavesTheSearch) {
  edit(u"App\\Un", [this](const Window& window) {
    search(window, [](const Window& dialog) {
      dialog.key(Qt::Key_Escape);
      EXPECT_FALSE(dialog.widget().isVisible());
    });
    EXPECT_TRUE(window.widget().isVisible());
    EXPECT_EQ(window.selectedNode(), QStringLiteral("App\\Un"));
  });
}

}  // namespace
}  // namespace kob::qt::testing
