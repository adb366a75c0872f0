// SPDX-FileCopyrightText: The KOBTraduction authors
#include "PersistenceTest.h"

#include <kobtraduction/persistence/FileManager.h>

#include <functional>
#include <new>
#include <stdexcept>

namespace kob::test {
namespace {

class FailingWrites : public PersistenceTest {
 protected:
  /// Lets each operation fail in turn: what was written before it stays, and nothing comes behind it.
  static void failEverywhere(IKOBVBPersistStream& object) {
    ScriptedStream whole;
    object.write(whole);
    const auto& all = whole.operations();
    for (std::size_t i = 0; i <= all.size(); ++i) {
      ScriptedStream stream;
      stream.failAt(static_cast<int>(i) + 1);
      Global_Util::setPersistOk(true);
      EXPECT_NO_THROW(object.write(stream));
      EXPECT_EQ(Global_Util::PersistOk(), i == all.size()) << i;
      const std::vector<std::string> before(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(i));
      EXPECT_EQ(stream.operations(), before) << i;
    }
  }
};

CellRef controlWithEntry() {
  CellRef cell = emptyCell(u"c");
  cell->setTypeFeuille(2);
  cell->ColTraduction()->Add(entry(u"Caption", {u"a", u"b", u"c"}));
  return cell;
}

TEST_F(FailingWrites, AModelStopsWhereItFails) {
  KOBModeleTraduction model;
  failEverywhere(model);
}

TEST_F(FailingWrites, AnEntryStopsWhereItFails) {
  failEverywhere(*entry(u"Caption", {u"a", u"b", u"c"}));
}

TEST_F(FailingWrites, AnEntryInVeryManyLanguagesStopsWhereItFails) {
  Global_Util::setNbLangues(40);
  failEverywhere(*entry(u"Caption", {u"a", u"b", u"c"}));
}

TEST_F(FailingWrites, AControlWhoseListOfEntriesIsNoneWritesItsIndicatorsBeforeItFails) {
  const CellRef cell = controlWithEntry();
  cell->setColTraduction(nullptr);
  cell->setm_left(7);
  cell->setm_width(-9);
  ScriptedStream stream;
  cell->write(stream);
  EXPECT_FALSE(Global_Util::PersistOk());
  EXPECT_THAT(stream.record().values,
              ElementsAre(aText(u"c"), aText(u""), aLong(2), aLong(2), aLong(7), aLong(-9)));
}

TEST_F(FailingWrites, AnEmptyLeafStopsWhereItFails) {
  failEverywhere(*emptyCell(u"a"));
}

TEST_F(FailingWrites, ANodeStopsWhereItFails) {
  const CellRef node = emptyCell(u"n");
  append(node, emptyCell(u"a"));
  append(node, emptyCell(u"b"));
  failEverywhere(*node);
}

TEST_F(FailingWrites, AMessageStopsWhereItFails) {
  failEverywhere(*named(u"m"));
}

TEST_F(FailingWrites, AControlStopsWhereItFails) {
  failEverywhere(*controlWithEntry());
}

TEST_F(FailingWrites, AMissingWidthFails) {
  const CellRef cell = controlWithEntry();
  cell->ColWidth()->Remove(1);
  EXPECT_FALSE(writes(*cell));
  EXPECT_THAT(written(*cell),
              ElementsAre(aText(u"c"), aText(u""), aLong(2), aLong(2), aLong(0), aLong(0), aLong(1),
                          anObject(cell->ColTraduction()->Item(1)), aSmallInteger(1), aSmallInteger(1),
                          aSmallInteger(1), aSmallInteger(1)));
}

TEST_F(FailingWrites, AMissingLeftFailsBehindItsWidth) {
  const CellRef cell = controlWithEntry();
  cell->ColLeft()->Remove(1);
  EXPECT_FALSE(writes(*cell));
  EXPECT_EQ(written(*cell).size(), 13U);
}

TEST_F(FailingWrites, FactorsMissingBecauseTheLanguageCountGrewFail) {
  const CellRef cell = controlWithEntry();
  Global_Util::setNbLangues(4);
  EXPECT_FALSE(writes(*cell));
  EXPECT_EQ(written(*cell).size(), 14U);
}

TEST_F(FailingWrites, AListOfWidthsThatIsNoneFails) {
  const CellRef cell = controlWithEntry();
  cell->setColWidth(nullptr);
  EXPECT_FALSE(writes(*cell));
  EXPECT_EQ(written(*cell).size(), 8U);
}

TEST_F(FailingWrites, AListOfLeftsThatIsNoneFails) {
  const CellRef cell = controlWithEntry();
  cell->setColLeft(nullptr);
  EXPECT_FALSE(writes(*cell));
  EXPECT_EQ(written(*cell).size(), 9U);
}

TEST_F(FailingWrites, WithoutLanguagesNoFactorIsMissing) {
  const CellRef cell = controlWithEntry();
  cell->setColLeft(nullptr);
  cell->setColWidth(nullptr);
  Global_Util::setNbLangues(0);
  EXPECT_TRUE(writes(*cell));
}

TEST_F(FailingWrites, AListOfEntriesThatIsNoneFails) {
  const CellRef cell = controlWithEntry();
  cell->setColTraduction(nullptr);
  EXPECT_FALSE(writes(*cell));
  EXPECT_EQ(written(*cell).size(), 6U);
}

TEST_F(FailingWrites, ANodeWhoseListIsNoneFails) {
  const CellRef node = KOBCellTraduction::createNode();
  node->setColCell(nullptr);
  EXPECT_FALSE(writes(*node));
  EXPECT_EQ(written(*node).size(), 3U);
}

TEST_F(FailingWrites, AnEntryWhoseListIsNoneFailsBehindItsName) {
  const EntryRef made = entry(u"Caption", {});
  made->setColTraduction(nullptr);
  EXPECT_FALSE(writes(*made));
  EXPECT_THAT(written(*made), ElementsAre(aText(u"Caption")));
}

TEST_F(FailingWrites, WithoutLanguagesAnEntryNeedsNoList) {
  const EntryRef made = entry(u"Caption", {});
  made->setColTraduction(nullptr);
  Global_Util::setNbLangues(0);
  EXPECT_TRUE(writes(*made));
}

TEST_F(FailingWrites, WhateverTheStreamThrowsStaysInside) {
  const std::function<void()> raises[] = {
      [] { throw PersistFailure(u"no disk"); }, [] { throw Failure(FailureKind::InvalidIndex); },
      [] { throw std::runtime_error("no disk"); }, [] { throw std::bad_alloc(); }, [] { throw 5; }};
  for (const auto& raise : raises) {
    ScriptedStream stream;
    stream.failAt(3, raise);
    Global_Util::setPersistOk(true);
    EXPECT_NO_THROW(emptyCell(u"a")->write(stream));
    EXPECT_FALSE(Global_Util::PersistOk());
  }
}

TEST_F(FailingWrites, ARecordThatSucceedsDoesNotClearAnEarlierFailure) {
  Global_Util::setPersistOk(false);
  written(*emptyCell(u"a"));
  EXPECT_FALSE(Global_Util::PersistOk());
}

}  // namespace
}  // namespace kob::test
