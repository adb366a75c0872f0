// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Forms.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QAction>
#include <QDialog>
#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QWidgetAction>

#include <gmock/gmock.h>

namespace kob::qt::test {

using testing::ElementsAre;

TEST(QtInternalAction, NamesOfTheToolkit) {
  QDialog form;
  add<QAction>(form, "qt_action");
  add<QAction>(form, "_q_action");
  add<QAction>(form, "action");
  EXPECT_THAT(controls(form), ElementsAre("action"));
}

TEST(QtInternalAction, ToggleViewActionsOfDocksAndToolBars) {
  QMainWindow form;
  auto* const dock = add<QDockWidget>(form, "dock");
  form.addDockWidget(Qt::LeftDockWidgetArea, dock);
  auto* const bar = add<QToolBar>(form, "bar");
  form.addToolBar(bar);
  auto* const menu = add<QMenu>(form, "menu");
  menu->addAction(dock->toggleViewAction());
  menu->addAction(bar->toggleViewAction());
  add<QAction>(*dock, "inDock");
  add<QAction>(*bar, "inBar");
  EXPECT_THAT(controls(form), ElementsAre("dock", "inDock", "bar", "inBar", "menu"));
}

TEST(QtInternalAction, ClearActionOfALineEdit) {
  QDialog form;
  add<QLineEdit>(form, "edit")->setClearButtonEnabled(true);
  EXPECT_THAT(controls(form), ElementsAre("edit"));
}

TEST(QtInternalAction, MenusOwnAction) {
  QDialog form;
  auto* const menu = add<QMenu>(form, "menu");
  menu->menuAction()->setObjectName("menuAction");
  form.addAction(menu->menuAction());
  EXPECT_THAT(controls(form), ElementsAre("menu"));
}

TEST(QtInternalAction, WidgetActions) {
  QDialog form;
  add<QWidgetAction>(form, "action");
  QWidgetAction loose(nullptr);
  form.addAction(&loose);
  EXPECT_THAT(controls(form), ElementsAre());
}

TEST(QtInternalAction, SeparatorUnlessItHasAText) {
  QDialog form;
  auto* const menu = add<QMenu>(form, "menu");
  menu->addSeparator()->setObjectName("line");
  menu->addSection("Section")->setObjectName("section");
  EXPECT_THAT(controls(form), ElementsAre("menu", "section"));
}

}  // namespace kob::qt::test
