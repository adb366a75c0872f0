// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Forms.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QAction>
#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QMenu>

#include <gmock/gmock.h>

namespace kob::qt::test {

using testing::ElementsAre;

TEST(QtIndex, ControlOfAUniqueNameHasNone) {
  QDialog form;
  add<QLabel>(form, "label");
  EXPECT_FALSE(onlyControl(form)->get(Property::Index).has_value());
}

TEST(QtIndex, EqualNamesAreNumberedInTreeOrder) {
  QDialog form;
  add<QLabel>(form, "cmd");
  add<QLabel>(form, "other");
  add<QLabel>(form, "cmd");
  EXPECT_THAT(controls(form), ElementsAre("cmd(0)", "other", "cmd(1)"));
}

TEST(QtIndex, NamesAreComparedIgnoringCase) {
  QDialog form;
  form.setObjectName("form");
  for (const char* const name : {"Été", "éTÉ", "ete"}) {
    add<QLabel>(form, name);
  }
  EXPECT_THAT(controls(form), ElementsAre("Été(0)", "éTÉ(1)", "ete"));
}

TEST(QtIndex, SameNameInAnotherContainerIsAnotherPath) {
  QDialog form;
  add<QLabel>(*add<QFrame>(form, "a"), "cmd");
  add<QLabel>(*add<QFrame>(form, "b"), "cmd");
  EXPECT_THAT(controls(form), ElementsAre("a", "a/cmd", "b", "b/cmd"));
}

TEST(QtIndex, InternalWidgetsInBetweenDoNotSeparatePaths) {
  QDialog form;
  auto* const between = add<QFrame>(form, "qt_between");
  add<QLabel>(*between, "cmd");
  add<QLabel>(form, "cmd");
  EXPECT_THAT(controls(form), ElementsAre("cmd(0)", "cmd(1)"));
}

TEST(QtIndex, WidgetsActionsAndMenusOfTheFormAreNumberedTogether) {
  QDialog form;
  add<QLabel>(form, "save");
  add<QAction>(form, "Save");
  add<QMenu>(*add<QFrame>(form, "frame"), "SAVE");
  EXPECT_THAT(controls(form), ElementsAre("save(0)", "Save(1)", "frame", "SAVE(2)"));
}

TEST(QtIndex, NamelessControlsOfAClassAreNumbered) {
  QDialog form;
  new QLabel(&form);
  new QFrame(&form);
  new QLabel(&form);
  EXPECT_THAT(controls(form), ElementsAre("QLabel(0)", "QFrame", "QLabel(1)"));
}

TEST(QtIndex, OneThatTheApplicationSetIsAnsweredAsItIs) {
  QDialog form;
  add<QLabel>(form, "cmd")->setProperty("Index", 7);
  EXPECT_EQ(number(onlyControl(form), Property::Index), 7);
  EXPECT_THAT(controls(form), ElementsAre("cmd(7)"));
}

TEST(QtIndex, OneThatTheApplicationSetAsATextCounts) {
  QDialog form;
  add<QLabel>(form, "cmd")->setProperty("Index", QStringLiteral(" 3 "));
  EXPECT_THAT(controls(form), ElementsAre("cmd(3)"));
}

TEST(QtIndex, OneThatTheApplicationSetWinsAndIsNotGivenTwice) {
  QDialog form;
  add<QLabel>(form, "cmd");
  add<QLabel>(form, "cmd")->setProperty("Index", 0);
  add<QLabel>(form, "cmd");
  EXPECT_THAT(controls(form), ElementsAre("cmd(1)", "cmd(0)", "cmd(2)"));
}

TEST(QtIndex, ControlLeftAloneByTheApplicationsArrayNeedsNone) {
  QDialog form;
  add<QLabel>(form, "cmd")->setProperty("Index", 0);
  add<QLabel>(form, "cmd");
  EXPECT_THAT(controls(form), ElementsAre("cmd(0)", "cmd"));
}

TEST(QtIndex, GivenNumbersStayClearOfANameThatReadsTheSame) {
  QDialog form;
  add<QLabel>(form, "cmd");
  add<QLabel>(form, "CMD(0)");
  add<QLabel>(form, "cmd");
  EXPECT_THAT(controls(form), ElementsAre("cmd(1)", "CMD(0)", "cmd(2)"));
}

TEST(QtIndex, IndexThatCannotStandInAPathDoesNotKeepEqualNamesTogether) {
  QDialog form;
  add<QLabel>(form, "cmd")->setProperty("Index", -1);
  add<QLabel>(form, "cmd")->setProperty("Index", QStringLiteral("x"));
  EXPECT_THAT(controls(form), ElementsAre("cmd(0)", "cmd(1)"));
}

TEST(QtIndex, IsGivenAnewEachTimeControlsIsRead) {
  QDialog form;
  add<QLabel>(form, "cmd");
  EXPECT_THAT(controls(form), ElementsAre("cmd"));
  auto* const second = add<QLabel>(form, "cmd");
  EXPECT_THAT(controls(form), ElementsAre("cmd(0)", "cmd(1)"));
  delete second;
  EXPECT_THAT(controls(form), ElementsAre("cmd"));
}

TEST(QtIndex, IsNotWrittenToTheWidget) {
  QDialog form;
  auto* const label = add<QLabel>(form, "cmd");
  add<QLabel>(form, "cmd");
  controls(form);
  EXPECT_TRUE(label->dynamicPropertyNames().isEmpty());
}

}  // namespace kob::qt::test
