// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Forms.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>

#include <gmock/gmock.h>

namespace kob::qt::test {

namespace {

void expectRefused(QWidget& form, QWidget& placed, const char* where) {
  placed.setObjectName("placed");
  const QRect before = placed.geometry();
  for (const HostRef& member : members(hostForm(&form), Property::Controls)) {
    if (text(member, Property::Name) == "placed") {
      EXPECT_EQ(number(member, Property::Width), before.width()) << where;
      EXPECT_EQ(number(member, Property::Left), before.x()) << where;
      EXPECT_FALSE(member->set(Property::Width, Value(before.width() + 10))) << where;
      EXPECT_FALSE(member->set(Property::Left, Value(before.x() + 10))) << where;
      EXPECT_EQ(placed.geometry(), before) << where;
      return;
    }
  }
  ADD_FAILURE() << "not exposed: " << where;
}

}  // namespace

TEST(QtGeometry, LeftAndWidthArePixels) {
  QDialog form;
  auto* const label = add<QLabel>(form, "label");
  label->setGeometry(10, 20, 30, 40);
  const HostRef host = onlyControl(form);
  EXPECT_EQ(number(host, Property::Left), 10);
  EXPECT_EQ(number(host, Property::Width), 30);
  EXPECT_TRUE(host->set(Property::Left, Value(15)));
  EXPECT_TRUE(host->set(Property::Width, Value(60)));
  EXPECT_EQ(label->geometry(), QRect(15, 20, 60, 40));
}

TEST(QtGeometry, ValuesAreConvertedAsAutomationDoes) {
  QDialog form;
  auto* const label = add<QLabel>(form, "label");
  const HostRef host = onlyControl(form);
  EXPECT_TRUE(host->set(Property::Left, Value(2.5)));
  EXPECT_EQ(label->x(), 2);
  EXPECT_TRUE(host->set(Property::Left, Value(u"7")));
  EXPECT_EQ(label->x(), 7);
  EXPECT_FALSE(host->set(Property::Left, Value(3e9)));
  EXPECT_FALSE(host->set(Property::Left, Value(u"wide")));
  EXPECT_EQ(label->x(), 7);
}

TEST(QtGeometry, RefusedWhereALayoutPlaces) {
  QDialog form;
  auto* const rows = new QVBoxLayout(&form);
  auto* const cells = new QHBoxLayout;
  rows->addLayout(cells);
  auto* const label = add<QLabel>(form, "label");
  cells->addWidget(label);
  form.show();
  expectRefused(form, *label, "nested layout");
}

TEST(QtGeometry, RefusedOnTheMenuBarOfALayout) {
  QDialog form;
  auto* const rows = new QVBoxLayout(&form);
  auto* const bar = add<QMenuBar>(form, "bar");
  rows->setMenuBar(bar);
  form.show();
  expectRefused(form, *bar, "menu bar of a layout");
}

TEST(QtGeometry, RefusedInASplitter) {
  QDialog form;
  auto* const splitter = add<QSplitter>(form, "splitter");
  auto* const label = new QLabel;
  splitter->addWidget(label);
  form.show();
  expectRefused(form, *label, "splitter");
}

TEST(QtGeometry, RefusedOnThePartsOfAMainWindow) {
  QMainWindow form;
  auto* const center = new QLabel;
  form.setCentralWidget(center);
  auto* const onStatusBar = new QLabel;
  form.statusBar()->addWidget(onStatusBar);
  form.show();
  expectRefused(form, *center, "central widget");
  center->setObjectName("center");
  expectRefused(form, *onStatusBar, "status bar");
}

TEST(QtGeometry, RefusedOnAPageOfAStack) {
  QDialog form;
  auto* const stack = add<QStackedWidget>(form, "stack");
  auto* const page = new QLabel;
  stack->addWidget(page);
  form.show();
  expectRefused(form, *page, "page");
}

TEST(QtGeometry, RefusedOnContentsThatAScrollAreaResizes) {
  QDialog form;
  auto* const area = add<QScrollArea>(form, "area");
  auto* const content = new QLabel;
  area->setWidget(content);
  area->setWidgetResizable(true);
  form.show();
  expectRefused(form, *content, "scroll area");
}

TEST(QtGeometry, AllowedOnContentsOfTheirOwnSize) {
  QDialog form;
  auto* const area = add<QScrollArea>(form, "area");
  auto* const content = new QLabel;
  content->setObjectName("content");
  area->setWidget(content);
  EXPECT_TRUE(control(form, "area/content")->set(Property::Width, Value(123)));
  EXPECT_EQ(content->width(), 123);
}

TEST(QtGeometry, AllowedOnAWidgetBesideTheLayout) {
  QDialog form;
  new QVBoxLayout(&form);
  auto* const label = add<QLabel>(form, "label");
  EXPECT_TRUE(onlyControl(form)->set(Property::Left, Value(33)));
  EXPECT_EQ(label->x(), 33);
}

TEST(QtGeometry, FormWithALayoutIsStillResizedItself) {
  QDialog form;
  (new QVBoxLayout(&form))->addWidget(add<QLabel>(form, "label"));
  form.resize(300, 200);
  EXPECT_TRUE(hostForm(&form)->set(Property::Width, Value(400)));
  EXPECT_EQ(form.width(), 400);
}

TEST(QtGeometry, MenusAndActionsHaveNone) {
  QDialog form;
  add<QMenu>(form, "menu");
  add<QAction>(form, "action");
  for (const HostRef& member : members(hostForm(&form), Property::Controls)) {
    EXPECT_FALSE(member->get(Property::Left).has_value());
    EXPECT_FALSE(member->get(Property::Width).has_value());
    EXPECT_FALSE(member->set(Property::Left, Value(1)));
    EXPECT_FALSE(member->set(Property::Width, Value(1)));
  }
}

}  // namespace kob::qt::test
