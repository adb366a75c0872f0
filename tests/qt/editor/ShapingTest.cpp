// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Desk.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

namespace kob::qt::testing {
namespace {

struct EditorShaping : EditorOnScreen {
  /// Presses the button, and acts in the window that it opens.
  void inDialog(const Window& window, const char* button, Script script) {
    answer(std::move(script));
    window.press(button);
  }
  static void say(const Window& box, QMessageBox::StandardButton answer, const QString& text) {
    auto* const question = qobject_cast<QMessageBox*>(&box.widget());
    ASSERT_NE(question, nullptr);
    EXPECT_EQ(question->text(), text);
    if (answer == QMessageBox::NoButton) {
      QTest::keyClick(question, Qt::Key_Escape);
    } else {
      QTest::mouseClick(question->button(answer), Qt::LeftButton, {});
    }
  }

  CellRef form = app->AddNoeuds(u"Form");
};

TEST_F(EditorShaping, ANewControlHasItsTextsAndIsInTheTree) {
  edit(u"App\\Form", [this](const Window& window) {
    inDialog(window, "bAdd", [](const Window& dialog) {
      EXPECT_EQ(dialog.widget().windowTitle(), QStringLiteral("Ajout d'un noeud[*]"));
      dialog.type("tbNom", QStringLiteral("Ok"));
      dialog.type("tbAlias", QStringLiteral("A"));
      dialog.press("OptTypFeuille(2)");
      dialog.type("tb1", QStringLiteral("Bien\nsûr"));
      dialog.type("tb2", QStringLiteral("Bulle"));
      dialog.press("bOK");
      EXPECT_FALSE(dialog.widget().isVisible());
    });
    EXPECT_TRUE(window.node(QStringLiteral("App\\Form\\Ok")).isValid());
  });
  const CellRef cell = model.GetCell(u"App\\Form\\Ok");
  ASSERT_NE(cell, nullptr);
  EXPECT_EQ(cell->Alias(), u"A");
  EXPECT_EQ(cell->TypeFeuille(), 2);
  EXPECT_EQ(cell->ColTraduction()->Item(1)->ColTraduction()->Item(1), u"Bien\nsûr");
  EXPECT_EQ(cell->ColTraduction()->Item(2)->ColTraduction()->Item(1), u"Bulle");
}

TEST_F(EditorShaping, ANewMessageHasItsTextAndContext) {
  edit(u"App\\Form", [this](const Window& window) {
    inDialog(window, "bAdd", [](const Window& dialog) {
      dialog.type("tbNom", QStringLiteral("M"));
      dialog.press("OptTypFeuille(1)");
      dialog.press("chkContexte");
      dialog.type("tb1", QStringLiteral("Oui"));
      dialog.press("bOK");
    });
  });
  const CellRef cell = model.GetCell(u"App\\Form\\M");
  ASSERT_NE(cell, nullptr);
  EXPECT_EQ(cell->TypeFeuille(), 1);
  EXPECT_TRUE(cell->Contexte());
  EXPECT_EQ(cell->Traduction()->ColTraduction()->Item(1), u"Oui");
}

TEST_F(EditorShaping, TheDialogShowsWhatTheKindNeeds) {
  edit(u"App\\Form", [this](const Window& window) {
    inDialog(window, "bAdd", [](const Window& dialog) {
      EXPECT_FALSE(dialog.sees("tb1"));
      EXPECT_FALSE(dialog.sees("chkContexte"));
      dialog.press("OptTypFeuille(1)");
      EXPECT_TRUE(dialog.sees("tb1"));
      EXPECT_FALSE(dialog.sees("tb2"));
      EXPECT_EQ(dialog.the<QLabel>("lb1").text(), QStringLiteral("Message"));
      dialog.press("OptTypFeuille(2)");
      EXPECT_TRUE(dialog.sees("tb2"));
      EXPECT_EQ(dialog.the<QLabel>("lb1").text(), QStringLiteral("Caption"));
      dialog.press("OptTypFeuille(0)");
      EXPECT_FALSE(dialog.sees("tb1"));
      EXPECT_FALSE(dialog.sees("tb2"));
    });
  });
}

TEST_F(EditorShaping, TheArrowKeysChooseTheKind) {
  edit(u"App\\Form", [this](const Window& window) {
    inDialog(window, "bAdd", [](const Window& dialog) {
      dialog.the("OptTypFeuille(0)").setFocus();
      dialog.key(Qt::Key_Right);
      EXPECT_TRUE(dialog.sees("tb1"));
    });
  });
}

TEST_F(EditorShaping, ReturnInTheNameIsOK) {
  edit(u"App\\Form", [this](const Window& window) {
    inDialog(window, "bAdd", [](const Window& dialog) {
      dialog.type("tbNom", QStringLiteral("N"));
      dialog.key(Qt::Key_Return);
      EXPECT_FALSE(dialog.widget().isVisible());
    });
  });
  EXPECT_NE(model.GetCell(u"App\\Form\\N"), nullptr);
}

TEST_F(EditorShaping, WithoutANameTheDialogStays) {
  edit(u"App\\Form", [this](const Window& window) {
    inDialog(window, "bAdd", [](const Window& dialog) {
      dialog.press("bOK");
      EXPECT_TRUE(dialog.widget().isVisible());
    });
  });
  EXPECT_TRUE(names(form).empty());
}

TEST_F(EditorShaping, AnnulerAddsNothingButALeafIsABranchNow) {
  const CellRef leaf = control(form, u"Ok", {});
  leaf->setTypeCell(2);
  edit(u"App\\Form\\Ok", [this](const Window& window) {
    inDialog(window, "bAdd", [](const Window& dialog) {
      dialog.type("tbNom", QStringLiteral("N"));
      dialog.press("bCancel");
    });
  });
  EXPECT_EQ(leaf->TypeCell(), 1);
  EXPECT_EQ(model.GetCell(u"App\\Form\\Ok\\N"), nullptr);
}

TEST_F(EditorShaping, EscapeIsAnnuler) {
  edit(u"App\\Form", [this](const Window& window) {
    inDialog(window, "bAdd", [](const Window& dialog) {
      dialog.type("tbNom", QStringLiteral("N"));
      dialog.key(Qt::Key_Escape);
      EXPECT_FALSE(dialog.widget().isVisible());
    });
  });
  EXPECT_TRUE(names(form).empty());
}

TEST_F(EditorShaping, ANameThatExistsIsRefused) {
  edit(u"App", [this](const Window& window) {
    window.clickNode(QStringLiteral("App"));
    answer([](const Window& dialog) {
      dialog.type("tbNom", QStringLiteral("FORM"));
      dialog.press("bOK");
    });
    answer(
        [](const Window& box) { say(box, QMessageBox::NoButton, QStringLiteral("Ce noeud existe déja")); });
    window.press("bAdd");
  });
  EXPECT_EQ(names(app), Texts{u"Form"});
}

TEST_F(EditorShaping, ANodeIsDeletedAfterYes) {
  edit(u"App\\Form", [this](const Window& window) {
    inDialog(window, "bSupp", [](const Window& box) {
      say(box, QMessageBox::Yes, QStringLiteral("Voulez Supprimer ce noeuds ainsi que ses fils?"));
    });
    EXPECT_FALSE(window.node(QStringLiteral("App\\Form")).isValid());
  });
  EXPECT_TRUE(names(app).empty());
}

TEST_F(EditorShaping, ANodeStaysAfterNo) {
  edit(u"App\\Form", [this](const Window& window) {
    inDialog(window, "bSupp", [](const Window& box) {
      say(box, QMessageBox::No, QStringLiteral("Voulez Supprimer ce noeuds ainsi que ses fils?"));
    });
  });
  EXPECT_EQ(names(app), Texts{u"Form"});
}

TEST_F(EditorShaping, DeleteAndInsertInTheTreeAreTheButtons) {
  edit(u"App\\Form", [this](const Window& window) {
    window.tree().setFocus();
    answer([](const Window& dialog) { EXPECT_TRUE(dialog.sees("tbNom")); });
    window.key(Qt::Key_Insert);
    answer([](const Window& box) {
      say(box, QMessageBox::NoButton, QStringLiteral("Voulez Supprimer ce noeuds ainsi que ses fils?"));
    });
    window.tree().setFocus();
    window.key(Qt::Key_Delete);
  });
  EXPECT_EQ(desk.opened().size(), 3);
}

TEST_F(EditorShaping, InRestrictedModeDeleteInTheTreeDoesNothing) {
  edit(restricted, u"App\\Form", [](const Window& window) {
    window.tree().setFocus();
    window.key(Qt::Key_Delete);
  });
  EXPECT_EQ(names(app), Texts{u"Form"});
}

TEST_F(EditorShaping, ANewTranslationNameIsLastAndSelected) {
  control(form, u"Ok", {entry(u"Caption", {u"Bien", u"", u"", u"", u"", u""})});
  edit(u"App\\Form\\Ok", [this](const Window& window) {
    inDialog(window, "bAddTrad", [](const Window& dialog) {
      EXPECT_EQ(dialog.widget().windowTitle(), QStringLiteral("Ajout d'une traduction[*]"));
      dialog.type("tbNomTrad", QStringLiteral("caption"));
      dialog.press("bOk");
    });
    EXPECT_EQ(window.lines("LstNomTrad"),
              (QStringList{QStringLiteral("Caption"), QStringLiteral("caption")}));
    EXPECT_EQ(window.line("LstNomTrad"), 1);
    EXPECT_EQ(window.text("tbTradCtrl(0)"), QString());
  });
}

TEST_F(EditorShaping, ATranslationNameThatExistsIsRefused) {
  control(form, u"Ok", {entry(u"Caption", {u"Bien", u"", u"", u"", u"", u""})});
  edit(u"App\\Form\\Ok", [this](const Window& window) {
    answer([](const Window& dialog) {
      dialog.type("tbNomTrad", QStringLiteral("Caption"));
      dialog.key(Qt::Key_Return);
    });
    answer([](const Window& box) {
      say(box, QMessageBox::NoButton, QStringLiteral("Cette Traduction existe déja"));
    });
    window.press("bAddTrad");
    EXPECT_EQ(window.lines("LstNomTrad").size(), 1);
  });
}

TEST_F(EditorShaping, ATranslationNameIsDeletedAfterYes) {
  const CellRef cell = control(form, u"Ok",
                               {entry(u"Caption", {u"Bien", u"", u"", u"", u"", u""}),
                                entry(u"ToolTip", {u"", u"", u"", u"", u"", u""})});
  edit(u"App\\Form\\Ok", [this](const Window& window) {
    window.clickLine("LstNomTrad", 1);
    inDialog(window, "bSupTrad", [](const Window& box) {
      say(box, QMessageBox::Yes, QStringLiteral("Voulez vous supprimer cette Traduction"));
    });
    EXPECT_EQ(window.lines("LstNomTrad"), QStringList{QStringLiteral("Caption")});
    EXPECT_EQ(window.text("tbTradCtrl(0)"), QStringLiteral("Bien"));
  });
  EXPECT_EQ(cell->ColTraduction()->Count(), 1);
}

TEST_F(EditorShaping, TheLastTranslationNameCannotBeDeleted) {
  control(form, u"Ok", {entry(u"Caption", {u"Bien", u"", u"", u"", u"", u""})});
  edit(u"App\\Form\\Ok", [](const Window& window) { window.press("bSupTrad"); });
  EXPECT_EQ(desk.opened().size(), 1);
}

}  // namespace
}  // namespace kob::qt::testing
