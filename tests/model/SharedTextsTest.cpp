// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

namespace kob::test {
namespace {

/// Entries that read the same once they are completed keep their characters together, unnoticed.
class SharedTexts : public ModelTest {
 protected:
  SharedTexts() { Global_Util::setNbLangues(3); }

  CellRef add(std::initializer_list<TextView> texts) { return message(model.Racine(), u"m", texts); }
  static const char16_t* characters(const CellRef& cell) {
    return cell->Traduction()->ColTraduction()->Item(1).data();
  }
  static void expectTogether(std::initializer_list<CellRef> cells, const Texts& expected) {
    for (const CellRef& cell : cells) {
      EXPECT_EQ(characters(cell), characters(*cells.begin()));
      EXPECT_EQ(texts(cell), expected);
    }
  }
  static void change(const CellRef& cell, TextView text, std::int32_t langue) {
    cell->Traduction()->ChangeTraduction(text, langue);
  }

  KOBModeleTraduction model;
};

TEST_F(SharedTexts, AreThoseOfCompletedEntriesThatReadTheSame) {
  const CellRef first = add({u"a", u"2", u""});
  const CellRef second = add({u"a", u"", u""});
  const CellRef third = add({u"a", u"", u"3"});
  model.CompleteIdentiques();
  expectTogether({first, second, third}, {u"a", u"2", u"3"});
}

TEST_F(SharedTexts, AreFoundBehindAnEntryThatHadNoGap) {
  const CellRef whole = add({u"a", u"2", u"3"});
  const CellRef second = add({u"a", u"2", u""});
  const CellRef third = add({u"a", u"", u"3"});
  model.CompleteIdentiques();
  expectTogether({second, third}, {u"a", u"2", u"3"});
  EXPECT_NE(characters(whole), characters(second));
}

TEST_F(SharedTexts, AreThoseOfEntriesWithoutATextToo) {
  const CellRef first = add({u"", u"", u""});
  const CellRef second = add({u"", u"", u""});
  add({u"", u"2", u"3"});
  model.CompleteIdentiques();
  expectTogether({first, second}, {u"", u"2", u"3"});
}

TEST_F(SharedTexts, AreThoseOfManyLanguagesToo) {
  Global_Util::setNbLangues(8);
  const CellRef first = add({u"a", u"2", u"3", u"4", u"5", u"6", u"7", u""});
  const CellRef second = add({u"a", u"", u"", u"", u"", u"", u"", u"8"});
  const CellRef third = add({u"a", u"", u"", u"", u"", u"", u"", u""});
  model.CompleteIdentiques();
  expectTogether({first, second, third}, {u"a", u"2", u"3", u"4", u"5", u"6", u"7", u"8"});
}

TEST_F(SharedTexts, AreNotThoseOfAReferenceInOtherLetters) {
  const CellRef first = add({u"a", u"2", u""});
  const CellRef second = add({u"A", u"", u"3"});
  model.CompleteIdentiques();
  EXPECT_EQ(texts(first), (Texts{u"a", u"2", u"3"}));
  EXPECT_EQ(texts(second), (Texts{u"A", u"2", u"3"}));
}

TEST_F(SharedTexts, AreNotThoseOfAnEntryWithAnotherTranslation) {
  const CellRef first = add({u"a", u"2", u""});
  const CellRef second = add({u"a", u"x", u""});
  add({u"a", u"", u"3"});
  model.CompleteIdentiques();
  EXPECT_EQ(texts(first), (Texts{u"a", u"2", u"3"}));
  EXPECT_EQ(texts(second), (Texts{u"a", u"x", u"3"}));
}

TEST_F(SharedTexts, FollowTheTextsThatMostEntriesHave) {
  add({u"a", u"1", u""});
  const CellRef second = add({u"a", u"2", u""});
  const CellRef third = add({u"a", u"2", u""});
  add({u"a", u"", u"3"});
  model.CompleteIdentiques();
  expectTogether({second, third}, {u"a", u"2", u"3"});
}

TEST_F(SharedTexts, LeaveItemsBeyondTheLanguageCountAsTheyAre) {
  add({u"a", u"2", u"", u"4"});
  const CellRef other = add({u"a", u"", u"3", u"x"});
  const CellRef gap = add({u"a", u"", u"", u""});
  const CellRef fewer = add({u"a", u"", u""});
  model.CompleteIdentiques();
  EXPECT_EQ(texts(other), (Texts{u"a", u"2", u"3", u"x"}));
  EXPECT_EQ(texts(gap), (Texts{u"a", u"2", u"3", u""}));
  EXPECT_EQ(texts(fewer), (Texts{u"a", u"2", u"3"}));
}

TEST_F(SharedTexts, ChangeForOneEntryOnly) {
  const CellRef first = add({u"a", u"2", u""});
  const CellRef second = add({u"a", u"", u"3"});
  model.CompleteIdentiques();
  change(first, u"a longer text", 2);
  change(second, u"x", 3);
  EXPECT_EQ(texts(first), (Texts{u"a", u"a longer text", u"3"}));
  EXPECT_EQ(texts(second), (Texts{u"a", u"2", u"x"}));
}

TEST_F(SharedTexts, ATextCanBePutInThePlaceOfAnother) {
  const CellRef first = add({u"a", u"2", u""});
  const CellRef second = add({u"a", u"", u"3"});
  model.CompleteIdentiques();
  const auto list = first->Traduction()->ColTraduction();
  list->Replace(3, list->Item(2));
  EXPECT_EQ(texts(first), (Texts{u"a", u"2", u"2"}));
  EXPECT_EQ(texts(second), (Texts{u"a", u"2", u"3"}));
}

TEST_F(SharedTexts, StayWithWhoIsLeft) {
  add({u"a", u"a text that is long enough to be stored apart", u""});
  const CellRef second = add({u"a", u"", u"3"});
  model.CompleteIdentiques();
  model.Racine()->ColCell()->Remove(1);
  EXPECT_EQ(texts(second), (Texts{u"a", u"a text that is long enough to be stored apart", u"3"}));
}

TEST_F(SharedTexts, AreCompletedAgainWhenAnEntryLostOne) {
  const CellRef first = add({u"a", u"2", u""});
  const CellRef second = add({u"a", u"", u"3"});
  model.CompleteIdentiques();
  change(first, u"", 2);
  model.CompleteIdentiques();
  EXPECT_EQ(texts(first), (Texts{u"a", u"2", u"3"}));
  EXPECT_EQ(texts(second), (Texts{u"a", u"2", u"3"}));
}

}  // namespace
}  // namespace kob::test
