// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Forms.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QtTest>
#include <QtWidgets>

#include <gmock/gmock.h>

namespace kob::qt::test {

using testing::ElementsAre;

namespace {

// A form with one named widget of a class that fills itself with internal ones: only the named one is a
// control.
template <class Widget>
class Holder {
 public:
  Holder() : widget(add<Widget>(form, "outer")) {}

  void show() {
    form.resize(300, 300);
    form.show();
    QApplication::processEvents();
  }
  std::vector<std::string> seen() {
    show();
    return controls(form);
  }
  template <class Inner>
  void has(const char* className) {
    show();
    bool found = false;
    for (const QWidget* const inner : widget->template findChildren<Inner*>()) {
      found = found || inner->inherits(className);
    }
    EXPECT_TRUE(found) << "the toolkit makes no " << className;
  }

  QDialog form;
  Widget* const widget;
};

}  // namespace

TEST(QtInternal, NamesOfTheToolkit) {
  QDialog form;
  for (const char* const name : {"qt_anything", "_q_anything", "__qt__anything"}) {
    add<QLabel>(form, name);
  }
  add<QLabel>(form, "qtfoo");
  add<QLabel>(form, "Qt_foo");
  EXPECT_THAT(controls(form), ElementsAre("qtfoo", "Qt_foo"));
}

TEST(QtInternal, WhatTheApplicationPutIntoAnInternalWidgetIsAControl) {
  QDialog form;
  add<QLabel>(*add<QFrame>(form, "qt_frame"), "label");
  EXPECT_THAT(controls(form), ElementsAre("label"));
}

TEST(QtInternal, ViewportAndScrollBars) {
  Holder<QScrollArea> holder;
  holder.has<QScrollBar>("QScrollBar");
  EXPECT_THAT(holder.seen(), ElementsAre("outer"));
}

TEST(QtInternal, ViewportThatTheApplicationSet) {
  Holder<QScrollArea> holder;
  auto* const viewport = new QWidget;
  viewport->setObjectName("viewport");
  holder.widget->setViewport(viewport);
  EXPECT_THAT(holder.seen(), ElementsAre("outer"));
}

TEST(QtInternal, ScrollBarsThatTheApplicationSetOnAScrollArea) {
  Holder<QScrollArea> holder;
  auto* const bar = new QScrollBar;
  bar->setObjectName("bar");
  holder.widget->setVerticalScrollBar(bar);
  EXPECT_THAT(holder.seen(), ElementsAre("outer"));
}

TEST(QtInternal, NotAScrollBarOfTheApplication) {
  Holder<QFrame> holder;
  add<QScrollBar>(*holder.widget, "bar");
  EXPECT_THAT(holder.seen(), ElementsAre("outer", "outer/bar"));
}

TEST(QtInternal, NotTheCornerWidgetOfTheApplication) {
  Holder<QScrollArea> holder;
  auto* const corner = new QLabel;
  corner->setObjectName("corner");
  holder.widget->setCornerWidget(corner);
  EXPECT_THAT(holder.seen(), ElementsAre("outer", "outer/corner"));
}

TEST(QtInternal, TextEdits) {
  EXPECT_THAT(Holder<QTextEdit>().seen(), ElementsAre("outer"));
  EXPECT_THAT(Holder<QPlainTextEdit>().seen(), ElementsAre("outer"));
  EXPECT_THAT(Holder<QGraphicsView>().seen(), ElementsAre("outer"));
}

TEST(QtInternal, HeadersAndCornerButtonOfATable) {
  Holder<QTableWidget> holder;
  holder.has<QAbstractButton>("QTableCornerButton");
  holder.widget->horizontalHeader()->setObjectName("header");
  holder.widget->findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly)->setObjectName("corner");
  EXPECT_THAT(holder.seen(), ElementsAre("outer"));
}

TEST(QtInternal, HeaderOfATree) {
  EXPECT_THAT(Holder<QTreeWidget>().seen(), ElementsAre("outer"));
}

TEST(QtInternal, ColumnsOfAColumnView) {
  Holder<QColumnView> holder;
  QStringListModel model({"a", "b"});
  holder.widget->setModel(&model);
  EXPECT_THAT(holder.seen(), ElementsAre("outer"));
}

TEST(QtInternal, NamelessWidgetsInAnItemView) {
  Holder<QTableWidget> holder;
  holder.widget->setRowCount(1);
  holder.widget->setColumnCount(2);
  auto* const cell = new QFrame;
  new QLabel(cell);
  add<QLabel>(*cell, "inner");
  holder.widget->setCellWidget(0, 0, cell);
  auto* const named = new QLabel;
  named->setObjectName("named");
  holder.widget->setCellWidget(0, 1, named);
  EXPECT_THAT(holder.seen(), testing::UnorderedElementsAre("outer", "outer/inner", "outer/named"));
}

TEST(QtInternal, EditorOfAnItem) {
  Holder<QTableWidget> holder;
  holder.widget->setRowCount(1);
  holder.widget->setColumnCount(1);
  holder.widget->setItem(0, 0, new QTableWidgetItem("x"));
  holder.show();
  holder.widget->editItem(holder.widget->item(0, 0));
  ASSERT_FALSE(holder.widget->findChildren<QLineEdit*>().isEmpty());
  EXPECT_THAT(holder.seen(), ElementsAre("outer"));
}

TEST(QtInternal, LineEditAndPopUpOfAComboBox) {
  Holder<QComboBox> holder;
  holder.widget->setEditable(true);
  holder.widget->addItem("x");
  holder.widget->lineEdit()->setObjectName("edit");
  holder.show();
  holder.widget->showPopup();
  holder.has<QFrame>("QComboBoxPrivateContainer");
  EXPECT_THAT(holder.seen(), ElementsAre("outer"));
  holder.widget->hidePopup();
}

TEST(QtInternal, LineEditOfSpinBoxes) {
  EXPECT_THAT(Holder<QSpinBox>().seen(), ElementsAre("outer"));
  EXPECT_THAT(Holder<QDoubleSpinBox>().seen(), ElementsAre("outer"));
  EXPECT_THAT(Holder<QDateTimeEdit>().seen(), ElementsAre("outer"));
}

TEST(QtInternal, LineEditThatTheApplicationGaveASpinBox) {
  class Spin : public QSpinBox {
   public:
    using QSpinBox::QSpinBox;
    using QSpinBox::setLineEdit;
  };
  Holder<Spin> holder;
  auto* const edit = new QLineEdit;
  edit->setObjectName("edit");
  holder.widget->setLineEdit(edit);
  EXPECT_THAT(holder.seen(), ElementsAre("outer"));
}

TEST(QtInternal, CalendarPopUpOfADateEdit) {
  Holder<QDateEdit> holder;
  holder.widget->setCalendarPopup(true);
  holder.show();
  QStyleOptionSpinBox option;
  option.initFrom(holder.widget);
  QTest::mouseClick(holder.widget, Qt::LeftButton, {}, QPoint(holder.widget->width() - 4, 8));
  EXPECT_THAT(holder.seen(), ElementsAre("outer"));
}

TEST(QtInternal, EverythingInACalendar) {
  Holder<QCalendarWidget> holder;
  holder.has<QMenu>("QMenu");
  EXPECT_THAT(holder.seen(), ElementsAre("outer"));
}

TEST(QtInternal, KeySequenceEdit) {
  EXPECT_THAT(Holder<QKeySequenceEdit>().seen(), ElementsAre("outer"));
}

TEST(QtInternal, FontComboBox) {
  EXPECT_THAT(Holder<QFontComboBox>().seen(), ElementsAre("outer"));
}

TEST(QtInternal, ButtonsInALineEdit) {
  Holder<QLineEdit> holder;
  holder.widget->setClearButtonEnabled(true);
  holder.widget->addAction(QIcon(), QLineEdit::LeadingPosition)->setObjectName("lead");
  holder.has<QToolButton>("QLineEditIconButton");
  EXPECT_THAT(holder.seen(), ElementsAre("outer", "lead"));
}

TEST(QtInternal, StackAndTabBarOfATabWidget) {
  class Tabs : public QTabWidget {
   public:
    using QTabWidget::QTabWidget;
    using QTabWidget::setTabBar;
  };
  Holder<Tabs> holder;
  auto* const bar = new QTabBar;
  bar->setObjectName("bar");
  holder.widget->setTabBar(bar);
  holder.widget->addTab(add<QWidget>(holder.form, "page"), "t");
  EXPECT_THAT(holder.seen(), ElementsAre("outer", "outer/page"));
}

TEST(QtInternal, ArrowsAndCloseButtonsOfATabBar) {
  Holder<QTabBar> holder;
  holder.widget->setTabsClosable(true);
  for (int i = 0; i < 30; ++i) {
    holder.widget->addTab("a long tab");
  }
  holder.has<QAbstractButton>("CloseButton");
  holder.has<QToolButton>("QToolButton");
  EXPECT_THAT(holder.seen(), ElementsAre("outer"));
}

TEST(QtInternal, NotTheWidgetsThatTheApplicationPutsOnTabsAndCorners) {
  Holder<QTabWidget> holder;
  holder.widget->addTab(add<QWidget>(holder.form, "page"), "t");
  auto* const onTab = new QToolButton;
  onTab->setObjectName("onTab");
  holder.widget->tabBar()->setTabButton(0, QTabBar::RightSide, onTab);
  auto* const corner = new QToolButton;
  corner->setObjectName("corner");
  holder.widget->setCornerWidget(corner);
  EXPECT_THAT(holder.seen(), ElementsAre("outer", "outer/page", "outer/onTab", "outer/corner"));
}

TEST(QtInternal, ButtonsAndScrollAreasOfAToolBox) {
  Holder<QToolBox> holder;
  auto* const page = new QScrollArea;
  page->setObjectName("page");
  holder.widget->addItem(page, "t");
  holder.has<QAbstractButton>("QToolBoxButton");
  EXPECT_THAT(holder.seen(), ElementsAre("outer", "outer/page"));
}

TEST(QtInternal, HandlesOfASplitter) {
  Holder<QSplitter> holder;
  holder.widget->addWidget(add<QLabel>(holder.form, "a"));
  holder.widget->addWidget(add<QLabel>(holder.form, "b"));
  EXPECT_THAT(holder.seen(), ElementsAre("outer", "outer/a", "outer/b"));
}

TEST(QtInternal, ButtonsAndSeparatorsOfAToolBar) {
  Holder<QToolBar> holder;
  for (int i = 0; i < 30; ++i) {
    holder.widget->addAction(add<QAction>(holder.form, "action"));
  }
  holder.widget->addSeparator();
  holder.has<QToolButton>("QToolBarExtension");
  holder.has<QWidget>("QToolBarSeparator");
  const std::vector<std::string> seen = holder.seen();
  EXPECT_EQ(seen.size(), 31U);
  EXPECT_EQ(seen.front(), "outer");
  EXPECT_EQ(seen.back(), "action(29)");
}

TEST(QtInternal, ExtensionOfAMenuBar) {
  Holder<QMenuBar> holder;
  for (int i = 0; i < 20; ++i) {
    holder.widget->addMenu("a long title")->setObjectName("menu");
  }
  holder.form.resize(100, 100);
  holder.widget->resize(100, 30);
  const std::vector<std::string> seen = holder.seen();
  ASSERT_TRUE(holder.widget->findChild<QToolButton*>("qt_menubar_ext_button")->menu() != nullptr);
  EXPECT_EQ(seen.size(), 21U);
  EXPECT_EQ(seen.back(), "menu(19)");
}

TEST(QtInternal, TornOffMenu) {
  Holder<QFrame> holder;
  auto* const menu = add<QMenu>(*holder.widget, "menu");
  menu->setTearOffEnabled(true);
  menu->addAction("x")->setObjectName("x");
  menu->showTearOffMenu();
  ASSERT_TRUE(menu->isTearOffMenuVisible());
  EXPECT_THAT(holder.seen(), ElementsAre("outer", "menu", "x"));
}

TEST(QtInternal, GripAndRubberBandAndFocusFrame) {
  Holder<QStatusBar> holder;
  add<QSizeGrip>(*holder.widget, "grip");
  new QRubberBand(QRubberBand::Line, holder.widget);
  new QFocusFrame(holder.widget);
  holder.form.setSizeGripEnabled(true);
  EXPECT_THAT(holder.seen(), ElementsAre("outer"));
}

TEST(QtInternal, ToolTipThatIsShown) {
  Holder<QLabel> holder;
  holder.show();
  QToolTip::showText(holder.widget->mapToGlobal(QPoint(1, 1)), "tip", holder.widget);
  EXPECT_THAT(holder.seen(), ElementsAre("outer"));
  QToolTip::hideText();
}

TEST(QtInternal, ContextMenuOfAnEditField) {
  Holder<QLineEdit> holder;
  const std::unique_ptr<QMenu> menu(holder.widget->createStandardContextMenu());
  menu->setParent(holder.widget);
  EXPECT_THAT(holder.seen(), ElementsAre("outer"));
}

TEST(QtInternal, TitleButtonsOfADock) {
  QMainWindow form;
  auto* const dock = add<QDockWidget>(form, "dock");
  dock->setWidget(add<QLabel>(form, "label"));
  form.addDockWidget(Qt::LeftDockWidgetArea, dock);
  form.show();
  EXPECT_THAT(controls(form), ElementsAre("dock", "dock/label"));
}

TEST(QtInternal, TabBarOfTabbedDocks) {
  QMainWindow form;
  auto* const one = add<QDockWidget>(form, "one");
  auto* const two = add<QDockWidget>(form, "two");
  form.addDockWidget(Qt::LeftDockWidgetArea, one);
  form.addDockWidget(Qt::LeftDockWidgetArea, two);
  form.tabifyDockWidget(one, two);
  form.show();
  QApplication::processEvents();
  ASSERT_FALSE(form.findChildren<QTabBar*>().isEmpty());
  EXPECT_THAT(controls(form), testing::UnorderedElementsAre("one", "two"));
}

TEST(QtInternal, NotATabBarThatIsTheCentralWidget) {
  QMainWindow form;
  auto* const bar = new QTabBar;
  bar->addTab("x");
  form.setCentralWidget(bar);
  EXPECT_THAT(controls(form), ElementsAre("QTabBar"));
}

TEST(QtInternal, TabBarAndSystemMenusOfAnMdiArea) {
  Holder<QMdiArea> holder;
  holder.widget->setViewMode(QMdiArea::TabbedView);
  auto* const sub = holder.widget->addSubWindow(add<QLabel>(holder.form, "label"));
  sub->setObjectName("sub");
  holder.show();
  ASSERT_FALSE(holder.widget->findChildren<QTabBar*>().isEmpty());
  ASSERT_NE(sub->systemMenu(), nullptr);
  EXPECT_THAT(holder.seen(), ElementsAre("outer", "outer/sub", "outer/sub/label"));
}

TEST(QtInternal, ButtonsOfAMaximisedSubWindowInTheMenuBar) {
  QMainWindow form;
  form.menuBar()->setObjectName("bar");
  form.menuBar()->setNativeMenuBar(false);
  auto* const area = new QMdiArea;
  area->setObjectName("area");
  form.setCentralWidget(area);
  auto* const sub = area->addSubWindow(new QWidget);
  sub->setObjectName("sub");
  sub->widget()->setObjectName("inner");
  form.resize(400, 300);
  form.show();
  sub->showMaximized();
  QApplication::processEvents();
  EXPECT_THAT(controls(form), testing::UnorderedElementsAre("bar", "area", "area/sub", "area/sub/inner"));
}

TEST(QtInternal, FramesAndButtonsOfAWizard) {
  for (const QWizard::WizardStyle style : {QWizard::ClassicStyle, QWizard::ModernStyle, QWizard::AeroStyle}) {
    QWizard form;
    form.setWizardStyle(style);
    form.setPixmap(QWizard::WatermarkPixmap, QPixmap(10, 10));
    form.setOption(QWizard::HaveHelpButton);
    auto* const page = add<QWizardPage>(form, "page");
    page->setTitle("Title");
    new QLabel(page);
    form.addPage(page);
    form.show();
    EXPECT_THAT(controls(form), ElementsAre("page", "page/QLabel")) << style;
  }
}

}  // namespace kob::qt::test
