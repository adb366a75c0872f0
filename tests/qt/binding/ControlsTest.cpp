// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Forms.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QDialog>
#include <QDockWidget>
#include <QFrame>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolBar>
#include <QToolBox>
#include <QVBoxLayout>
#include <QWizard>

#include <gmock/gmock.h>

namespace kob::qt::test {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

TEST(QtControls, AreEveryDescendantWidgetInTreeOrder) {
  QDialog form;
  auto* const first = add<QFrame>(form, "first");
  add<QLabel>(form, "last");
  add<QLabel>(*first, "inner");
  EXPECT_THAT(controls(form), ElementsAre("first", "first/inner", "last"));
}

TEST(QtControls, ContainerOfAControlOnTheFormIsTheForm) {
  QDialog form;
  add<QLabel>(form, "label");
  EXPECT_EQ(object(onlyControl(form), Property::Container)->identity(), hostForm(&form)->identity());
  EXPECT_FALSE(onlyControl(form)->get(Property::Parent).has_value());
}

TEST(QtControls, ContainerIsTheNearestExposedAncestor) {
  QDialog form;
  auto* const area = add<QScrollArea>(form, "area");
  auto* const content = new QWidget;
  content->setObjectName("content");
  area->setWidget(content);
  add<QLabel>(*content, "label");
  EXPECT_THAT(controls(form), ElementsAre("area", "area/content", "area/content/label"));
}

TEST(QtControls, PagesStandDirectlyInTheirTabbedWidget) {
  QDialog form;
  auto* const tabs = add<QTabWidget>(form, "tabs");
  auto* const box = add<QToolBox>(form, "box");
  for (const char* const name : {"one", "two"}) {
    auto* const page = new QWidget;
    page->setObjectName(name);
    tabs->addTab(page, "t");
    auto* const item = new QLabel;
    item->setObjectName(name);
    box->addItem(item, "t");
  }
  EXPECT_THAT(controls(form), ElementsAre("tabs", "tabs/one", "tabs/two", "box", "box/one", "box/two"));
}

TEST(QtControls, PagesKeepTheOrderOfTheirNumbersWhicheverIsShown) {
  QDialog form;
  auto* const tabs = add<QTabWidget>(form, "tabs");
  auto* const stack = add<QStackedWidget>(form, "stack");
  for (int i = 0; i < 3; ++i) {
    tabs->addTab(new QWidget, "t");
    stack->addWidget(new QLabel);
  }
  tabs->widget(1)->setToolTip("second");
  const std::vector<std::string> before = controls(form);
  form.show();
  tabs->setCurrentIndex(2);
  tabs->setCurrentIndex(0);
  stack->setCurrentIndex(1);
  stack->widget(0)->raise();
  EXPECT_EQ(controls(form), before);
  EXPECT_EQ(text(control(form, "tabs/QWidget(1)"), Property::ToolTipText), "second");
}

TEST(QtControls, PagesStandInTheOrderOfTheirNumbersHoweverTheyCame) {
  QDialog form;
  auto* const tabs = add<QTabWidget>(form, "tabs");
  auto* const box = add<QToolBox>(form, "box");
  for (const char* const name : {"last", "first"}) {
    auto* const page = new QWidget;
    page->setObjectName(name);
    tabs->insertTab(0, page, "t");
    auto* const item = new QLabel;
    item->setObjectName(name);
    box->insertItem(0, item, "t");
  }
  EXPECT_THAT(controls(form), ElementsAre("tabs", "tabs/first", "tabs/last", "box", "box/first", "box/last"));
}

TEST(QtControls, SubWindowsKeepTheirOrderWhicheverIsActive) {
  QDialog form;
  auto* const area = add<QMdiArea>(form, "area");
  auto* const first = area->addSubWindow(new QLabel);
  auto* const second = area->addSubWindow(new QLabel);
  first->setToolTip("first");
  form.show();
  area->setActiveSubWindow(second);
  area->setActiveSubWindow(first);
  first->raise();
  EXPECT_EQ(text(control(form, "area/QMdiSubWindow(0)"), Property::ToolTipText), "first");
}

TEST(QtControls, PartsOfASplitterKeepTheOrderInWhichTheyAreSeen) {
  QDialog form;
  auto* const splitter = add<QSplitter>(form, "splitter");
  for (const char* const tip : {"first", "second"}) {
    auto* const part = new QLabel;
    part->setToolTip(tip);
    splitter->addWidget(part);
  }
  EXPECT_EQ(text(control(form, "splitter/QLabel(0)"), Property::ToolTipText), "first");
}

TEST(QtControls, EachIsExposedOnce) {
  QMainWindow form;
  auto* const area = new QMdiArea;
  area->setObjectName("area");
  form.setCentralWidget(area);
  area->addSubWindow(add<QLabel>(form, "label"))->setObjectName("sub");
  EXPECT_THAT(controls(form), ElementsAre("area", "area/sub", "area/sub/label"));
}

TEST(QtControls, DialogsAndOtherWindowsBelowTheFormAreFormsOfTheirOwn) {
  QMainWindow form;
  auto* const dialog = add<QDialog>(form, "dialog");
  add<QLabel>(*dialog, "label");
  auto* const palette = new QFrame(&form, Qt::Tool);
  palette->setObjectName("palette");
  EXPECT_THAT(controls(form), ElementsAre());
  EXPECT_THAT(controls(*dialog), ElementsAre("label"));
}

TEST(QtControls, DialogEmbeddedAsAWidgetIsPartOfTheForm) {
  QDialog form;
  auto* const inner = add<QDialog>(form, "inner");
  inner->setWindowFlags(Qt::Widget);
  add<QLabel>(*inner, "label");
  EXPECT_THAT(controls(form), ElementsAre("inner", "inner/label"));
}

TEST(QtControls, FloatingDocksAndToolBarsStayPartOfTheForm) {
  QMainWindow form;
  auto* const dock = add<QDockWidget>(form, "dock");
  auto* const bar = add<QToolBar>(form, "bar");
  form.addDockWidget(Qt::LeftDockWidgetArea, dock);
  form.addToolBar(bar);
  form.show();
  dock->setFloating(true);
  bar->setWindowFlag(Qt::Window);
  ASSERT_TRUE(dock->isWindow());
  ASSERT_TRUE(bar->isWindow());
  EXPECT_THAT(controls(form), Contains("dock"));
  EXPECT_THAT(controls(form), Contains("bar"));
}

TEST(QtControls, VisibleIsTheControlsOwnFlagOnAFormThatWasNeverShown) {
  QDialog form;
  auto* const frame = add<QFrame>(form, "frame");
  add<QLabel>(*frame, "label");
  add<QLabel>(*frame, "hidden")->hide();
  EXPECT_EQ(flag(control(form, "frame"), Property::Visible), true);
  EXPECT_EQ(flag(control(form, "frame/label"), Property::Visible), true);
  EXPECT_EQ(flag(control(form, "frame/hidden"), Property::Visible), false);
}

TEST(QtControls, ControlInAHiddenFrameIsVisibleItself) {
  QDialog form;
  auto* const frame = add<QFrame>(form, "frame");
  add<QLabel>(*frame, "label");
  form.show();
  frame->hide();
  EXPECT_EQ(flag(control(form, "frame"), Property::Visible), false);
  EXPECT_EQ(flag(control(form, "frame/label"), Property::Visible), true);
}

TEST(QtControls, PagesThatAreNotShownCountAsVisible) {
  QDialog form;
  auto* const tabs = add<QTabWidget>(form, "tabs");
  auto* const stack = add<QStackedWidget>(form, "stack");
  auto* const box = add<QToolBox>(form, "box");
  for (int i = 0; i < 2; ++i) {
    tabs->addTab(new QWidget, "t");
    stack->addWidget(new QWidget);
    box->addItem(new QWidget, "t");
  }
  form.show();
  ASSERT_TRUE(tabs->widget(1)->isHidden());
  for (const HostRef& page : members(hostForm(&form), Property::Controls)) {
    EXPECT_EQ(flag(page, Property::Visible), true) << text(page, Property::Name);
  }
}

TEST(QtControls, PagesOfAWizardCountAsVisible) {
  QWizard form;
  add<QWizardPage>(form, "one");
  form.addPage(add<QWizardPage>(form, "two"));
  form.addPage(add<QWizardPage>(form, "three"));
  form.show();
  EXPECT_EQ(flag(control(form, "three"), Property::Visible), true);
}

TEST(QtControls, DeeplyNestedFormIsWalked) {
  QDialog form;
  QWidget* inner = &form;
  for (int i = 0; i < 300; ++i) {
    inner = add<QFrame>(*inner, "f");
  }
  EXPECT_EQ(controls(form).size(), 300U);
}

}  // namespace kob::qt::test
