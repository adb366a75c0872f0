// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Desk.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>

namespace kob::qt::testing {
namespace {

struct EditorTexts : EditorOnScreen {
  /// Opens the editor on a message with this text in language 2.
  void editText(TextView text, Script script) {
    cell = message(app, u"M", {u"Oui", text, u"", u"", u"", u""});
    edit(u"App\\M", std::move(script));
  }
  Text recorded() const { return Text(cell->Traduction()->ColTraduction()->Item(2)); }

  CellRef cell;
};

constexpr const char* box = "tbTradMessage(1)";

QPlainTextEdit& field(const Window& window) {
  return window.the<QPlainTextEdit>(box);
}

/// Types where the cursor is put by moving it from the start.
void insertAt(const Window& window, int place, Qt::Key key) {
  field(window).setFocus();
  QTextCursor cursor = field(window).textCursor();
  cursor.setPosition(place);
  field(window).setTextCursor(cursor);
  QTest::keyClick(&field(window), key);
}

TEST_F(EditorTexts, EveryKeystrokeIsInTheModel) {
  editText(u"", [this](const Window& window) {
    field(window).setFocus();
    QTest::keyClick(&field(window), Qt::Key_A);
    EXPECT_EQ(recorded(), u"a");
    QTest::keyClick(&field(window), Qt::Key_B);
    EXPECT_EQ(recorded(), u"ab");
    QTest::keyClick(&field(window), Qt::Key_Backspace);
    EXPECT_EQ(recorded(), u"a");
  });
}

TEST_F(EditorTexts, APastedTextIsRecordedWithItsLines) {
  editText(u"", [this](const Window& window) {
    auto pasted = std::make_unique<QMimeData>();
    pasted->setText(QStringLiteral("un\ndeux"));
    QGuiApplication::clipboard()->setMimeData(pasted.release());
    field(window).setFocus();
    QTest::keyClick(&field(window), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(recorded(), u"un\ndeux");
  });
}

TEST_F(EditorTexts, LinesAreShownOneBelowTheOther) {
  editText(u"one\r\ntwo\rthree\nfour",
           [](const Window& window) { EXPECT_EQ(field(window).document()->blockCount(), 4); });
}

TEST_F(EditorTexts, TheLineEndsOfATextStayWhenItIsEdited) {
  editText(u"one\r\ntwo\rthree\nfour", [this](const Window& window) {
    insertAt(window, 0, Qt::Key_X);
    EXPECT_EQ(recorded(), u"xone\r\ntwo\rthree\nfour");
    insertAt(window, 17, Qt::Key_Y);
    EXPECT_EQ(recorded(), u"xone\r\ntwo\rthree\nfoyur");
  });
}

TEST_F(EditorTexts, ANewLineEndsAsTheFirstOneDoes) {
  editText(u"one\r\ntwo", [this](const Window& window) {
    insertAt(window, 7, Qt::Key_Return);
    EXPECT_EQ(recorded(), u"one\r\ntwo\r\n");
  });
}

TEST_F(EditorTexts, TheFirstLineEndOfATextIsALineFeed) {
  editText(u"one", [this](const Window& window) {
    insertAt(window, 3, Qt::Key_Return);
    EXPECT_EQ(recorded(), u"one\n");
  });
}

TEST_F(EditorTexts, ShiftReturnIsALineEndLikeAnyOther) {
  editText(u"one", [this](const Window& window) {
    field(window).setFocus();
    field(window).moveCursor(QTextCursor::End);
    QTest::keyClick(&field(window), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(recorded(), u"one\n");
  });
}

TEST_F(EditorTexts, JoiningTwoLinesRemovesTheirLineEndAlone) {
  editText(u"one\r\ntwo\r\nthree", [this](const Window& window) {
    insertAt(window, 4, Qt::Key_Backspace);
    EXPECT_EQ(recorded(), u"onetwo\r\nthree");
  });
}

TEST_F(EditorTexts, NoBreakSpacesStay) {
  editText(u"Voulez-vous quitter\u00a0?", [this](const Window& window) {
    insertAt(window, 0, Qt::Key_X);
    EXPECT_EQ(recorded(), u"xVoulez-vous quitter\u00a0?");
  });
}

TEST_F(EditorTexts, UnitsThatNoFontShowsStay) {
  const Text odd = Text(u"a") + char16_t{0xd800} + char16_t{0xfdd0} + char16_t{0x2028} + char16_t{0} + u"z";
  editText(odd, [this, &odd](const Window& window) {
    insertAt(window, 0, Qt::Key_X);
    EXPECT_EQ(recorded(), u"x" + odd);
  });
}

TEST_F(EditorTexts, ARightToLeftTextTurnsItsBox) {
  editText(u"שלום", [](const Window& window) {
    EXPECT_EQ(field(window).layoutDirection(), Qt::RightToLeft);
    EXPECT_GT(field(window).cursorRect().x(), field(window).viewport()->width() / 2);
    EXPECT_EQ(window.the<QPlainTextEdit>("tbTradMessage(0)").layoutDirection(), Qt::LeftToRight);
  });
}

TEST_F(EditorTexts, TypingALeftToRightTextTurnsItBack) {
  editText(u"שלום", [](const Window& window) {
    window.type(box, QStringLiteral("hello"));
    EXPECT_EQ(field(window).layoutDirection(), Qt::LeftToRight);
    EXPECT_GT(field(window).cursorRect().x(), 5);
    EXPECT_LT(field(window).cursorRect().x(), field(window).viewport()->width() / 2);
  });
}

TEST_F(EditorTexts, ANameIsWrittenAsItIsTyped) {
  editText(u"", [this](const Window& window) {
    window.type("tbNom", QStringLiteral("Neuf"));
    window.type("tbAlias", QStringLiteral("&Autre"));
    EXPECT_EQ(cell->nom(), u"Neuf");
    EXPECT_EQ(cell->Alias(), u"&Autre");
  });
}

TEST_F(EditorTexts, ARightToLeftNameTurnsItsBox) {
  editText(u"", [](const Window& window) {
    window.type("tbAlias", QStringLiteral("שלום"));
    EXPECT_EQ(window.the("tbAlias").layoutDirection(), Qt::RightToLeft);
  });
}

TEST_F(EditorTexts, AnotherNodeShowsItsTextsAndRecordsNothing) {
  message(app, u"N", {u"Non", u"No", u"", u"", u"", u""});
  editText(u"Yes", [this](const Window& window) {
    window.clickNode(QStringLiteral("App\\N"));
    EXPECT_EQ(window.text(box), QStringLiteral("No"));
    EXPECT_EQ(recorded(), u"Yes");
    EXPECT_FALSE(window.widget().isWindowModified());
  });
}

TEST_F(EditorTexts, AClickCompletesFromEqualTexts) {
  message(app, u"N", {u"OUI", u"", u"Ja", u"", u"", u""});
  editText(u"Yes", [](const Window& window) {
    window.clickNode(QStringLiteral("App\\N"));
    EXPECT_EQ(window.text(box), QStringLiteral("Yes"));
    EXPECT_EQ(window.text("tbTradMessage(2)"), QStringLiteral("Ja"));
  });
}

TEST_F(EditorTexts, UndoTakesBackTypingButNotTheTextOfAnotherNode) {
  message(app, u"N", {u"Non", u"No", u"", u"", u"", u""});
  editText(u"Yes", [this](const Window& window) {
    window.clickNode(QStringLiteral("App\\N"));
    field(window).setFocus();
    QTest::keyClick(&field(window), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(window.text(box), QStringLiteral("No"));
    EXPECT_EQ(recorded(), u"Yes");
  });
}

TEST_F(EditorTexts, BoxesAreCalledAfterTheirLanguage) {
  editText(u"", [](const Window& window) {
    const QStringList names{QStringLiteral("Français"),   QStringLiteral("English"),
                            QStringLiteral("Nederlands"), QStringLiteral("Deutsch"),
                            QStringLiteral("Italiano"),   QStringLiteral("Español")};
    for (int i = 0; i < names.size(); ++i) {
      const QByteArray number = '(' + QByteArray::number(i) + ')';
      EXPECT_EQ(window.the(("tbTradMessage" + number).constData()).accessibleName(), names[i]);
      EXPECT_EQ(window.the(("tbTradCtrl" + number).constData()).accessibleName(), names[i]);
      EXPECT_EQ(window.the(("ImgTradMess" + number).constData()).toolTip(), names[i]);
    }
  });
}

TEST_F(EditorTexts, AControlShowsTheTextsOfTheChosenName) {
  const CellRef button = control(app, u"C",
                                 {entry(u"Caption", {u"Bien", u"Good", u"", u"", u"", u""}),
                                  entry(u"ToolTip", {u"Une bulle", u"A bubble", u"", u"", u"", u""})});
  edit(u"App\\C", [&button](const Window& window) {
    EXPECT_EQ(window.lines("LstNomTrad"),
              (QStringList{QStringLiteral("Caption"), QStringLiteral("ToolTip")}));
    EXPECT_EQ(window.text("tbTradCtrl(1)"), QStringLiteral("Good"));
    window.clickLine("LstNomTrad", 1);
    EXPECT_EQ(window.text("tbTradCtrl(1)"), QStringLiteral("A bubble"));
    window.type("tbTradCtrl(1)", QStringLiteral("Tip"));
    EXPECT_EQ(button->ColTraduction()->Item(2)->ColTraduction()->Item(2), u"Tip");
    EXPECT_EQ(button->ColTraduction()->Item(1)->ColTraduction()->Item(2), u"Good");
  });
}

TEST_F(EditorTexts, TheArrowKeysChooseAName) {
  control(app, u"C",
          {entry(u"Caption", {u"Bien", u"Good", u"", u"", u"", u""}),
           entry(u"ToolTip", {u"Une bulle", u"A bubble", u"", u"", u"", u""})});
  edit(u"App\\C", [](const Window& window) {
    window.the("LstNomTrad").setFocus();
    window.key(Qt::Key_Down);
    EXPECT_EQ(window.text("tbTradCtrl(1)"), QStringLiteral("A bubble"));
  });
}

TEST_F(EditorTexts, AControlWithoutNamesShowsAnEmptyUnselectedList) {
  control(app, u"C", {});
  edit(u"App\\C", [](const Window& window) {
    EXPECT_EQ(window.lines("LstNomTrad"), QStringList());
    EXPECT_EQ(window.line("LstNomTrad"), -1);
  });
}

TEST_F(EditorTexts, InRestrictedModeTheReferenceIsLockedAndTheOthersAreNot) {
  cell = message(app, u"M", {u"Oui", u"", u"", u"", u"", u""});
  edit(restricted, u"App\\M", [this](const Window& window) {
    window.type("tbTradMessage(0)", QStringLiteral("Non"));
    window.type(box, QStringLiteral("Yes"));
    EXPECT_EQ(cell->Traduction()->ColTraduction()->Item(1), u"Oui");
    EXPECT_EQ(recorded(), u"Yes");
    window.type("tbNom", QStringLiteral("x"));
    EXPECT_EQ(cell->nom(), u"M");
  });
}

TEST_F(EditorTexts, ALockedTextCanBeCopied) {
  message(app, u"M", {u"Oui", u"", u"", u"", u"", u""});
  edit(restricted, u"App\\M", [](const Window& window) {
    auto& reference = window.the<QPlainTextEdit>("tbTradMessage(0)");
    reference.setFocus();
    QTest::keyClick(&reference, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(reference.textCursor().selectedText(), QStringLiteral("Oui"));
  });
}

TEST_F(EditorTexts, InRestrictedModeWhatShapesTheModelIsHidden) {
  control(app, u"C", {entry(u"Caption", {u"Bien", u"", u"", u"", u"", u""})});
  edit(restricted, u"App\\C", [](const Window& window) {
    for (const char* const name : {"bAdd", "bSupp", "bAddTrad", "bSupTrad", "chkPosition", "sldLeft(0)",
                                   "sldwidth(5)", "bl1(0)", "bw1(5)"}) {
      EXPECT_FALSE(window.sees(name)) << name;
    }
    EXPECT_TRUE(window.sees("chkContexte"));
    EXPECT_FALSE(window.the("chkContexte").isEnabled());
  });
}

}  // namespace
}  // namespace kob::qt::testing
