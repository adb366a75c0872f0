// SPDX-FileCopyrightText: The KOBTraduction authors
#include "DemoForms.h"

#include <Languages.h>
#include <Pictures.h>

namespace kob::demo {

namespace {

using RoundTrip = DemoForms;

TEST_F(RoundTrip, GermanAndBackGivesEveryFrenchTextBack) {
  const QMap<QString, QString> before = texts();
  demo_.switcher().setLanguage(German);
  EXPECT_NE(texts(), before);
  demo_.switcher().setLanguage(French);
  EXPECT_EQ(differences(before, texts()), QStringList());
}

TEST_F(RoundTrip, GermanAndBackGivesEveryPlaceOfTheFixedDialogBack) {
  const QMap<QString, QString> before = places(demo_.loanDialog());
  demo_.switcher().setLanguage(German);
  EXPECT_NE(places(demo_.loanDialog()), before);
  demo_.switcher().setLanguage(French);
  EXPECT_EQ(differences(before, places(demo_.loanDialog())), QStringList());
}

TEST_F(RoundTrip, GermanAndBackOnShownFormsGivesEveryWidthBack) {
  for (QWidget* const form :
       std::initializer_list<QWidget*>{&demo_.window(), &demo_.loanDialog(), &demo_.memberDialog()}) {
    showUnseen(*form);
    const QMap<QString, QString> before = places(*form);
    demo_.switcher().setLanguage(German);
    settle();
    demo_.switcher().setLanguage(French);
    settle();
    EXPECT_EQ(differences(before, places(*form)), QStringList());
  }
}

TEST_F(RoundTrip, TheWayToALanguageDoesNotMatter) {
  demo_.switcher().setLanguage(German);
  const QMap<QString, QString> straight = places(demo_.loanDialog());
  for (const Language& language : languages) {
    demo_.switcher().setLanguage(language.number);
  }
  demo_.switcher().setLanguage(German);
  demo_.switcher().setLanguage(German);
  EXPECT_EQ(differences(straight, places(demo_.loanDialog())), QStringList());
}

}  // namespace

}  // namespace kob::demo
