// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Desk.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QAction>
#include <QButtonGroup>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSlider>

namespace kob::qt::testing {
namespace {

struct EditorKeys : EditorOnScreen {
  /// A part of a widget counts as the widget.
  static QString nameOf(const QWidget& widget) {
    const QWidget* named = &widget;
    while (named->objectName().isEmpty() || named->objectName().startsWith(QLatin1String("qt_"))) {
      named = named->parentWidget();
    }
    return named->objectName();
  }
  /// What Tab reaches from a widget on, once around.
  static QList<QWidget*> walked(const Window& window, QWidget& first) {
    QList<QWidget*> reached;
    first.setFocus();
    do {
      reached += window.widget().focusWidget();
      window.key(Qt::Key_Tab);
    } while (window.widget().focusWidget() != reached.front() && reached.size() < 100);
    return reached;
  }
  /// The names of what Tab reaches.
  static QStringList tabbed(const Window& window, QWidget& first) {
    QStringList names;
    for (const QWidget* const widget : walked(window, first)) {
      names += nameOf(*widget);
    }
    return names;
  }
  static QStringList tabbed(const Window& window) { return tabbed(window, window.tree()); }

  /// Whatever can be clicked or typed into is reached by Tab, or by the arrow keys from a button of its
  /// group, and has a name for assistive tools.
  static void reachesEverything(const Window& window, QWidget& first) {
    const QList<QWidget*> reached = walked(window, first);
    for (QWidget* const widget : window.widget().findChildren<QWidget*>()) {
      const bool acts =
          qobject_cast<QAbstractButton*>(widget) != nullptr || qobject_cast<QLineEdit*>(widget) != nullptr ||
          qobject_cast<QPlainTextEdit*>(widget) != nullptr || qobject_cast<QSlider*>(widget) != nullptr ||
          qobject_cast<QComboBox*>(widget) != nullptr || qobject_cast<QAbstractItemView*>(widget) != nullptr;
      // What the toolkit makes a widget of has a parent that acts.
      if (!acts || !widget->isVisible() || !widget->isEnabled() || widget->focusPolicy() == Qt::NoFocus) {
        EXPECT_TRUE(!acts || !widget->isVisible() || !widget->isEnabled() || isPart(*widget))
            << qPrintable(nameOf(*widget)) << " takes no keys";
        continue;
      }
      const auto* const radio = qobject_cast<QRadioButton*>(widget);
      EXPECT_TRUE(reached.contains(widget) ||
                  (radio != nullptr && reached.contains(radio->group()->checkedButton())))
          << qPrintable(nameOf(*widget)) << " is not reached";
      const QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(widget);
      ASSERT_NE(told, nullptr);
      EXPECT_FALSE(told->text(QAccessible::Name).isEmpty()) << qPrintable(nameOf(*widget)) << " has no name";
    }
  }
  static bool isPart(const QWidget& widget) {
    const QWidget* const above = widget.parentWidget();
    return qobject_cast<const QComboBox*>(above) != nullptr ||
           qobject_cast<const QLineEdit*>(above) != nullptr ||
           widget.objectName().startsWith(QLatin1String("qt_"));
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

TEST_F(EditorKeys, EverythingInTheEditorIsReachedAndNamed) {
  message(app, u"M", {u"Oui", u"", u"", u"", u"", u""})->setContexte(true);
  control(app, u"C", {entry(u"Caption", {u"Oui", u"", u"", u"", u"", u""})});
  for (const std::int32_t mode : {full, restricted}) {
    for (const TextView path : {u"", u"App\\M", u"App\\C"}) {
      edit(mode, path, [](const Window& window) { reachesEverything(window, window.tree()); });
    }
  }
}

TEST_F(EditorKeys, EverythingInTheSmallDialogsIsReachedAndNamed) {
  control(app, u"C", {entry(u"Caption", {u"Oui", u"", u"", u"", u"", u""})});
  edit(u"App\\C", [this](const Window& window) {
    for (const char* const kind : {"OptTypFeuille(0)", "OptTypFeuille(1)", "OptTypFeuille(2)"}) {
      answer([kind](const Window& dialog) {
        dialog.press(kind);
        reachesEverything(dialog, dialog.the("tbNom"));
      });
      window.press("bAdd");
    }
    answer([](const Window& dialog) { reachesEverything(dialog, dialog.the("tbNomTrad")); });
    window.press("bAddTrad");
    answer([](const Window& dialog) { reachesEverything(dialog, dialog.the("tbSearchString")); });
    window.key(Qt::Key_F, Qt::ControlModifier);
  });
}

TEST_F(EditorKeys, TabWalksThroughTheSmallDialogsInReadingOrder) {
  control(app, u"C", {entry(u"Caption", {u"Oui", u"", u"", u"", u"", u""})});
  const auto walk = [](const char* first, const char* expected) {
    return [first, expected](const Window& dialog) {
      EXPECT_EQ(tabbed(dialog, dialog.the(first)).join(QLatin1Char(' ')), QLatin1String(expected));
    };
  };
  edit(u"App\\C", [&](const Window& window) {
    answer([&](const Window& dialog) {
      dialog.press("OptTypFeuille(2)");
      walk("tbNom", "tbNom tbAlias OptTypFeuille(2) chkContexte tb1 tb2 bOK bCancel")(dialog);
    });
    window.press("bAdd");
    answer(walk("tbNomTrad", "tbNomTrad bOk bCancel"));
    window.press("bAddTrad");
    answer(walk("tbSearchString", "tbSearchString CkSearch(1) CbLangueSearch bNewSearch List1 CkSearch(0)"));
    window.key(Qt::Key_F, Qt::ControlModifier);
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
