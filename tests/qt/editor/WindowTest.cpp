// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Desk.h"
#include "tests/editor/SampleModel.h"

#include <kobtraduction/base/Failure.h>

#include <QLabel>
#include <QMenuBar>

namespace kob::qt::testing {
namespace {

struct EditorWindow : EditorOnScreen {};

TEST_F(EditorWindow, OpensWithNothingSelectedAndNothingShownOnTheRight) {
  edit(u"", [](const Window& window) {
    EXPECT_TRUE(window.sees("TV"));
    EXPECT_EQ(window.selectedNode(), QString());
    for (const char* const name : {"bAdd", "bSupp", "FrName", "FrMessage", "FrControl"}) {
      EXPECT_FALSE(window.sees(name)) << name;
    }
  });
  EXPECT_EQ(desk.opened(), QStringList{QStringLiteral("Traduction[*]")});
}

TEST_F(EditorWindow, OpensOnTheCellOfThePath) {
  message(app, u"Bonjour", {u"Salut", u"Hello", u"", u"", u"", u""});
  edit(u"App\\Bonjour", [](const Window& window) {
    EXPECT_EQ(window.selectedNode(), QStringLiteral("App\\Bonjour"));
    EXPECT_EQ(window.text("tbTradMessage(1)"), QStringLiteral("Hello"));
  });
}

TEST_F(EditorWindow, StandsModalOverTheWindowThatWasActive) {
  QWidget host;
  host.show();
  host.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
  edit(u"", [&host](const Window& window) {
    EXPECT_EQ(window.widget().parentWidget(), &host);
    EXPECT_TRUE(window.widget().isModal());
  });
}

TEST_F(EditorWindow, ClosesWhenItsParentIsDeleted) {
  auto host = std::make_unique<QWidget>();
  host->show();
  host->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(host.get()));
  edit(u"App", [&host](const Window& window) {
    host.reset();
    EXPECT_FALSE(window.widget().isVisible());
  });
}

TEST_F(EditorWindow, ClosesWithTheSmallDialogOverItWhenItsParentIsDeleted) {
  auto host = std::make_unique<QWidget>();
  host->show();
  host->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(host.get()));
  message(app, u"M", {u"a", u"", u"", u"", u"", u""});
  edit(u"App\\M", [&](const Window& window) {
    answer([&host](const Window&) { host.reset(); });
    window.press("bAdd");
    EXPECT_FALSE(window.widget().isVisible());
  });
  EXPECT_EQ(desk.opened().size(), 2);
}

TEST_F(EditorWindow, EscapeLeavesTheEditorOpen) {
  edit(u"", [](const Window& window) {
    window.key(Qt::Key_Escape);
    EXPECT_TRUE(window.widget().isVisible());
  });
}

TEST_F(EditorWindow, ControlWClosesIt) {
  edit(u"", [](const Window& window) {
    window.key(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window.widget().isVisible());
  });
}

TEST_F(EditorWindow, OpensAgainOnTheSameModel) {
  edit(u"", [](const Window&) {});
  edit(u"", [](const Window& window) { EXPECT_TRUE(window.node(QStringLiteral("App")).isValid()); });
}

TEST_F(EditorWindow, TheTitleTellsOfChangesAndOfTheFile) {
  model.setFichier(u"a[*].trad");
  message(app, u"M", {u"a", u"", u"", u"", u"", u""});
  edit(u"App\\M", [](const Window& window) {
    EXPECT_EQ(window.widget().windowTitle(), QStringLiteral("Traduction - a[*][*].trad[*]"));
    EXPECT_FALSE(window.widget().isWindowModified());
    window.type("tbTradMessage(1)", QStringLiteral("b"));
    EXPECT_TRUE(window.widget().isWindowModified());
  });
}

TEST_F(EditorWindow, AFailureOfTheModelClosesItAndComesOutOfShow) {
  // What is known of a text ends with the sixth language.
  model.setNbLangues(7);
  message(app, u"M", {u"a", u"", u"", u"", u"", u"", u""});
  const auto failed = failureOf([&] {
    edit(u"", [](const Window& window) {
      window.clickNode(QStringLiteral("App\\M"));
      EXPECT_FALSE(window.widget().isVisible());
    });
  });
  EXPECT_EQ(failed, FailureKind::InvalidIndex);
}

TEST_F(EditorWindow, AFailureUnderTheSearchClosesBothWindows) {
  model.setNbLangues(3);
  control(app, u"C", {entry(u"Caption", {u"sought", u"", u""})});
  app->ColCell()->Item(1)->setColLeft(nullptr);
  const auto failed = failureOf([&] {
    edit(u"", [this](const Window& window) {
      answer([](const Window& search) {
        search.type("tbSearchString", QStringLiteral("sought"));
        search.press("bNewSearch");
        search.clickLine("List1", 0);
        EXPECT_FALSE(search.widget().isVisible());
      });
      window.key(Qt::Key_F, Qt::ControlModifier);
      EXPECT_FALSE(window.widget().isVisible());
    });
  });
  EXPECT_EQ(failed, FailureKind::ObjectNotSet);
}

TEST_F(EditorWindow, IsNoFormOfTheApplication) {
  edit(u"", [](const Window& window) { EXPECT_TRUE(window.widget().property("_kob_messageBox").toBool()); });
}

TEST_F(EditorWindow, TheTreeAndTheTextsGrowWithIt) {
  message(app, u"M", {u"a", u"", u"", u"", u"", u""});
  edit(u"App\\M", [](const Window& window) {
    const QSize tree = window.tree().size();
    const QSize text = window.the("tbTradMessage(2)").size();
    window.widget().resize(window.widget().size() + QSize(300, 200));
    QTest::qWait(20);
    EXPECT_GT(window.tree().width(), tree.width());
    EXPECT_GT(window.tree().height(), tree.height());
    EXPECT_GT(window.the("tbTradMessage(2)").width(), text.width());
    EXPECT_GT(window.the("tbTradMessage(2)").height(), text.height());
  });
}

TEST_F(EditorWindow, WithoutAWidgetSetTheModelCannotShowItsEditor) {
  WidgetSet* const here = setWidgetSet(nullptr);
  EXPECT_EQ(failureOf([&] { model.Show(); }), FailureKind::ObjectNotSet);
  setWidgetSet(here);
}

TEST_F(EditorWindow, TheWidgetSetBeforeItIsPutBack) {
  {
    const QtWidgetSet inner;
    EXPECT_EQ(widgetSet(), &inner);
  }
  EXPECT_EQ(widgetSet(), &widgets);
}

}  // namespace
}  // namespace kob::qt::testing
