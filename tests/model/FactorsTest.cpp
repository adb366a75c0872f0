// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

#include <limits>

namespace kob::test {
namespace {

TEST(FactorValue, IsTheSmallIntegerOneUntilADoubleIsAssigned) {
  constexpr Factor fresh;
  EXPECT_EQ(fresh.value(), 1.0);
  EXPECT_FALSE(fresh.isDouble());
  constexpr Factor assigned(1.0);
  EXPECT_EQ(assigned.value(), 1.0);
  EXPECT_TRUE(assigned.isDouble());
}

class ChangingFactors : public ModelTest {
 protected:
  CellRef cell = KOBCellTraduction::createControl();
};

TEST_F(ChangingFactors, ReplacesOneLanguagesWidth) {
  cell->ChangeWidth(1.5, 3);
  EXPECT_EQ(factors(*cell->ColWidth()), (Factors{1, 1, 1.5, 1, 1, 1}));
}

TEST_F(ChangingFactors, ReplacesOneLanguagesLeft) {
  cell->ChangeLeft(0.25, 2);
  EXPECT_EQ(factors(*cell->ColLeft()), (Factors{1, 0.25, 1, 1, 1, 1}));
}

TEST_F(ChangingFactors, WidthAndLeftAreApart) {
  cell->ChangeWidth(1.5, 3);
  EXPECT_EQ(factors(*cell->ColLeft()), Factors(6, 1.0));
  cell->ChangeLeft(2.5, 4);
  EXPECT_EQ(factors(*cell->ColWidth()), (Factors{1, 1, 1.5, 1, 1, 1}));
}

TEST_F(ChangingFactors, ReachesTheFirstAndTheLastLanguage) {
  cell->ChangeWidth(2, 1);
  cell->ChangeWidth(3, 6);
  cell->ChangeLeft(4, 1);
  cell->ChangeLeft(5, 6);
  EXPECT_EQ(factors(*cell->ColWidth()), (Factors{2, 1, 1, 1, 1, 3}));
  EXPECT_EQ(factors(*cell->ColLeft()), (Factors{4, 1, 1, 1, 1, 5}));
}

TEST_F(ChangingFactors, WhatIsAssignedIsADouble) {
  cell->ChangeWidth(1.0, 2);
  EXPECT_TRUE(cell->ColWidth()->Item(2).isDouble());
  EXPECT_FALSE(cell->ColWidth()->Item(1).isDouble());
  EXPECT_FALSE(cell->ColWidth()->Item(3).isDouble());
}

TEST_F(ChangingFactors, AnyDoubleIsKeptAsItIs) {
  for (const double value : {0.0, -1.0, 1e300, std::numeric_limits<double>::infinity()}) {
    cell->ChangeLeft(value, 2);
    EXPECT_EQ(cell->ColLeft()->Item(2).value(), value);
  }
}

TEST_F(ChangingFactors, AnIndexOutsideTheCountIsIgnored) {
  for (const std::int32_t index :
       {0, -1, 7, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
    cell->ChangeWidth(1.5, index);
    cell->ChangeLeft(1.5, index);
  }
  EXPECT_EQ(factors(*cell->ColWidth()), Factors(6, 1.0));
  EXPECT_EQ(factors(*cell->ColLeft()), Factors(6, 1.0));
}

TEST_F(ChangingFactors, TheLanguageCountIsTheLimitAlsoWhereTheListIsLonger) {
  cell->ColWidth()->Add(Factor());
  cell->ChangeWidth(1.5, 7);
  EXPECT_EQ(factors(*cell->ColWidth()), Factors(7, 1.0));
}

TEST_F(ChangingFactors, OnACellThatIsNoControlTheObjectIsNotSet) {
  const CellRef other = KOBCellTraduction::create();
  EXPECT_EQ(failureOf([&] { other->ChangeWidth(1.5, 1); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(failureOf([&] { other->ChangeLeft(1.5, 1); }), FailureKind::ObjectNotSet);
}

TEST_F(ChangingFactors, AnIndexOutsideTheCountIsIgnoredEvenOnACellThatIsNoControl) {
  const CellRef other = KOBCellTraduction::create();
  other->ChangeWidth(1.5, 0);
  other->ChangeLeft(1.5, 7);
  EXPECT_EQ(other->ColWidth(), nullptr);
  EXPECT_EQ(other->ColLeft(), nullptr);
}

TEST_F(ChangingFactors, AListShorterThanTheIndexIsAnInvalidIndexAndStays) {
  Global_Util::setNbLangues(8);
  cell->ChangeWidth(2, 6);
  EXPECT_EQ(failureOf([&] { cell->ChangeWidth(1.5, 7); }), FailureKind::InvalidIndex);
  EXPECT_EQ(failureOf([&] { cell->ChangeLeft(1.5, 8); }), FailureKind::InvalidIndex);
  EXPECT_EQ(factors(*cell->ColWidth()), (Factors{1, 1, 1, 1, 1, 2}));
  EXPECT_EQ(factors(*cell->ColLeft()), Factors(6, 1.0));
}

TEST_F(ChangingFactors, TheOnlyFactorOfAListCanBeReplaced) {
  Global_Util::setNbLangues(1);
  const CellRef one = KOBCellTraduction::createControl();
  one->ChangeWidth(1.5, 1);
  one->ChangeLeft(2.5, 1);
  EXPECT_EQ(factors(*one->ColWidth()), Factors{1.5});
  EXPECT_EQ(factors(*one->ColLeft()), Factors{2.5});
}

}  // namespace
}  // namespace kob::test
