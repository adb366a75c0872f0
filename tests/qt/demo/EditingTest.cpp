// SPDX-FileCopyrightText: The KOBTraduction authors
#include "DemoForms.h"

#include <tests/qt/editor/Desk.h>

namespace kob::demo {

namespace {

using Editing = DemoForms;

TEST_F(Editing, TheEditedTextsAreShownWhenTheEditorCloses) {
  demo_.switcher().setLanguage(English);
  qt::testing::Desk desk;
  desk.whenOpen([](const qt::testing::Window& editor) {
    editor.clickNode(QStringLiteral("DlgPret"));
    editor.type("tbTradCtrl(1)", QStringLiteral("Borrow"));
  });
  object<QAction>("mnuTraduire").trigger();
  EXPECT_EQ(demo_.loanDialog().windowTitle(), QStringLiteral("Borrow"));
}

TEST_F(Editing, TextsOfOtherLanguagesStayAsTheyAre) {
  const QMap<QString, QString> before = texts();
  qt::testing::Desk desk;
  desk.whenOpen([](const qt::testing::Window& editor) {
    editor.clickNode(QStringLiteral("DlgPret"));
    editor.type("tbTradCtrl(1)", QStringLiteral("Borrow"));
  });
  object<QAction>("mnuTraduire").trigger();
  EXPECT_EQ(differences(before, texts()), QStringList());
}

}  // namespace

}  // namespace kob::demo
