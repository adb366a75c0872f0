// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

#include <limits>

namespace kob::test {
namespace {

class Entry : public ModelTest {};

TEST_F(Entry, StartsWithOneEmptyTextPerLanguageAndNoName) {
  const KOBTraductionObj made;
  EXPECT_EQ(texts(*made.ColTraduction()), Texts(6, u""));
  EXPECT_EQ(made.nom(), u"");
}

TEST_F(Entry, StartsWithAsManyTextsAsTheThreadHasLanguages) {
  for (const std::int32_t count : {0, 1, 11}) {
    Global_Util::setNbLangues(count);
    EXPECT_EQ(KOBTraductionObj().ColTraduction()->Count(), count);
  }
}

TEST_F(Entry, ItsNameReadsAsAssigned) {
  KOBTraductionObj made;
  made.setnom(u"Caption");
  EXPECT_EQ(made.nom(), u"Caption");
}

TEST_F(Entry, ItsTextsCanBeReplacedByAHost) {
  KOBTraductionObj made;
  const auto list = textList({u"x"});
  made.setColTraduction(list);
  EXPECT_EQ(made.ColTraduction(), list);
  list->Add(u"y");
  EXPECT_EQ(texts(*made.ColTraduction()), (Texts{u"x", u"y"}));
}

TEST_F(Entry, AChangeReplacesTheTextInItsPlace) {
  const EntryRef made = entry(u"", {u"a", u"b", u"c", u"d"});
  made->ChangeTraduction(u"x", 3);
  EXPECT_EQ(texts(*made->ColTraduction()), (Texts{u"a", u"b", u"x", u"d"}));
}

TEST_F(Entry, AChangeBeyondTheCountChangesNothing) {
  const EntryRef made = entry(u"", {u"a", u"b", u"c", u"d"});
  made->ChangeTraduction(u"x", 7);
  EXPECT_EQ(texts(*made->ColTraduction()), (Texts{u"a", u"b", u"c", u"d"}));
}

TEST_F(Entry, AChangeOutsideTheCountIsIgnoredHoweverFar) {
  KOBTraductionObj made;
  for (const std::int32_t index :
       {0, -1, 7, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
    made.ChangeTraduction(u"x", index);
  }
  EXPECT_EQ(texts(*made.ColTraduction()), Texts(6, u""));
}

TEST_F(Entry, AChangeOutsideTheCountIsIgnoredEvenWithoutTexts) {
  KOBTraductionObj made;
  made.setColTraduction(nullptr);
  made.ChangeTraduction(u"x", 7);
  made.ChangeTraduction(u"x", 0);
  EXPECT_EQ(made.ColTraduction(), nullptr);
}

TEST_F(Entry, AChangeReachesTheFirstAndTheLastLanguage) {
  KOBTraductionObj made;
  made.ChangeTraduction(u"first", 1);
  made.ChangeTraduction(u"last", 6);
  EXPECT_EQ(texts(*made.ColTraduction()), (Texts{u"first", u"", u"", u"", u"", u"last"}));
}

TEST_F(Entry, TheLanguageCountIsTheLimitAlsoWhereTheListIsLonger) {
  const EntryRef made = entry(u"", {u"1", u"2", u"3", u"4", u"5", u"6", u"7"});
  made->ChangeTraduction(u"x", 7);
  EXPECT_EQ(made->ColTraduction()->Item(7), u"7");
}

TEST_F(Entry, TheOnlyTextOfAListCanBeReplaced) {
  const EntryRef made = entry(u"", {u"a"});
  made->ChangeTraduction(u"x", 1);
  EXPECT_EQ(texts(*made->ColTraduction()), Texts{u"x"});
}

TEST_F(Entry, AChangeBeyondAShortListIsAnInvalidIndexAndChangesNothing) {
  const EntryRef made = entry(u"", {u"a", u"b"});
  EXPECT_EQ(failureOf([&] { made->ChangeTraduction(u"x", 3); }), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(*made->ColTraduction()), (Texts{u"a", u"b"}));
}

TEST_F(Entry, AChangeWithoutTextsFails) {
  KOBTraductionObj made;
  made.setColTraduction(nullptr);
  EXPECT_EQ(failureOf([&] { made.ChangeTraduction(u"x", 1); }), FailureKind::ObjectNotSet);
}

TEST_F(Entry, ATextOfTheListCanTakeItsOwnOrAnotherPlace) {
  const EntryRef made = entry(u"", {u"a text that is long enough to be stored apart", u"b", u""});
  made->ChangeTraduction(made->ColTraduction()->Item(1), 1);
  made->ChangeTraduction(made->ColTraduction()->Item(1), 3);
  EXPECT_EQ(texts(*made->ColTraduction()), (Texts{u"a text that is long enough to be stored apart", u"b",
                                                  u"a text that is long enough to be stored apart"}));
}

TEST_F(Entry, RaisedFromSixToEightHoldsNineTexts) {
  KOBTraductionObj made;
  made.ChangeTraduction(u"text", 6);
  Global_Util::setNbLangues(8);
  made.UpdateNbLangues();
  EXPECT_EQ(texts(*made.ColTraduction()), (Texts{u"", u"", u"", u"", u"", u"text", u"", u"", u""}));
}

TEST_F(Entry, AlreadyAtTheCountReceivesOneTextMore) {
  KOBTraductionObj made;
  made.UpdateNbLangues();
  EXPECT_EQ(made.ColTraduction()->Count(), 7);
  made.UpdateNbLangues();
  EXPECT_EQ(made.ColTraduction()->Count(), 7);
}

TEST_F(Entry, AnEmptyListReceivesOneMoreThanTheCount) {
  const EntryRef made = entry(u"", {});
  made->UpdateNbLangues();
  EXPECT_EQ(made->ColTraduction()->Count(), 7);
}

TEST_F(Entry, WithoutTextsCannotGrow) {
  KOBTraductionObj made;
  made.setColTraduction(nullptr);
  EXPECT_EQ(failureOf([&] { made.UpdateNbLangues(); }), FailureKind::ObjectNotSet);
}

TEST_F(Entry, ATestTextIsTheReferenceBetweenMarkers) {
  const EntryRef made = entry(u"", {u"Fichier", u"File", u""});
  made->UpdateTestLangue(2);
  EXPECT_EQ(texts(*made->ColTraduction()), (Texts{u"Fichier", u"** Fichier **", u""}));
}

TEST_F(Entry, ATestTextOfAnEmptyReferenceIsTheMarkersWithTwoBlanks) {
  const EntryRef made = entry(u"", {u"", u""});
  made->UpdateTestLangue(2);
  EXPECT_EQ(made->ColTraduction()->Item(2), u"**  **");
}

TEST_F(Entry, ATestTextOutsideTheCountIsIgnored) {
  KOBTraductionObj made;
  made.UpdateTestLangue(7);
  made.UpdateTestLangue(0);
  EXPECT_EQ(texts(*made.ColTraduction()), Texts(6, u""));
}

TEST_F(Entry, ATestTextOfAnEmptyListIsAnInvalidIndex) {
  const EntryRef made = entry(u"", {});
  EXPECT_EQ(failureOf([&] { made->UpdateTestLangue(2); }), FailureKind::InvalidIndex);
}

TEST_F(Entry, ATestTextReadsTheReferenceEvenWhereTheLanguageIsIgnored) {
  const EntryRef made = entry(u"", {});
  EXPECT_EQ(failureOf([&] { made->UpdateTestLangue(7); }), FailureKind::InvalidIndex);
}

TEST_F(Entry, ATestTextBeyondAShortListIsAnInvalidIndex) {
  const EntryRef made = entry(u"", {u"a", u"b"});
  EXPECT_EQ(failureOf([&] { made->UpdateTestLangue(3); }), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(*made->ColTraduction()), (Texts{u"a", u"b"}));
}

TEST_F(Entry, ClearingEmptiesOneLanguage) {
  const EntryRef made = entry(u"", {u"a", u"b", u"c"});
  made->ClearLangue(2);
  EXPECT_EQ(texts(*made->ColTraduction()), (Texts{u"a", u"", u"c"}));
}

TEST_F(Entry, ClearingOutsideTheCountIsIgnoredAndBeyondAShortListFails) {
  const EntryRef made = entry(u"", {u"a", u"b"});
  made->ClearLangue(7);
  EXPECT_EQ(failureOf([&] { made->ClearLangue(3); }), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(*made->ColTraduction()), (Texts{u"a", u"b"}));
}

TEST_F(Entry, TellsWhetherALanguageCountedFromZeroIsEmpty) {
  const EntryRef made = entry(u"", {u"a", u"", u" "});
  EXPECT_FALSE(made->IsLangueEmpty(0));
  EXPECT_TRUE(made->IsLangueEmpty(1));
  EXPECT_FALSE(made->IsLangueEmpty(2));
}

TEST_F(Entry, AnEmptyLanguageOutsideTheListIsAnInvalidIndex) {
  const EntryRef made = entry(u"", {u"a", u"", u"c"});
  for (const std::int16_t index :
       {std::int16_t{-1}, std::int16_t{3}, std::numeric_limits<std::int16_t>::max(),
        std::numeric_limits<std::int16_t>::min()}) {
    EXPECT_EQ(failureOf([&] { static_cast<void>(made->IsLangueEmpty(index)); }), FailureKind::InvalidIndex);
  }
}

}  // namespace
}  // namespace kob::test
