// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EditorTest.h"

namespace kob::testing {

namespace {

class EditorRestricted : public EditorTest {
 protected:
  CellRef button = control(app, u"button", {caption(u"Oui")});
  CellRef greeting = message(app, u"greeting", {u"Bonjour", {}, {}, {}, {}, {}});
};

TEST_F(EditorRestricted, AddingDeletingAndPositioningAreHidden) {
  edit(restricted, u"App\\button", [](Person& person) {
    for (const TextView name : {u"bAdd", u"bSupp", u"bAddTrad", u"bSupTrad", u"chkPosition"}) {
      EXPECT_FALSE(person.sees(name)) << toUtf8(name);
    }
    for (const TextView name : {u"bl1", u"bw1", u"sldLeft", u"sldwidth"}) {
      for (std::int32_t i = 0; i < 6; ++i) {
        EXPECT_FALSE(person.sees(name, i)) << toUtf8(name);
      }
    }
  });
}

TEST_F(EditorRestricted, TheNamesFrameIsDisabledWithTheContextBoxVisible) {
  edit(restricted, u"App\\button", [this](Person& person) {
    EXPECT_TRUE(person.sees(u"chkContexte"));
    EXPECT_FALSE(person.type(u"tbNom", u"x"));
    EXPECT_FALSE(person.choose(u"OptTypFeuille", 0));
    EXPECT_FALSE(person.check(u"chkContexte"));
    EXPECT_EQ(button->nom(), u"button");
  });
}

TEST_F(EditorRestricted, TheReferenceTextsAreLocked) {
  edit(restricted, u"App\\button",
       [](Person& person) { EXPECT_FALSE(person.type(u"tbTradCtrl", 0, u"Non")); });
  edit(restricted, u"App\\greeting",
       [](Person& person) { EXPECT_FALSE(person.type(u"tbTradMessage", 0, u"Salut")); });
  EXPECT_EQ(textsOfEntry(button, 1)[0], u"Oui");
  EXPECT_EQ(texts(greeting)[0], u"Bonjour");
}

TEST_F(EditorRestricted, TheOtherLanguagesCanBeTyped) {
  edit(restricted, u"App\\button", [](Person& person) {
    for (std::int32_t i = 1; i < 6; ++i) {
      EXPECT_TRUE(person.type(u"tbTradCtrl", i, u"Yes"));
    }
  });
  edit(restricted, u"App\\greeting", [](Person& person) {
    for (std::int32_t i = 1; i < 6; ++i) {
      EXPECT_TRUE(person.type(u"tbTradMessage", i, u"Hello"));
    }
  });
  EXPECT_THAT(textsOfEntry(button, 1), ElementsAre(u"Oui", u"Yes", u"Yes", u"Yes", u"Yes", u"Yes"));
  EXPECT_THAT(texts(greeting), ElementsAre(u"Bonjour", u"Hello", u"Hello", u"Hello", u"Hello", u"Hello"));
}

TEST_F(EditorRestricted, ShowingACellBringsNothingBack) {
  button->setm_left(1);
  button->setm_width(1);
  edit(restricted, u"", [](Person& person) {
    person.clickTag(u"App\\button");
    EXPECT_TRUE(person.sees(u"FrControl"));
    EXPECT_FALSE(person.sees(u"bAdd") || person.sees(u"bSupp"));
    EXPECT_FALSE(person.sees(u"sldLeft", 0) || person.sees(u"sldwidth", 0));
  });
}

TEST_F(EditorRestricted, FewFactorsAreNoHindrance) {
  button->ColLeft()->Remove(6);
  edit(restricted, u"App\\button", [](Person& person) { EXPECT_TRUE(person.sees(u"FrControl")); });
}

}  // namespace

}  // namespace kob::testing
