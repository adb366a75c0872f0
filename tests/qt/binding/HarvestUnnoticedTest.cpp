// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Forms.h"

#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraductionqt/KOBTraductionQt.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBox>
#include <QToolButton>
#include <QVBoxLayout>

#include <gmock/gmock.h>

namespace kob::qt::test {

namespace {

// Everything that reaches the form's objects while it is watched, painting aside.
class Events : public QObject {
 public:
  explicit Events(QWidget& form) {
    form.installEventFilter(this);
    for (QObject* const child : form.findChildren<QObject*>()) {
      child->installEventFilter(this);
    }
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    seen << QStringLiteral("%1: %2").arg(watched->objectName()).arg(event->type());
    return false;
  }
  QStringList seen;
};

class QtHarvest : public testing::Test {
 protected:
  QtHarvest()
      : tabs(add<QTabWidget>(form, "tabs")),
        box(add<QToolBox>(form, "box")),
        bar(add<QTabBar>(form, "bar")),
        field(add<QLineEdit>(form, "field")),
        area(add<QScrollArea>(form, "area")) {
    form.setObjectName("form");
    form.setWindowTitle("Form");
    for (int i = 0; i < 30; ++i) {
      tabs->addTab(new QLabel("page"), QStringLiteral("A long tab %1").arg(i));
      bar->addTab(QStringLiteral("Another long tab %1").arg(i));
    }
    for (int i = 0; i < 4; ++i) {
      box->addItem(new QLabel("item"), QStringLiteral("Item %1").arg(i));
    }
    auto* const content = new QLabel("content");
    content->resize(2000, 2000);
    area->setWidget(content);
    tabs->setGeometry(0, 0, 300, 100);
    bar->setGeometry(0, 100, 200, 30);
    box->setGeometry(0, 140, 300, 200);
    area->setGeometry(0, 350, 200, 100);
    field->setGeometry(0, 460, 100, 30);
    field->setPlaceholderText("placeholder");
    form.resize(400, 500);
    form.show();
    form.activateWindow();
    field->setFocus();
    tabs->setCurrentIndex(3);
    bar->setCurrentIndex(4);
    box->setCurrentIndex(1);
    area->verticalScrollBar()->setValue(40);
    QApplication::processEvents();
  }

  QDialog form;
  QTabWidget* const tabs;
  QToolBox* const box;
  QTabBar* const bar;
  QLineEdit* const field;
  QScrollArea* const area;
};

}  // namespace

TEST_F(QtHarvest, SendsNoEventAndNoSignal) {
  const QSignalSpy tabChanged(tabs, &QTabWidget::currentChanged);
  const QSignalSpy barChanged(bar, &QTabBar::currentChanged);
  const QSignalSpy boxChanged(box, &QToolBox::currentChanged);
  const Events events(form);
  KOBModeleTraduction model;
  model.UpdateWithForm(hostForm(&form));
  EXPECT_EQ(tabChanged.count() + barChanged.count() + boxChanged.count(), 0);
  EXPECT_TRUE(events.seen.isEmpty()) << events.seen.join(", ").toStdString();
  ASSERT_NE(model.GetCell(u"form\\tabs\\tabs(29)"), nullptr);
  ASSERT_NE(model.GetCell(u"form\\box\\box(3)"), nullptr);
}

TEST_F(QtHarvest, KeepsPagesFocusAndScrollPositions) {
  QWidget* const page = tabs->currentWidget();
  QWidget* const focus = form.focusWidget();
  const QRect firstTab = bar->tabRect(0);
  const QRect firstTabOfWidget = tabs->tabBar()->tabRect(0);
  ASSERT_EQ(focus, field);
  KOBModeleTraduction model;
  model.UpdateWithForm(hostForm(&form));
  QApplication::processEvents();
  EXPECT_EQ(tabs->currentIndex(), 3);
  EXPECT_EQ(tabs->currentWidget(), page);
  EXPECT_TRUE(page->isVisible());
  EXPECT_EQ(bar->currentIndex(), 4);
  EXPECT_EQ(box->currentIndex(), 1);
  EXPECT_EQ(form.focusWidget(), focus);
  EXPECT_EQ(area->verticalScrollBar()->value(), 40);
  EXPECT_EQ(bar->tabRect(0), firstTab);
  EXPECT_EQ(tabs->tabBar()->tabRect(0), firstTabOfWidget);
}

// A bar that was scrolled by its arrows shows other tabs than the current one: writing texts that are there
// already must not scroll it back.
TEST_F(QtHarvest, ApplyingTheSameTextsDoesNotScrollATabBar) {
  auto* const right = bar->findChild<QToolButton*>("ScrollRightButton");
  ASSERT_NE(right, nullptr);
  bar->setCurrentIndex(0);
  for (int i = 0; i < 5; ++i) {
    right->click();
  }
  const QRect scrolled = bar->tabRect(0);
  ASSERT_LT(scrolled.left(), 0);
  KOBModeleTraduction model;
  model.UpdateWithForm(hostForm(&form));
  model.TraduitDialog(hostForm(&form), 1);
  EXPECT_EQ(bar->tabRect(0), scrolled);
}

TEST_F(QtHarvest, ApplyingLanguageOneToAFreshFormChangesNoText) {
  KOBModeleTraduction model;
  model.UpdateWithForm(hostForm(&form));
  const Events events(form);
  model.TraduitDialog(hostForm(&form), 1);
  EXPECT_TRUE(events.seen.isEmpty()) << events.seen.join(", ").toStdString();
  EXPECT_EQ(tabs->tabText(29), QStringLiteral("A long tab 29"));
}

}  // namespace kob::qt::test
