// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Forms.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>

#include <gmock/gmock.h>

namespace kob::qt::test {

using testing::ElementsAre;

TEST(QtName, IsTheObjectNameUnitForUnit) {
  QDialog form;
  auto* const label = add<QLabel>(form, "");
  const QString name = QStringLiteral("é") + QChar(0xD800);
  label->setObjectName(name);
  EXPECT_EQ(toQString(*onlyControl(form)->get(Property::Name)->text()), name);
}

TEST(QtName, NamelessControlTakesItsClassName) {
  QDialog form;
  new QLabel(&form);
  EXPECT_EQ(text(onlyControl(form), Property::Name), "QLabel");
}

TEST(QtName, NamelessFormTakesItsClassName) {
  QDialog form;
  EXPECT_EQ(text(hostForm(&form), Property::Name), "QDialog");
  EXPECT_FALSE(hostForm(&form)->get(Property::Index).has_value());
}

TEST(QtName, FollowsTheObjectWhenTheApplicationRenamesIt) {
  QDialog form;
  auto* const label = add<QLabel>(form, "before");
  const HostRef held = onlyControl(form);
  label->setObjectName("after");
  EXPECT_EQ(text(held, Property::Name), "after");
}

TEST(QtName, NamelessStandardButtonIsNamedAfterItsRole) {
  QDialog form;
  auto* const box = add<QDialogButtonBox>(form, "box");
  box->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                          QDialogButtonBox::RestoreDefaults);
  EXPECT_THAT(controls(form), ElementsAre("box", "box/Ok", "box/Cancel", "box/RestoreDefaults"));
}

TEST(QtName, ButtonOfABoxWithAnObjectNameKeepsIt) {
  QDialog form;
  auto* const box = add<QDialogButtonBox>(form, "box");
  box->addButton(QDialogButtonBox::Ok)->setObjectName("go");
  box->addButton("More", QDialogButtonBox::ActionRole);
  EXPECT_THAT(controls(form), ElementsAre("box", "box/go", "box/QPushButton"));
}

}  // namespace kob::qt::test
