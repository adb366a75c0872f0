// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Forms.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QAction>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QTabWidget>
#include <QToolBar>

#include <gmock/gmock.h>

namespace kob::qt::test {

namespace {

/// A form with a control of each kind that has members or stands in another way than by its Container.
class QtShortcut : public ::testing::Test {
 protected:
  QtShortcut() {
    add<QLabel>(form, "label");
    add<QMenu>(form, "menu");
    add<QAction>(form, "action");
    add<QLabel>(*add<QGroupBox>(form, "box"), "inside");
    add<QTabWidget>(form, "tabs");
    add<QToolBar>(form, "bar");
  }

  std::vector<HostRef> controls() { return members(hostForm(&form), Property::Controls); }

  QDialog form;
};

}  // namespace

TEST_F(QtShortcut, AnObjectWithoutATagTellsItsPlaceAtOnce) {
  add<QLabel>(form, "same");
  add<QLabel>(form, "Same");
  for (const HostRef& member : controls()) {
    PlainPlace place;
    ASSERT_TRUE(member->tellPlace(place)) << text(member, Property::Name);
    const std::optional<std::int32_t> index = number(member, Property::Index);
    EXPECT_EQ(toUtf8(place.name),
              text(member, Property::Name) + (index ? "(" + std::to_string(*index) + ")" : std::string()));
    EXPECT_EQ(*place.container, object(member, place.link));
  }
}

TEST_F(QtShortcut, AnObjectWithATagOrAnIndexOfItsOwnIsAsked) {
  for (const char* const name : {"tag", "Index", "other"}) {
    QDialog plain;
    add<QLabel>(plain, "label")->setProperty(name, 0);
    PlainPlace place;
    EXPECT_EQ(onlyControl(plain)->tellPlace(place), name == std::string("other")) << name;
  }
}

TEST_F(QtShortcut, AFormStandsNowhere) {
  PlainPlace place;
  EXPECT_FALSE(hostForm(&form)->tellPlace(place));
}

TEST_F(QtShortcut, WhatAnObjectSaysThatItLacksItDoesNotAnswer) {
  std::vector<HostRef> objects = controls();
  objects.push_back(hostForm(&form));
  for (const HostRef& each : objects) {
    for (int i = 0; i < propertyCount; ++i) {
      const auto property = static_cast<Property>(i);
      EXPECT_TRUE(each->mayHave(property) || !each->get(property)) << text(each, Property::Name) << ' ' << i;
    }
  }
}

TEST_F(QtShortcut, FetchingIsNotNoticedAndAnObjectThatIsGoneIsPassedOver) {
  std::vector<HostRef> objects = controls();
  objects.push_back(hostForm(&form));
  const std::vector<HostRef> label = {objects.front()};
  delete form.findChild<QLabel*>("label");
  for (const HostRef& each : objects) {
    each->fetch();
  }
  EXPECT_FALSE(label.front()->get(Property::Name));
}

}  // namespace kob::qt::test
