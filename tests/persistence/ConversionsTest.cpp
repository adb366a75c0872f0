// SPDX-FileCopyrightText: The KOBTraduction authors
#include "PersistenceTest.h"

#include <limits>

namespace kob::test {
namespace {

PersistValue valueOf(const RecordValue& value) {
  return kob::testing::viewOf(value);
}

class Conversions : public PersistenceTest {
 protected:
  const RecordValue object_ = anObject(emptyCell(u"a"));
};

TEST_F(Conversions, ALongIsReadFromWhatReadsAsANumber) {
  EXPECT_EQ(valueOf(aLong(-7)).toLong(), -7);
  EXPECT_EQ(valueOf(aSmallInteger(-7)).toLong(), -7);
  EXPECT_EQ(valueOf(aText(u" 12 ")).toLong(), 12);
  EXPECT_EQ(valueOf(aText(u"1e3")).toLong(), 1000);
  EXPECT_EQ(valueOf(aBoolean(true)).toLong(), -1);
  EXPECT_EQ(valueOf(aBoolean(false)).toLong(), 0);
}

TEST_F(Conversions, ADoubleIsRoundedToTheEvenLong) {
  EXPECT_EQ(valueOf(aDouble(2.5)).toLong(), 2);
  EXPECT_EQ(valueOf(aDouble(3.5)).toLong(), 4);
  EXPECT_EQ(valueOf(aDouble(-2.5)).toLong(), -2);
}

TEST_F(Conversions, WhatIsNoLongFails) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const RecordValue& value :
       {aText(u""), aText(u"x"), aText(u"1 2"), aText(u"2147483648"), aDouble(2147483648.0),
        aDouble(infinity), aDouble(std::numeric_limits<double>::quiet_NaN()), nothing(), object_}) {
    EXPECT_EQ(failureOf([&] { valueOf(value).toLong(); }), FailureKind::TypeMismatch) << value;
  }
}

TEST_F(Conversions, ADoubleIsReadFromWhatReadsAsANumber) {
  EXPECT_EQ(valueOf(aDouble(1.25)).toDouble(), 1.25);
  EXPECT_EQ(valueOf(aLong(3)).toDouble(), 3);
  EXPECT_EQ(valueOf(aSmallInteger(2)).toDouble(), 2);
  EXPECT_EQ(valueOf(aText(u"-1.5")).toDouble(), -1.5);
  EXPECT_EQ(valueOf(aBoolean(true)).toDouble(), -1);
}

TEST_F(Conversions, WhatIsNoDoubleFails) {
  for (const RecordValue& value : {aText(u"wide"), aText(u""), nothing(), object_}) {
    EXPECT_EQ(failureOf([&] { valueOf(value).toDouble(); }), FailureKind::TypeMismatch) << value;
  }
}

TEST_F(Conversions, ABooleanIsReadFromNumbersAndWords) {
  EXPECT_TRUE(valueOf(aBoolean(true)).toBoolean());
  EXPECT_FALSE(valueOf(aBoolean(false)).toBoolean());
  EXPECT_TRUE(valueOf(aLong(1)).toBoolean());
  EXPECT_FALSE(valueOf(aLong(0)).toBoolean());
  EXPECT_TRUE(valueOf(aSmallInteger(-1)).toBoolean());
  EXPECT_TRUE(valueOf(aDouble(0.5)).toBoolean());
  EXPECT_TRUE(valueOf(aText(u"true")).toBoolean());
  EXPECT_FALSE(valueOf(aText(u"FALSE")).toBoolean());
  EXPECT_FALSE(valueOf(aText(u"0")).toBoolean());
}

TEST_F(Conversions, WhatIsNoBooleanFails) {
  for (const RecordValue& value : {aText(u"yes"), aText(u""), nothing(), object_}) {
    EXPECT_EQ(failureOf([&] { valueOf(value).toBoolean(); }), FailureKind::TypeMismatch) << value;
  }
}

TEST_F(Conversions, ATextIsReadFromEveryValueButAnObject) {
  EXPECT_EQ(valueOf(aText(u"é")).toText(), u"é");
  EXPECT_EQ(valueOf(aLong(-12)).toText(), u"-12");
  EXPECT_EQ(valueOf(aSmallInteger(1)).toText(), u"1");
  EXPECT_EQ(valueOf(aDouble(1.5)).toText(), u"1.5");
  EXPECT_EQ(valueOf(aBoolean(true)).toText(), u"True");
  EXPECT_EQ(valueOf(aBoolean(false)).toText(), u"False");
  EXPECT_EQ(failureOf([&] { valueOf(object_).toText(); }), FailureKind::TypeMismatch);
  EXPECT_EQ(failureOf([] { valueOf(nothing()).toText(); }), FailureKind::TypeMismatch);
}

TEST_F(Conversions, AnObjectIsReadFromObjectsOnly) {
  EXPECT_EQ(valueOf(object_).toObject(), object_.object);
  EXPECT_EQ(valueOf(nothing()).toObject(), nullptr);
  for (const RecordValue& value : {aText(u""), aLong(0), aSmallInteger(0), aDouble(0), aBoolean(false)}) {
    EXPECT_EQ(failureOf([&] { static_cast<void>(valueOf(value).toObject()); }), FailureKind::TypeMismatch)
        << value;
  }
}

class ConvertedRecords : public PersistenceTest {};

TEST_F(ConvertedRecords, ALanguageCountMayBeGivenAsText) {
  KOBModeleTraduction model;
  EXPECT_TRUE(reads(model, 1, {aText(u" 4 "), anObject(model.Racine())}));
  EXPECT_EQ(Global_Util::NbLangues(), 4);
}

TEST_F(ConvertedRecords, ALanguageCountThatIsNoNumberFailsAndChangesNothing) {
  KOBModeleTraduction model;
  const CellRef root = model.Racine();
  for (const RecordValue& value : {aText(u"many"), nothing(), anObject(root), aDouble(1e10)}) {
    EXPECT_FALSE(reads(model, 1, {value, anObject(emptyCell(u"a"))})) << value;
    EXPECT_EQ(Global_Util::NbLangues(), 6) << value;
    EXPECT_EQ(model.Racine(), root) << value;
  }
}

TEST_F(ConvertedRecords, NamesMayBeGivenAsNumbers) {
  const CellRef cell = cellRead({aLong(12), aDouble(2.5), aLong(2), aLong(0), aBoolean(false)});
  EXPECT_EQ(stateOf(*cell), "12/2.5 20");
}

TEST_F(ConvertedRecords, TextsMayBeGivenAsNumbers) {
  const EntryRef entry = entryRead({aBoolean(true), aLong(1), aDouble(0.25), aSmallInteger(-3)});
  EXPECT_EQ(stateOf(*entry), R"(True: ["1" "0.25" "-3"])");
}

TEST_F(ConvertedRecords, ATextGivenAsAnObjectFails) {
  KOBTraductionObj entry;
  EXPECT_FALSE(reads(entry, 1, {aText(u"Caption"), aText(u"a"), nothing(), aText(u"c")}));
  EXPECT_EQ(stateOf(entry), R"(Caption: ["a"])");
}

TEST_F(ConvertedRecords, KindsAndCountsMayBeGivenAsTextOrDouble) {
  const CellRef cell = cellRead({aText(u"a"), aText(u""), aText(u"1"), aDouble(1), anObject(emptyCell(u"b")),
                                 aText(u"0"), aBoolean(false)});
  EXPECT_EQ(stateOf(*cell), "a/ 10 cells [b]");
}

TEST_F(ConvertedRecords, IndicatorsMayBeGivenAsTextOrBoolean) {
  Global_Util::setNbLangues(0);
  const CellRef cell =
      cellRead(cellStart(u"a", 2) + Values{aText(u"-1"), aBoolean(true), aBoolean(false), aBoolean(false)});
  EXPECT_EQ(stateOf(*cell), "a/ 22 at -1,-1 entries [] width [] left []");
}

TEST_F(ConvertedRecords, TheFlagMayBeGivenAsANumberOrAWord) {
  EXPECT_TRUE(cellRead(cellStart(u"a", 0) + Values{aLong(7)})->Contexte());
  EXPECT_TRUE(cellRead(cellStart(u"a", 0) + Values{aText(u"True")})->Contexte());
  EXPECT_FALSE(cellRead(cellStart(u"a", 0) + Values{aDouble(0)})->Contexte());
}

TEST_F(ConvertedRecords, AFlagThatIsNoBooleanFails) {
  const CellRef cell = KOBCellTraduction::create();
  EXPECT_FALSE(reads(*cell, 2, cellStart(u"a", 0) + Values{aText(u"perhaps")}));
  EXPECT_FALSE(cell->Contexte());
}

TEST_F(ConvertedRecords, OnlyTheSmallIntegerOneReadsAsAnUntouchedFactor) {
  const CellRef cell = cellRead(cellStart(u"a", 2) +
                                Values{aLong(1), aLong(1), aLong(0), aSmallInteger(1), aLong(1), aDouble(1),
                                       aText(u"1.5"), aSmallInteger(2), aBoolean(true), aBoolean(false)});
  EXPECT_EQ(stateOf(*cell), "a/ 22 at 1,1 entries [] width [1 1d 2d] left [1d 1.5d -1d]");
}

TEST_F(ConvertedRecords, AFactorThatIsNoNumberFails) {
  const CellRef cell = KOBCellTraduction::create();
  EXPECT_FALSE(
      reads(*cell, 2, cellStart(u"a", 2) + Values{aLong(1), aLong(1), aLong(0), aDouble(2), aText(u"wide")}));
  EXPECT_EQ(stateOf(*cell), "a/ 22 at 1,1 entries [] width [2d] left []");
}

}  // namespace
}  // namespace kob::test
