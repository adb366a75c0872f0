// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Forms.h"

#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraductionqt/KOBTraductionQt.h>

#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QSpinBox>
#include <QToolBar>
#include <QToolButton>

#include <gmock/gmock.h>

namespace kob::qt::test {

namespace {

std::string path(const HostRef& object) {
  return toQString(KOBModeleTraduction().GetPath(object)).toStdString();
}

}  // namespace

TEST(QtHostControl, NothingGivesNoObject) {
  EXPECT_EQ(hostControl(static_cast<QWidget*>(nullptr)), nullptr);
  EXPECT_EQ(hostControl(static_cast<QAction*>(nullptr)), nullptr);
}

TEST(QtHostControl, IsSeenAsPartOfItsWindow) {
  QDialog form;
  form.setObjectName("form");
  auto* const frame = add<QFrame>(form, "frame");
  auto* const label = add<QLabel>(*frame, "cmd");
  add<QLabel>(*frame, "cmd");
  EXPECT_EQ(path(hostControl(label)), "\\form\\frame\\cmd(0)");
}

TEST(QtHostControl, IsSeenAsPartOfTheFormGiven) {
  QDialog form;
  auto* const frame = add<QFrame>(form, "frame");
  auto* const label = add<QLabel>(*frame, "cmd");
  EXPECT_EQ(path(hostControl(label, frame)), "\\frame\\cmd");
}

TEST(QtHostControl, OutsideTheFormGivenGivesNoObject) {
  QDialog form;
  QDialog other;
  EXPECT_EQ(hostControl(add<QLabel>(form, "label"), &other), nullptr);
}

TEST(QtHostControl, OfTheFormItselfIsTheForm) {
  QDialog form;
  EXPECT_TRUE(hostControl(&form)->get(Property::Controls).has_value());
}

TEST(QtHostControl, InternalWidgetGivesNoObject) {
  QDialog form;
  auto* const spin = add<QSpinBox>(form, "spin");
  EXPECT_EQ(hostControl(spin->findChild<QLineEdit*>()), nullptr);
}

TEST(QtHostControl, OfTheSameWidgetIsTheSameByIdentity) {
  QDialog form;
  auto* const label = add<QLabel>(form, "label");
  EXPECT_EQ(hostControl(label)->identity(), hostControl(label)->identity());
  EXPECT_EQ(hostControl(label)->identity(), onlyControl(form)->identity());
}

TEST(QtHostControl, OfADialogsControlDoesNotReachTheWindowAboveTheDialog) {
  QMainWindow window;
  QDialog form(&window);
  form.setObjectName("form");
  EXPECT_EQ(path(hostControl(add<QLabel>(form, "label"))), "\\form\\label");
}

TEST(QtHostControl, OfAnActionFindsTheFormThroughItsOwnerOrThroughWhereItIsShown) {
  QMainWindow form;
  form.setObjectName("form");
  auto* const menu = add<QMenu>(form, "menu");
  QAction loose;
  loose.setObjectName("loose");
  menu->addAction(&loose);
  EXPECT_EQ(path(hostControl(add<QAction>(*menu, "owned"))), "\\form\\owned");
  EXPECT_EQ(path(hostControl(&loose)), "\\form\\loose");
}

TEST(QtHostControl, ActionThatIsShownNowhereGivesNoObject) {
  QAction loose;
  EXPECT_EQ(hostControl(&loose), nullptr);
}

TEST(QtHostControl, OfAMenuThatIsNobodysChildFindsTheFormThatShowsIt) {
  QMainWindow form;
  form.setObjectName("form");
  QMenu menu;
  menu.setObjectName("menu");
  add<QMenu>(form, "bar")->addMenu(&menu);
  EXPECT_EQ(path(hostControl(&menu)), "\\form\\menu");
}

TEST(QtHostControl, ButtonsAndTheirMenusHaveThePathOfTheirRecords) {
  QMainWindow form;
  form.setObjectName("form");
  auto* const bar = add<QToolBar>(form, "bar");
  auto* const button = new QToolButton;
  button->setObjectName("new");
  bar->addWidget(button);
  auto* const menu = add<QMenu>(*button, "menu");
  auto* const entry = menu->addAction("File");
  entry->setObjectName("file");
  button->setMenu(menu);
  button->setText("New");
  KOBModeleTraduction model;
  model.UpdateWithForm(hostForm(&form));
  EXPECT_EQ(path(hostControl(button)), "\\form\\bar\\new");
  EXPECT_EQ(path(hostControl(entry)), "\\form\\bar\\new\\file");
  EXPECT_NE(model.GetCell(u"form\\bar\\new"), nullptr);
  EXPECT_NE(model.GetCell(u"form\\bar\\new\\file"), nullptr);
}

TEST(QtHostControl, ChainOfContainersIsHeldByTheControl) {
  QDialog form;
  form.setObjectName("form");
  auto* const label = add<QLabel>(*add<QFrame>(form, "frame"), "label");
  HostRef held = hostControl(label);
  const HostRef frame = object(held, Property::Container);
  held.reset();
  EXPECT_EQ(path(frame), "\\form\\frame");
}

}  // namespace kob::qt::test
