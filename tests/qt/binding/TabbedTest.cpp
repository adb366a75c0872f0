// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Forms.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QDialog>
#include <QLabel>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBox>

#include <gmock/gmock.h>

namespace kob::qt::test {

namespace {

QString tabText(const QTabWidget& tabs, int tab) {
  return tabs.tabText(tab);
}
QString tabText(const QTabBar& tabs, int tab) {
  return tabs.tabText(tab);
}
QString tabText(const QToolBox& tabs, int tab) {
  return tabs.itemText(tab);
}
QString tabToolTip(const QTabWidget& tabs, int tab) {
  return tabs.tabToolTip(tab);
}
QString tabToolTip(const QTabBar& tabs, int tab) {
  return tabs.tabToolTip(tab);
}
QString tabToolTip(const QToolBox& tabs, int tab) {
  return tabs.itemToolTip(tab);
}

void addTab(QTabWidget& tabs, const QString& label, const QString& tip) {
  tabs.setTabToolTip(tabs.addTab(new QWidget, label), tip);
}
void addTab(QTabBar& tabs, const QString& label, const QString& tip) {
  tabs.setTabToolTip(tabs.addTab(label), tip);
}
void addTab(QToolBox& tabs, const QString& label, const QString& tip) {
  tabs.setItemToolTip(tabs.addItem(new QWidget, label), tip);
}

template <class Tabs>
class QtTabbed : public testing::Test {
 protected:
  QtTabbed() : tabs(add<Tabs>(form, "tabs")) {}

  void fill() {
    addTab(*tabs, "One", "first");
    addTab(*tabs, "Two", "second");
    addTab(*tabs, "Three", "third");
    tabs->setCurrentIndex(1);
  }
  HostRef host() { return control(form, "tabs"); }

  QDialog form;
  Tabs* const tabs;
};

using TabbedKinds = testing::Types<QTabWidget, QTabBar, QToolBox>;
TYPED_TEST_SUITE(QtTabbed, TabbedKinds);

}  // namespace

TYPED_TEST(QtTabbed, TabsCountsAndTabIsTheCurrentOne) {
  this->fill();
  EXPECT_EQ(number(this->host(), Property::Tabs), 3);
  EXPECT_EQ(number(this->host(), Property::Tab), 1);
}

TYPED_TEST(QtTabbed, CaptionAndToolTipAreThoseOfTheCurrentTab) {
  this->fill();
  const HostRef host = this->host();
  EXPECT_EQ(text(host, Property::Caption), "Two");
  EXPECT_EQ(text(host, Property::ToolTipText), "second");
  EXPECT_TRUE(write(host, Property::Caption, "Deux"));
  EXPECT_TRUE(write(host, Property::ToolTipText, "tip"));
  EXPECT_EQ(tabText(*this->tabs, 1), QStringLiteral("Deux"));
  EXPECT_EQ(tabToolTip(*this->tabs, 1), QStringLiteral("tip"));
}

TYPED_TEST(QtTabbed, SettingTabChoosesWithoutTheApplicationNoticing) {
  this->fill();
  const QSignalSpy changed(this->tabs, SIGNAL(currentChanged(int)));
  const HostRef host = this->host();
  EXPECT_TRUE(host->set(Property::Tab, Value(2)));
  EXPECT_EQ(number(host, Property::Tab), 2);
  EXPECT_EQ(text(host, Property::Caption), "Three");
  EXPECT_EQ(text(host, Property::ToolTipText), "third");
  EXPECT_EQ(this->tabs->currentIndex(), 1);
  EXPECT_EQ(changed.count(), 0);
}

TYPED_TEST(QtTabbed, ChoosingTheShownTabAgainFollowsTheUser) {
  this->fill();
  const HostRef host = this->host();
  EXPECT_TRUE(host->set(Property::Tab, Value(2)));
  EXPECT_TRUE(host->set(Property::Tab, Value(1)));
  this->tabs->setCurrentIndex(0);
  EXPECT_EQ(text(host, Property::Caption), "One");
}

TYPED_TEST(QtTabbed, TabOutsideIsRefused) {
  this->fill();
  const HostRef host = this->host();
  EXPECT_FALSE(host->set(Property::Tab, Value(3)));
  EXPECT_FALSE(host->set(Property::Tab, Value(-1)));
  EXPECT_EQ(text(host, Property::Caption), "Two");
}

TYPED_TEST(QtTabbed, TabCaptionIsReadAndWrittenByTheToolkitsNumber) {
  this->fill();
  const HostRef host = this->host();
  EXPECT_EQ(host->getIndexed(Property::TabCaption, 0)->asText(), Text(u"One"));
  EXPECT_TRUE(host->setIndexed(Property::TabCaption, 2, Value(u"Trois")));
  EXPECT_EQ(tabText(*this->tabs, 2), QStringLiteral("Trois"));
  EXPECT_TRUE(host->setIndexed(Property::TabCaption, 0, Value(u"")));
  EXPECT_EQ(tabText(*this->tabs, 0), QString());
  EXPECT_FALSE(host->setIndexed(Property::TabCaption, 3, Value(u"x")));
  EXPECT_FALSE(host->getIndexed(Property::TabCaption, -1).has_value());
  EXPECT_EQ(this->tabs->currentIndex(), 1);
}

TYPED_TEST(QtTabbed, WithoutTabsStillAnswersAToolTip) {
  const HostRef host = this->host();
  EXPECT_EQ(number(host, Property::Tabs), 0);
  EXPECT_EQ(text(host, Property::ToolTipText), "");
  EXPECT_EQ(text(host, Property::Caption), failed);
  EXPECT_FALSE(write(host, Property::Caption, "x"));
}

TYPED_TEST(QtTabbed, HasLeftAndWidthOfTheWidget) {
  this->fill();
  this->tabs->setGeometry(5, 6, 70, 80);
  EXPECT_EQ(number(this->host(), Property::Left), 5);
  EXPECT_EQ(number(this->host(), Property::Width), 70);
}

TEST(QtTabbedKinds, OthersHaveNoTabs) {
  QDialog form;
  add<QLabel>(form, "label");
  EXPECT_FALSE(onlyControl(form)->get(Property::Tabs).has_value());
  EXPECT_FALSE(onlyControl(form)->get(Property::Tab).has_value());
  EXPECT_FALSE(onlyControl(form)->set(Property::Tab, Value(0)));
  EXPECT_FALSE(onlyControl(form)->setIndexed(Property::TabCaption, 0, Value(u"x")));
}

}  // namespace kob::qt::test
