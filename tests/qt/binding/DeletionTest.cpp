// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Forms.h"

#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraductionqt/KOBTraductionQt.h>

#include <QDialog>
#include <QDynamicPropertyChangeEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QPointer>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>

#include <gmock/gmock.h>

#include <memory>
#include <vector>

namespace kob::qt::test {

namespace {

void expectFailing(const HostRef& object) {
  for (int i = 0; i < propertyCount; ++i) {
    const auto property = static_cast<Property>(i);
    EXPECT_FALSE(object->get(property).has_value()) << i;
    EXPECT_FALSE(object->set(property, Value(0))) << i;
    EXPECT_FALSE(object->getIndexed(property, 1).has_value()) << i;
    EXPECT_FALSE(object->setIndexed(property, 0, Value(u"x"))) << i;
  }
  EXPECT_FALSE(object->item(1).has_value());
  EXPECT_FALSE(object->enumerate().has_value());
  EXPECT_NE(object->identity(), nullptr);
}

class SilentBoxes : public MessageBoxes {
 public:
  SilentBoxes() : previous_(Global_Util::setMessageBoxes(this)) {}
  ~SilentBoxes() override { Global_Util::setMessageBoxes(previous_); }
  void notice(TextView, TextView, MessageIcon) override {}
  bool question(TextView, TextView, MessageIcon) override { return false; }

 private:
  MessageBoxes* previous_;
};

// Deletes a widget in the middle of a walk: when another one's tag is blanked.
class Deleter : public QObject {
 public:
  Deleter(QObject& watched, QObject* victim) : victim_(victim) { watched.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::DynamicPropertyChange) {
      delete victim_.data();
    }
    return false;
  }

 private:
  QPointer<QObject> victim_;
};

}  // namespace

TEST(QtDeleted, EveryKindOfObjectFails) {
  auto form = std::make_unique<QMainWindow>();
  add<QLabel>(*form, "label");
  add<QAction>(*form, "action");
  add<QMenu>(*form, "menu");
  add<QTabWidget>(*form, "tabs")->addTab(new QWidget, "t");
  auto* const bar = add<QToolBar>(*form, "bar");
  auto* const button = new QToolButton;
  auto* const menu = new QMenu(button);
  menu->addAction("entry");
  button->setMenu(menu);
  bar->addWidget(button);
  const HostRef host = hostForm(form.get());
  std::vector<HostRef> objects = members(host, Property::Controls);
  ASSERT_GE(objects.size(), 5U);
  const HostRef hostButton = members(control(*form, "bar"), Property::Buttons).at(0);
  objects.push_back(members(hostButton, Property::ButtonMenus).at(0));
  objects.push_back(hostButton);
  objects.push_back(host);
  form.reset();
  for (const HostRef& object : objects) {
    expectFailing(object);
  }
}

TEST(QtDeleted, OneControlFailsAndTheOthersStay) {
  QDialog form;
  auto* const first = add<QLabel>(form, "first");
  add<QLabel>(form, "second");
  const std::vector<HostRef> objects = members(hostForm(&form), Property::Controls);
  delete first;
  expectFailing(objects.at(0));
  EXPECT_EQ(text(objects.at(1), Property::Name), "second");
}

TEST(QtDeleted, AnyControlOutlivesTheListOfAll) {
  QWidget form;
  for (int i = 0; i < 200; ++i) {
    (new QLabel(&form))->setObjectName("lbl" + QString::number(i));
  }
  std::vector<HostRef> kept;
  {
    const std::vector<HostRef> all = *(*hostForm(&form)->get(Property::Controls)->asObject())->enumerate();
    kept = {all.front(), all[40], all.back()};
  }
  const std::vector<HostRef> again = *(*hostForm(&form)->get(Property::Controls)->asObject())->enumerate();
  EXPECT_EQ(*kept[0]->get(Property::Name)->asText(), u"lbl0");
  EXPECT_EQ(*kept[1]->get(Property::Name)->asText(), u"lbl40");
  EXPECT_EQ(*kept[2]->get(Property::Name)->asText(), u"lbl199");
  EXPECT_EQ(kept[1]->identity(), again[40]->identity());
}

TEST(QtDeleted, ChosenTabThatIsGoneFails) {
  QDialog form;
  auto* const tabs = add<QTabWidget>(form, "tabs");
  tabs->addTab(new QWidget, "One");
  tabs->addTab(new QWidget, "Two");
  const HostRef host = control(form, "tabs");
  ASSERT_TRUE(host->set(Property::Tab, Value(1)));
  tabs->removeTab(1);
  EXPECT_EQ(text(host, Property::Caption), failed);
  EXPECT_EQ(text(host, Property::ToolTipText), "");
  EXPECT_FALSE(write(host, Property::Caption, "x"));
}

TEST(QtDeleted, WidgetThatVanishesDuringTheWalkEndsNeitherTheWalkNorTheApplication) {
  const SilentBoxes boxes;
  QDialog form;
  form.setObjectName("form");
  auto* const first = add<QLabel>(form, "first");
  auto* const frame = add<QFrame>(form, "frame");
  add<QLabel>(*frame, "inside")->setText("inside");
  auto* const last = add<QLabel>(form, "last");
  first->setText("first");
  last->setText("last");
  KOBModeleTraduction model;
  model.UpdateWithForm(hostForm(&form));
  model.UpdateTestLangue(2);
  first->setProperty("tag", "context");
  const Deleter deleter(*first, frame);
  model.TraduitDialog(hostForm(&form), 2);
  EXPECT_EQ(form.findChild<QFrame*>("frame"), nullptr);
  EXPECT_NE(last->text(), QStringLiteral("last"));
}

}  // namespace kob::qt::test
