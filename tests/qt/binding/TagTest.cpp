// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Forms.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QAction>
#include <QDialog>
#include <QDynamicPropertyChangeEvent>
#include <QLabel>
#include <QMenu>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>

#include <gmock/gmock.h>

namespace kob::qt::test {

namespace {

class PropertyEvents : public QObject {
 public:
  explicit PropertyEvents(QObject& watched) { watched.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == QEvent::DynamicPropertyChange ? 1 : 0;
    return false;
  }
  int count = 0;
};

}  // namespace

TEST(QtTag, EveryObjectAnswersOne) {
  QDialog form;
  add<QLabel>(form, "label");
  add<QAction>(form, "action");
  add<QMenu>(form, "menu");
  add<QTabWidget>(form, "tabs")->addTab(new QWidget, "t");
  auto* const bar = add<QToolBar>(form, "bar");
  auto* const button = new QToolButton;
  auto* const menu = new QMenu(button);
  menu->addAction("entry");
  button->setMenu(menu);
  bar->addWidget(button);
  EXPECT_EQ(text(hostForm(&form), Property::Tag), "");
  for (const HostRef& member : members(hostForm(&form), Property::Controls)) {
    EXPECT_EQ(text(member, Property::Tag), "") << text(member, Property::Name);
  }
  const HostRef hostButton = members(control(form, "bar"), Property::Buttons).at(0);
  EXPECT_EQ(text(hostButton, Property::Tag), "");
  EXPECT_EQ(text(members(hostButton, Property::ButtonMenus).at(0), Property::Tag), "");
}

TEST(QtTag, IsTheDynamicPropertyOfThatName) {
  QDialog form;
  auto* const label = add<QLabel>(form, "label");
  label->setProperty("tag", "Vente[C]");
  EXPECT_EQ(text(onlyControl(form), Property::Tag), "Vente[C]");
  EXPECT_TRUE(write(onlyControl(form), Property::Tag, "other"));
  EXPECT_EQ(label->property("tag"), QVariant("other"));
}

TEST(QtTag, BlankingAMissingOneCreatesNothingAndSendsNothing) {
  QDialog form;
  auto* const label = add<QLabel>(form, "label");
  label->setProperty("unrelated", 1);
  const PropertyEvents events(*label);
  EXPECT_TRUE(write(onlyControl(form), Property::Tag, ""));
  EXPECT_EQ(label->dynamicPropertyNames(), QList<QByteArray>{"unrelated"});
  EXPECT_EQ(events.count, 0);
}

TEST(QtTag, WritingTheTextThatItHasSendsNothing) {
  QDialog form;
  auto* const label = add<QLabel>(form, "label");
  label->setProperty("tag", "x");
  const PropertyEvents events(*label);
  EXPECT_TRUE(write(onlyControl(form), Property::Tag, "x"));
  EXPECT_EQ(events.count, 0);
}

TEST(QtTag, WritingAMissingOneCreatesIt) {
  QDialog form;
  auto* const label = add<QLabel>(form, "label");
  EXPECT_TRUE(write(onlyControl(form), Property::Tag, "PAS TRADUIT"));
  EXPECT_EQ(label->property("tag"), QVariant("PAS TRADUIT"));
}

TEST(QtTag, NumbersAndBooleansAreAnsweredAsWhatTheyAre) {
  QDialog form;
  auto* const label = add<QLabel>(form, "label");
  label->setProperty("tag", 12);
  EXPECT_EQ(onlyControl(form)->get(Property::Tag)->asText(), Text(u"12"));
  label->setProperty("tag", true);
  EXPECT_EQ(onlyControl(form)->get(Property::Tag)->asText(), Text(u"True"));
  label->setProperty("tag", 1.5);
  EXPECT_EQ(onlyControl(form)->get(Property::Tag)->asText(), Text(u"1.5"));
}

TEST(QtTag, NumberThatIsBlankedAndPutBackIsANumberAgain) {
  QDialog form;
  auto* const label = add<QLabel>(form, "label");
  label->setProperty("tag", 12);
  const HostRef host = onlyControl(form);
  EXPECT_TRUE(write(host, Property::Tag, ""));
  EXPECT_EQ(text(host, Property::Tag), "");
  EXPECT_TRUE(write(host, Property::Tag, "12"));
  EXPECT_EQ(label->property("tag").typeId(), QMetaType::Int);
  EXPECT_EQ(label->property("tag").toInt(), 12);
}

TEST(QtTag, ObjectsAreNoTag) {
  QDialog form;
  add<QLabel>(form, "label");
  EXPECT_FALSE(onlyControl(form)->set(Property::Tag, Value(hostForm(&form))));
}

}  // namespace kob::qt::test
