// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Forms.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QAction>
#include <QActionGroup>
#include <QDialog>
#include <QDockWidget>
#include <QFrame>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>
#include <QWidgetAction>

#include <gmock/gmock.h>

namespace kob::qt::test {

using testing::Contains;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace {

QAction* action(QWidget& form, const QString& label) {
  auto* const made = add<QAction>(form, "action");
  made->setText(label);
  return made;
}

}  // namespace

TEST(QtAction, IsAControlOfTheFormWithAParentAndNoContainer) {
  QDialog form;
  add<QAction>(*add<QFrame>(form, "frame"), "action");
  const HostRef host = control(form, "action");
  ASSERT_NE(host, nullptr);
  EXPECT_FALSE(host->get(Property::Container).has_value());
  EXPECT_EQ(object(host, Property::Parent)->identity(), hostForm(&form)->identity());
}

TEST(QtAction, MenuIsAControlOfTheFormWithAParentAndNoContainer) {
  QDialog form;
  add<QMenu>(*add<QFrame>(form, "frame"), "menu");
  const HostRef host = control(form, "menu");
  ASSERT_NE(host, nullptr);
  EXPECT_FALSE(host->get(Property::Container).has_value());
  EXPECT_EQ(object(host, Property::Parent)->identity(), hostForm(&form)->identity());
}

TEST(QtAction, IsExposedOnceWhereverItIsShown) {
  QMainWindow form;
  auto* const open = add<QAction>(form, "open");
  auto* const menu = add<QMenu>(*form.menuBar(), "menu");
  form.menuBar()->setObjectName("bar");
  form.menuBar()->addMenu(menu);
  menu->addAction(open);
  auto* const toolBar = add<QToolBar>(form, "tools");
  toolBar->addAction(open);
  form.addToolBar(toolBar);
  form.addAction(open);
  EXPECT_THAT(controls(form), UnorderedElementsAre("open", "bar", "menu", "tools"));
}

TEST(QtAction, OfAMenuAndOfAGroupIsAControlOfTheForm) {
  QDialog form;
  auto* const menu = add<QMenu>(form, "menu");
  add<QAction>(*menu, "inMenu");
  auto* const group = new QActionGroup(&form);
  add<QAction>(*group, "inGroup");
  EXPECT_THAT(controls(form), ElementsAre("menu", "inMenu", "inGroup"));
}

TEST(QtAction, NobodysIsAControlOfTheFormThatShowsIt) {
  QMainWindow form;
  QAction loose("Loose");
  loose.setObjectName("loose");
  auto* const menu = add<QMenu>(form, "menu");
  menu->addAction(&loose);
  form.addAction(&loose);
  EXPECT_THAT(controls(form), ElementsAre("menu", "loose"));
}

TEST(QtAction, OfAnotherFormBelongsToThatForm) {
  QMainWindow window;
  auto* const open = add<QAction>(window, "open");
  QDialog form(&window);
  form.addAction(open);
  EXPECT_THAT(controls(form), ElementsAre());
  EXPECT_THAT(controls(window), ElementsAre("open"));
}

TEST(QtAction, OfADockWidgetWithoutAFormBelongsToTheDockWidget) {
  QDockWidget dock;
  QDialog form;
  form.addAction(add<QAction>(dock, "action"));
  EXPECT_THAT(controls(form), ElementsAre());
  EXPECT_THAT(controls(dock), ElementsAre("action"));
}

TEST(QtAction, OfAChildDialogBelongsToTheDialog) {
  QMainWindow window;
  QDialog dialog(&window);
  auto* const open = add<QAction>(dialog, "open");
  window.addAction(open);
  EXPECT_THAT(controls(window), ElementsAre());
  EXPECT_THAT(controls(dialog), ElementsAre("open"));
}

TEST(QtAction, MenuThatIsNobodysChildIsFoundWhereItIsShown) {
  QMainWindow form;
  QMenu fileMenu;
  QMenu recent;
  QMenu drop;
  fileMenu.setObjectName("file");
  recent.setObjectName("recent");
  drop.setObjectName("drop");
  add<QAction>(recent, "clear");
  fileMenu.addMenu(&recent);
  form.menuBar()->setObjectName("bar");
  form.menuBar()->addMenu(&fileMenu);
  auto* const button = add<QPushButton>(form, "button");
  button->setMenu(&drop);
  EXPECT_THAT(controls(form), UnorderedElementsAre("bar", "file", "recent", "clear", "button", "drop"));
}

TEST(QtAction, WidgetInAMenuStandsInTheForm) {
  QDialog form;
  auto* const menu = add<QMenu>(*add<QFrame>(form, "frame"), "menu");
  auto* const holder = new QWidgetAction(menu);
  auto* const label = new QLabel;
  label->setObjectName("label");
  holder->setDefaultWidget(label);
  menu->addAction(holder);
  EXPECT_THAT(controls(form), ElementsAre("frame", "menu", "label"));
  EXPECT_EQ(object(control(form, "label"), Property::Container)->identity(), hostForm(&form)->identity());
}

TEST(QtAction, CaptionIsTheText) {
  QDialog form;
  auto* const open = action(form, "&Open...");
  EXPECT_EQ(text(onlyControl(form), Property::Caption), "&Open...");
  EXPECT_TRUE(write(onlyControl(form), Property::Caption, "&Ouvrir..."));
  EXPECT_EQ(open->text(), QStringLiteral("&Ouvrir..."));
}

TEST(QtAction, VisibleIsTheActionsAndForAMenuItsActions) {
  QDialog form;
  action(form, "x")->setVisible(false);
  auto* const menu = add<QMenu>(form, "menu");
  EXPECT_EQ(flag(control(form, "action"), Property::Visible), false);
  EXPECT_EQ(flag(control(form, "menu"), Property::Visible), true);
  menu->menuAction()->setVisible(false);
  EXPECT_EQ(flag(control(form, "menu"), Property::Visible), false);
}

TEST(QtAction, ActionThatStandsForAMenuSpeaksForIt) {
  QDialog form;
  auto* const recent = action(form, "Recent");
  auto* const menu = add<QMenu>(form, "menu");
  recent->setMenu(menu);
  EXPECT_THAT(controls(form), ElementsAre("action", "menu"));
  EXPECT_EQ(text(control(form, "menu"), Property::Caption), failed);
  EXPECT_FALSE(write(control(form, "menu"), Property::Caption, "x"));
  EXPECT_TRUE(write(control(form, "action"), Property::Caption, "Zuletzt"));
  EXPECT_EQ(menu->title(), QStringLiteral("Zuletzt"));
}

TEST(QtActionToolTip, DerivedOneIsNotRecorded) {
  for (const char* const label : {"&Open...", "Save && Close", "Copy", " Trim me ", "A &&& B", "..."}) {
    QDialog form;
    action(form, label);
    EXPECT_EQ(text(onlyControl(form), Property::ToolTipText), "") << label;
  }
}

TEST(QtActionToolTip, DesignedOneEqualToTheDerivedIsNotRecorded) {
  QDialog form;
  action(form, "&Open...")->setToolTip("Open");
  EXPECT_EQ(text(onlyControl(form), Property::ToolTipText), "");
}

TEST(QtActionToolTip, EllipsisCharacterStaysInTheDerivedOne) {
  QDialog form;
  action(form, QStringLiteral("Open…"))->setToolTip("Open");
  EXPECT_EQ(text(onlyControl(form), Property::ToolTipText), "Open");
}

TEST(QtActionToolTip, OneOfItsOwnIsRecordedAndWritten) {
  QDialog form;
  auto* const open = action(form, "Open");
  open->setToolTip("Opens a file");
  EXPECT_EQ(text(onlyControl(form), Property::ToolTipText), "Opens a file");
  EXPECT_TRUE(write(onlyControl(form), Property::ToolTipText, "Ouvre un fichier"));
  EXPECT_EQ(open->toolTip(), QStringLiteral("Ouvre un fichier"));
}

TEST(QtActionToolTip, DerivedOneFollowsTheCaption) {
  QDialog form;
  auto* const open = action(form, "&Open...");
  EXPECT_TRUE(write(onlyControl(form), Property::Caption, "&Ouvrir..."));
  EXPECT_EQ(open->toolTip(), QStringLiteral("Ouvrir"));
  open->setText("Later");
  EXPECT_EQ(open->toolTip(), QStringLiteral("Later"));
}

TEST(QtActionToolTip, DesignedOneEqualToTheDerivedFollowsTheCaption) {
  QDialog form;
  auto* const open = action(form, "&Open...");
  open->setToolTip("Open");
  open->setIconText("Open");
  EXPECT_TRUE(write(onlyControl(form), Property::Caption, "&Ouvrir..."));
  EXPECT_EQ(open->toolTip(), QStringLiteral("Ouvrir"));
  EXPECT_EQ(open->iconText(), QStringLiteral("Ouvrir"));
  EXPECT_EQ(text(onlyControl(form), Property::ToolTipText), "");
}

TEST(QtActionToolTip, OneOfItsOwnDoesNotFollowTheCaption) {
  QDialog form;
  auto* const open = action(form, "Open");
  open->setToolTip("Opens a file");
  open->setIconText("short");
  EXPECT_TRUE(write(onlyControl(form), Property::Caption, "Ouvrir"));
  EXPECT_EQ(open->toolTip(), QStringLiteral("Opens a file"));
  EXPECT_EQ(open->iconText(), QStringLiteral("short"));
}

TEST(QtActionToolTip, WritingTheDerivedOneLeavesItFollowing) {
  QDialog form;
  auto* const open = action(form, "&Open...");
  EXPECT_TRUE(write(onlyControl(form), Property::ToolTipText, "Open"));
  open->setText("Ouvrir");
  EXPECT_EQ(open->toolTip(), QStringLiteral("Ouvrir"));
}

}  // namespace kob::qt::test
