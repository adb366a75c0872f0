// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Desk.h"

#include <QAction>
#include <QMenuBar>

namespace kob::qt::testing {
namespace {

struct EditorKeys : EditorOnScreen {
  /// The names of what Tab reaches from the tree on, once around. A part of a widget counts as the widget.
  static QStringList tabbed(const Window& window) {
    QStringList names;
    window.tree().setFocus();
    do {
      const QWidget* named = window.widget().focusWidget();
      while (named->objectName().isEmpty() || named->objectName().startsWith(QLatin1String("qt_"))) {
        named = named->parentWidget();
      }
      names += named->objectName();
      window.key(Qt::Key_Tab);
    } while (!window.tree().hasFocus() && names.size() < 100);
    return names;
  }
};

TEST_F(EditorKeys, TabWalksThroughAMessageInReadingOrder) {
  message(app, u"M", {u"Oui", u"", u"", u"", u"", u""});
  edit(u"App\\M", [](const Window& window) {
    EXPECT_EQ(tabbed(window).join(QLatin1Char(' ')),
              QStringLiteral("TV pConteneur bAdd bSupp tbNom tbAlias OptTypFeuille(1) chkContexte "
                             "tbTradMessage(0) tbTradMessage(1) tbTradMessage(2) tbTradMessage(3) "
                             "tbTradMessage(4) tbTradMessage(5)"));
  });
}

TEST_F(EditorKeys, TabWalksThroughAControlInReadingOrder) {
  control(app, u"C", {entry(u"Caption", {u"Oui", u"", u"", u"", u"", u""})});
  edit(u"App\\C", [](const Window& window) {
    const QString walked = tabbed(window).join(QLatin1Char(' '));
    EXPECT_TRUE(walked.contains(
        QStringLiteral("LstNomTrad bAddTrad bSupTrad chkPosition tbTradCtrl(0) sldLeft(0) bl1(0) sldwidth(0) "
                       "bw1(0) tbTradCtrl(1) sldLeft(1)")))
        << qPrintable(walked);
  });
}

TEST_F(EditorKeys, InRestrictedModeTabGoesFromTextToText) {
  control(app, u"C", {entry(u"Caption", {u"Oui", u"", u"", u"", u"", u""})});
  edit(restricted, u"App\\C", [](const Window& window) {
    EXPECT_EQ(tabbed(window).join(QLatin1Char(' ')),
              QStringLiteral("TV pConteneur LstNomTrad tbTradCtrl(0) tbTradCtrl(1) tbTradCtrl(2) "
                             "tbTradCtrl(3) tbTradCtrl(4) tbTradCtrl(5)"));
  });
}

TEST_F(EditorKeys, ControlAndADigitGoToTheTextOfALanguage) {
  message(app, u"M", {u"Oui", u"", u"", u"", u"", u""});
  edit(u"App\\M", [](const Window& window) {
    window.key(Qt::Key_4, Qt::ControlModifier);
    EXPECT_TRUE(window.the("tbTradMessage(3)").hasFocus());
    window.key(Qt::Key_1, Qt::ControlModifier);
    EXPECT_TRUE(window.the("tbTradMessage(0)").hasFocus());
  });
}

TEST_F(EditorKeys, F6GoesBetweenTheTreeAndTheTexts) {
  message(app, u"M", {u"Oui", u"", u"", u"", u"", u""});
  edit(u"App\\M", [](const Window& window) {
    window.tree().setFocus();
    window.key(Qt::Key_F6);
    EXPECT_TRUE(window.the("tbTradMessage(1)").hasFocus());
    window.key(Qt::Key_F6);
    EXPECT_TRUE(window.tree().hasFocus());
  });
}

TEST_F(EditorKeys, TheMenusHaveTheirCaptionsAndAKeyEach) {
  edit(u"", [](const Window& window) {
    QStringList captions;
    QStringList letters;
    for (const QAction* const action : window.the<QMenuBar>("").actions()) {
      captions += QString(action->text()).remove(QLatin1Char('&'));
      letters += action->text().section(QLatin1Char('&'), 1).left(1);
    }
    EXPECT_EQ(captions, (QStringList{QStringLiteral("Fichier"), QStringLiteral("Edition")}));
    EXPECT_EQ(letters, (QStringList{QStringLiteral("F"), QStringLiteral("E")}));
    EXPECT_EQ(window.the<QAction>("m_SaveAs").text(), QStringLiteral("Save &As"));
    EXPECT_EQ(window.the<QAction>("m_Save").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_S));
    EXPECT_EQ(window.the<QAction>("m_SaveAs").shortcut(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    EXPECT_EQ(window.the<QAction>("m_Search").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_F));
  });
}

}  // namespace
}  // namespace kob::qt::testing
