// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

namespace kob::test {
namespace {

class Searching : public ModelTest {
 protected:
  static bool contains(TextView reference, TextView search) {
    return entry(u"", {reference, u"other language"})->ContainsText(search);
  }
};

TEST_F(Searching, FindsAPartWhateverItsCase) {
  EXPECT_TRUE(contains(u"Fichier", u"CHIER"));
  EXPECT_TRUE(contains(u"FICHIER", u"fich"));
  EXPECT_TRUE(contains(u"L'été", u"ÉTÉ"));
}

TEST_F(Searching, FindsThePartAtTheStartInTheMiddleAndAtTheEnd) {
  EXPECT_TRUE(contains(u"abcde", u"ab"));
  EXPECT_TRUE(contains(u"abcde", u"bcd"));
  EXPECT_TRUE(contains(u"abcde", u"de"));
  EXPECT_TRUE(contains(u"abcde", u"abcde"));
  EXPECT_TRUE(contains(u"aab", u"ab"));
}

TEST_F(Searching, AnEmptyReferenceContainsNothing) {
  EXPECT_FALSE(contains(u"", u"x"));
  EXPECT_FALSE(contains(u"", u""));
}

TEST_F(Searching, AnEmptySearchIsInEveryOtherText) {
  EXPECT_TRUE(contains(u"a", u""));
}

TEST_F(Searching, ALongerSearchIsNotFound) {
  EXPECT_FALSE(contains(u"abc", u"abcd"));
}

TEST_F(Searching, WhatIsNotThereIsNotFound) {
  EXPECT_FALSE(contains(u"Fichier", u"fichet"));
  EXPECT_FALSE(contains(u"ete", u"été"));
  EXPECT_FALSE(contains(u"straße", u"SS"));
}

TEST_F(Searching, OnlyTheReferenceLanguageIsSearched) {
  EXPECT_FALSE(contains(u"Fichier", u"other"));
}

TEST_F(Searching, AnEmptyListIsAnInvalidIndex) {
  EXPECT_EQ(failureOf([] { static_cast<void>(entry(u"", {})->ContainsText(u"a")); }),
            FailureKind::InvalidIndex);
}

TEST_F(Searching, MissingTextsFail) {
  const EntryRef none = entry(u"", {});
  none->setColTraduction(nullptr);
  EXPECT_EQ(failureOf([&] { static_cast<void>(none->ContainsText(u"a")); }), FailureKind::ObjectNotSet);
}

}  // namespace
}  // namespace kob::test
