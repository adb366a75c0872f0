// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

namespace kob::test {
namespace {

class Completing : public ModelTest {
 protected:
  /// What completing makes of a target entry's texts.
  static Texts completed(const EntryRef& source, const EntryRef& target) {
    source->CompleteTraduction(*target);
    return texts(*target->ColTraduction());
  }
};

TEST_F(Completing, FillsOnlyTheGapsOfAnEntryWithTheSameReference) {
  Global_Util::setNbLangues(3);
  EXPECT_EQ(completed(entry(u"", {u"OK", u"D accord", u"Bien"}), entry(u"", {u"ok", u"", u"Gut"})),
            (Texts{u"ok", u"D accord", u"Gut"}));
}

TEST_F(Completing, LeavesAnEntryWithAnotherReference) {
  Global_Util::setNbLangues(3);
  EXPECT_EQ(completed(entry(u"", {u"OK", u"D accord", u"Bien"}), entry(u"", {u"OK.", u"", u"Gut"})),
            (Texts{u"OK.", u"", u"Gut"}));
}

TEST_F(Completing, AGapOnBothSidesStays) {
  Global_Util::setNbLangues(3);
  EXPECT_EQ(completed(entry(u"", {u"a", u"", u"c"}), entry(u"", {u"A", u"", u""})), (Texts{u"A", u"", u"c"}));
}

TEST_F(Completing, EmptyReferencesAreEqualToo) {
  Global_Util::setNbLangues(2);
  EXPECT_EQ(completed(entry(u"", {u"", u"b"}), entry(u"", {u"", u""})), (Texts{u"", u"b"}));
}

TEST_F(Completing, NeverChangesTheSource) {
  Global_Util::setNbLangues(3);
  const EntryRef source = entry(u"", {u"OK", u"", u"Bien"});
  completed(source, entry(u"", {u"ok", u"x", u""}));
  EXPECT_EQ(texts(*source->ColTraduction()), (Texts{u"OK", u"", u"Bien"}));
}

TEST_F(Completing, AnEntryIntoItselfStays) {
  Global_Util::setNbLangues(3);
  const EntryRef source = entry(u"", {u"OK", u"", u"Bien"});
  EXPECT_EQ(completed(source, source), (Texts{u"OK", u"", u"Bien"}));
}

TEST_F(Completing, ItemsBeyondTheCountAreNotLookedAt) {
  Global_Util::setNbLangues(2);
  EXPECT_EQ(completed(entry(u"", {u"a", u"b", u"c"}), entry(u"", {u"a", u"", u""})),
            (Texts{u"a", u"b", u""}));
}

TEST_F(Completing, AnEmptyListOnEitherSideIsAnInvalidIndex) {
  const EntryRef empty = entry(u"", {});
  const EntryRef full = entry(u"", {u"a", u"", u"", u"", u"", u""});
  EXPECT_EQ(failureOf([&] { empty->CompleteTraduction(*full); }), FailureKind::InvalidIndex);
  EXPECT_EQ(failureOf([&] { full->CompleteTraduction(*empty); }), FailureKind::InvalidIndex);
}

TEST_F(Completing, AShortTargetFailsAndKeepsWhatWasFilled) {
  const EntryRef target = entry(u"", {u"a", u""});
  const EntryRef source = entry(u"", {u"a", u"b", u"c", u"", u"", u""});
  EXPECT_EQ(failureOf([&] { source->CompleteTraduction(*target); }), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(*target->ColTraduction()), (Texts{u"a", u"b"}));
}

TEST_F(Completing, AShortSourceFailsAtItsFirstMissingTextThatIsWanted) {
  Global_Util::setNbLangues(4);
  const EntryRef source = entry(u"", {u"a", u"b"});
  EXPECT_EQ(completed(source, entry(u"", {u"a", u"", u"x", u"y"})), (Texts{u"a", u"b", u"x", u"y"}));
  const EntryRef target = entry(u"", {u"a", u"", u"x", u""});
  EXPECT_EQ(failureOf([&] { source->CompleteTraduction(*target); }), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(*target->ColTraduction()), (Texts{u"a", u"b", u"x", u""}));
}

TEST_F(Completing, MissingTextsFail) {
  const EntryRef none = entry(u"", {});
  none->setColTraduction(nullptr);
  const EntryRef full = entry(u"", {u"a", u"", u"", u"", u"", u""});
  EXPECT_EQ(failureOf([&] { none->CompleteTraduction(*full); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(failureOf([&] { full->CompleteTraduction(*none); }), FailureKind::ObjectNotSet);
}

class CompletingAList : public ModelTest {
 protected:
  static Texts completed(const EntryRef& source, TextView reference, std::initializer_list<TextView> list) {
    const auto target = textList(list);
    source->CompleteColTraduction(reference, *target);
    return texts(*target);
  }
};

TEST_F(CompletingAList, FillsOnlyItsGaps) {
  Global_Util::setNbLangues(4);
  EXPECT_EQ(completed(entry(u"", {u"OK", u"b", u"c", u""}), u"ok", {u"ok", u"", u"x", u""}),
            (Texts{u"ok", u"b", u"x", u""}));
}

TEST_F(CompletingAList, GoesByTheReferenceThatIsPassedAndNotByTheListsOwn) {
  Global_Util::setNbLangues(3);
  const EntryRef source = entry(u"", {u"OK", u"b", u"c"});
  EXPECT_EQ(completed(source, u"ok", {u"other", u"", u""}), (Texts{u"other", u"b", u"c"}));
  EXPECT_EQ(completed(source, u"other", {u"ok", u"", u""}), (Texts{u"ok", u"", u""}));
}

TEST_F(CompletingAList, TheLastLanguageGoesToTheEndOfALongerList) {
  Global_Util::setNbLangues(3);
  EXPECT_EQ(completed(entry(u"", {u"a", u"b", u"c"}), u"a", {u"a", u"", u"", u"surplus"}),
            (Texts{u"a", u"b", u"surplus", u"c"}));
}

TEST_F(CompletingAList, TheLastLanguageOfAListOfTheRightLengthStaysInPlace) {
  Global_Util::setNbLangues(3);
  EXPECT_EQ(completed(entry(u"", {u"a", u"b", u"c"}), u"a", {u"a", u"x", u""}), (Texts{u"a", u"x", u"c"}));
}

TEST_F(CompletingAList, ALanguageThatIsMissingOnBothSidesDoesNotMove) {
  Global_Util::setNbLangues(3);
  EXPECT_EQ(completed(entry(u"", {u"a", u"", u""}), u"a", {u"a", u"", u"", u"surplus"}),
            (Texts{u"a", u"", u"", u"surplus"}));
}

TEST_F(CompletingAList, AnEmptySourceIsAnInvalidIndex) {
  TextList list;
  list.Add(u"");
  EXPECT_EQ(failureOf([&] { entry(u"", {})->CompleteColTraduction(u"", list); }), FailureKind::InvalidIndex);
}

TEST_F(CompletingAList, AShortListFailsAndKeepsWhatWasFilled) {
  Global_Util::setNbLangues(5);
  const auto target = textList({u"a", u"", u"z"});
  const EntryRef source = entry(u"", {u"a", u"b", u"c", u"d", u"e"});
  EXPECT_EQ(failureOf([&] { source->CompleteColTraduction(u"a", *target); }), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(*target), (Texts{u"a", u"b", u"z"}));
}

TEST_F(CompletingAList, WithAnotherReferenceTheListIsNotEvenRead) {
  TextList list;
  entry(u"", {u"a", u"b"})->CompleteColTraduction(u"x", list);
  EXPECT_EQ(list.Count(), 0);
}

}  // namespace
}  // namespace kob::test
