// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Forms.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QDialog>
#include <QGroupBox>
#include <QMainWindow>
#include <QTabWidget>
#include <QWizardPage>

#include <gmock/gmock.h>

namespace kob::qt::test {

using testing::Contains;
using testing::ElementsAre;

TEST(QtForm, NullWidgetGivesNoObject) {
  EXPECT_EQ(hostForm(nullptr), nullptr);
}

TEST(QtForm, NameIsTheObjectName) {
  QDialog form;
  form.setObjectName("FrmMain");
  EXPECT_EQ(text(hostForm(&form), Property::Name), "FrmMain");
}

TEST(QtForm, CaptionIsTheWindowTitleBothWays) {
  QDialog form;
  form.setWindowTitle(QStringLiteral("Été"));
  const HostRef host = hostForm(&form);
  EXPECT_EQ(text(host, Property::Caption), "Été");
  EXPECT_TRUE(write(host, Property::Caption, QStringLiteral("Summer")));
  EXPECT_EQ(form.windowTitle(), QStringLiteral("Summer"));
}

TEST(QtForm, CaptionAndWidthAreAnsweredWithoutATitleToo) {
  QWidget form;
  form.resize(321, 200);
  EXPECT_EQ(text(hostForm(&form), Property::Caption), "");
  EXPECT_EQ(number(hostForm(&form), Property::Width), 321);
}

TEST(QtForm, ToolTipIsReadAndWritten) {
  QDialog form;
  form.setToolTip(QStringLiteral("tip"));
  const HostRef host = hostForm(&form);
  EXPECT_EQ(text(host, Property::ToolTipText), "tip");
  EXPECT_TRUE(write(host, Property::ToolTipText, QStringLiteral("other")));
  EXPECT_EQ(form.toolTip(), QStringLiteral("other"));
}

TEST(QtForm, WidthIsWrittenInPixels) {
  QDialog form;
  form.resize(300, 200);
  EXPECT_TRUE(hostForm(&form)->set(Property::Width, Value(360)));
  EXPECT_EQ(form.size(), QSize(360, 200));
}

TEST(QtForm, HasNeitherContainerNorParentEvenAsADialogOfAWindow) {
  QMainWindow window;
  QDialog form(&window);
  EXPECT_FALSE(hostForm(&form)->get(Property::Container).has_value());
  EXPECT_FALSE(hostForm(&form)->get(Property::Parent).has_value());
}

TEST(QtForm, OnlyTheFormAnswersControls) {
  QDialog form;
  auto* const frame = add<QFrame>(form, "frame");
  add<QWidget>(*frame, "inner");
  EXPECT_TRUE(hostForm(&form)->get(Property::Controls).has_value());
  for (const HostRef& member : members(hostForm(&form), Property::Controls)) {
    EXPECT_FALSE(member->get(Property::Controls).has_value());
  }
}

TEST(QtForm, ShowsTheControlsThatItHasWhenControlsIsRead) {
  QDialog form;
  const HostRef host = hostForm(&form);
  EXPECT_TRUE(members(host, Property::Controls).empty());
  add<QWidget>(form, "late");
  EXPECT_EQ(members(host, Property::Controls).size(), 1U);
}

TEST(QtForm, IsTheSameObjectByIdentityHoweverItIsReached) {
  QDialog form;
  add<QWidget>(form, "inner");
  const HostRef host = hostForm(&form);
  EXPECT_EQ(host->identity(), hostForm(&form)->identity());
  EXPECT_EQ(host->identity(), object(control(form, "inner"), Property::Container)->identity());
  EXPECT_NE(host->identity(), control(form, "inner")->identity());
}

// Forms that are no plain windows have a text besides their title, which the form itself does not answer.
TEST(QtForm, TextOfItsOwnKindIsAControlOfTheFormsName) {
  QGroupBox form(QStringLiteral("Address"));
  form.setObjectName("box");
  form.setWindowTitle(QStringLiteral("window"));
  EXPECT_EQ(text(hostForm(&form), Property::Caption), "window");
  ASSERT_THAT(controls(form), ElementsAre("box"));
  const HostRef face = control(form, "box");
  EXPECT_EQ(text(face, Property::Caption), "Address");
  EXPECT_TRUE(write(face, Property::Caption, QStringLiteral("Adresse")));
  EXPECT_EQ(form.title(), QStringLiteral("Adresse"));
  EXPECT_NE(face->identity(), hostForm(&form)->identity());
}

TEST(QtForm, ControlForTheFormsOwnTextLeavesTheGeometryToTheForm) {
  QWizardPage form;
  form.setObjectName("page");
  const HostRef face = control(form, "page");
  ASSERT_NE(face, nullptr);
  EXPECT_FALSE(face->get(Property::Width).has_value());
  EXPECT_FALSE(face->set(Property::Width, Value(100)));
  EXPECT_FALSE(face->get(Property::Left).has_value());
}

TEST(QtForm, TabWidgetAsAFormShowsItsTabsAsAControl) {
  QTabWidget form;
  form.setObjectName("tabs");
  form.addTab(new QWidget, QStringLiteral("One"));
  EXPECT_FALSE(hostForm(&form)->get(Property::Tabs).has_value());
  ASSERT_THAT(controls(form), Contains("tabs"));
  EXPECT_EQ(number(control(form, "tabs"), Property::Tabs), 1);
}

}  // namespace kob::qt::test
