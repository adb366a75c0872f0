// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

#include <limits>

namespace kob::test {
namespace {

class CellListOf : public ModelTest {
 protected:
  Texts contents() const {
    Texts all;
    for (std::int32_t i = 1; i <= list.Count(); ++i) {
      all.push_back(list.Item(i) ? Text(list.Item(i)->nom()) : u"(nothing)");
    }
    return all;
  }

  CellList list;
};

TEST_F(CellListOf, StartsEmpty) {
  EXPECT_EQ(list.Count(), 0);
  EXPECT_TRUE(list.begin() == list.end());
}

TEST_F(CellListOf, AddsInsertsAndRemovesByPosition) {
  list.Add(named(u"b"));
  list.Add(named(u"d"));
  list.Add(named(u"a"), 1);
  list.Add(named(u"c"), 3);
  EXPECT_EQ(contents(), (Texts{u"a", u"b", u"c", u"d"}));
  list.Remove(2);
  EXPECT_EQ(contents(), (Texts{u"a", u"c", u"d"}));
}

TEST_F(CellListOf, APositionOutsideItIsAnInvalidIndexAndChangesNothing) {
  list.Add(named(u"a"));
  list.Add(named(u"b"));
  list.Add(named(u"c"));
  for (const std::int32_t position :
       {0, 4, -1, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
    EXPECT_EQ(failureOf([&] { static_cast<void>(list.Item(position)); }), FailureKind::InvalidIndex);
    EXPECT_EQ(failureOf([&] { list.Add(named(u"x"), position); }), FailureKind::InvalidIndex);
    EXPECT_EQ(failureOf([&] { list.Remove(position); }), FailureKind::InvalidIndex);
  }
  EXPECT_EQ(contents(), (Texts{u"a", u"b", u"c"}));
}

TEST_F(CellListOf, AnEmptyListHasNoPositionAtAll) {
  EXPECT_EQ(failureOf([&] { static_cast<void>(list.Item(1)); }), FailureKind::InvalidIndex);
  EXPECT_EQ(failureOf([&] { list.Add(named(u"x"), 1); }), FailureKind::InvalidIndex);
  EXPECT_EQ(failureOf([&] { list.Remove(1); }), FailureKind::InvalidIndex);
}

TEST_F(CellListOf, HoldsACellSeveralTimesAndItemsThatAreNothing) {
  const CellRef a = named(u"a");
  list.Add(a);
  list.Add(nullptr);
  list.Add(a);
  EXPECT_EQ(contents(), (Texts{u"a", u"(nothing)", u"a"}));
  EXPECT_EQ(a.use_count(), 3);
  list.Remove(1);
  EXPECT_EQ(a.use_count(), 2);
  a->setnom(u"b");
  EXPECT_EQ(contents(), (Texts{u"(nothing)", u"b"}));
}

TEST_F(CellListOf, LetsGoOfItsCells) {
  const CellRef a = named(u"a");
  {
    CellList other;
    other.Add(a);
    EXPECT_EQ(a.use_count(), 2);
  }
  EXPECT_EQ(a.use_count(), 1);
}

TEST_F(CellListOf, AnItemOfTheListCanBeAddedToItAgain) {
  list.Add(named(u"a"));
  for (int i = 0; i < 200; ++i) {
    list.Add(list.Item(1));
    list.Add(list.Item(list.Count()), 1);
  }
  EXPECT_EQ(contents(), Texts(401, u"a"));
}

TEST_F(CellListOf, FillsAndEmptiesFromEitherEnd) {
  constexpr int count = 2000;
  for (int i = 0; i < count; ++i) {
    list.Add(named(decimal(i)));
  }
  for (int i = 0; i < count; ++i) {
    EXPECT_EQ(list.Item(i + 1)->nom(), decimal(i));
  }
  for (int i = 0; i < count / 2; ++i) {
    EXPECT_EQ(list.Item(1)->nom(), decimal(i));
    list.Remove(1);
    EXPECT_EQ(list.Item(list.Count())->nom(), decimal(count - 1 - i));
    list.Remove(list.Count());
  }
  EXPECT_EQ(list.Count(), 0);
  list.Add(named(u"again"));
  EXPECT_EQ(contents(), Texts{u"again"});
}

TEST_F(CellListOf, FillsFromTheFront) {
  constexpr int count = 2000;
  for (int i = 0; i < count; ++i) {
    list.Count() == 0 ? list.Add(named(decimal(i))) : list.Add(named(decimal(i)), 1);
  }
  int expected = count;
  for (const CellRef& cell : list) {
    EXPECT_EQ(cell->nom(), decimal(--expected));
  }
  EXPECT_EQ(expected, 0);
  EXPECT_EQ(list.find(u"1234"), list.Item(count - 1234).get());
}

TEST_F(CellListOf, ANameIsFoundBehindManyOfTheSameUpperCase) {
  for (int i = 0; i < 300; ++i) {
    list.Add(named(i % 2 == 0 ? u"Same" : u"sAME"));
  }
  list.Add(named(u"other"));
  EXPECT_EQ(list.find(u"SAME"), list.Item(1).get());
  EXPECT_EQ(list.find(u"Other"), list.Item(301).get());
  list.Item(1)->setnom(u"gone");
  EXPECT_EQ(list.find(u"SAME"), list.Item(2).get());
}

TEST_F(CellListOf, WhatIsAppendedBehindARemovalCountsForTheOrder) {
  list.insertSorted(named(u"a"));
  list.insertSorted(named(u"c"));
  list.Remove(1);
  list.Add(named(u"b"));
  list.insertSorted(named(u"bb"));
  EXPECT_EQ(contents(), (Texts{u"bb", u"c", u"b"}));
}

TEST_F(CellListOf, WhatIsInsertedInFrontCountsForTheOrder) {
  list.insertSorted(named(u"a"));
  list.insertSorted(named(u"c"));
  list.Add(named(u"z"), 1);
  list.insertSorted(named(u"b"));
  EXPECT_EQ(contents(), (Texts{u"b", u"z", u"a", u"c"}));
}

TEST_F(CellListOf, AnItemThatIsNothingFailsWhenTheWalkMeetsIt) {
  list.Add(named(u"a"));
  list.Add(nullptr);
  EXPECT_EQ(list.find(u"a"), list.Item(1).get());
  EXPECT_EQ(failureOf([&] { static_cast<void>(list.find(u"b")); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(failureOf([&] { list.insertSorted(named(u"b")); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(contents(), (Texts{u"a", u"(nothing)"}));
}

}  // namespace
}  // namespace kob::test
