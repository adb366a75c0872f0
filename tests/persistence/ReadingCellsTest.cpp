// SPDX-FileCopyrightText: The KOBTraduction authors
#include "PersistenceTest.h"

#include <limits>

namespace kob::test {
namespace {

class ReadingCells : public PersistenceTest {};

const Values threeFactors = {aDouble(1.5),     aDouble(0.5), aSmallInteger(1),
                             aSmallInteger(1), aDouble(1),   aSmallInteger(1)};

/// The values of a control without entries, up to its flag.
Values controlStart(const RecordValue& left, const RecordValue& width) {
  return cellStart(u"a", 2) + Values{left, width, aLong(0)} + threeFactors;
}

TEST_F(ReadingCells, ReadsTheVersionOnceAndFirst) {
  ScriptedStream stream({2, cellStart(u"a", 0) + Values{aBoolean(false)}});
  KOBCellTraduction::create()->read(stream);
  EXPECT_THAT(stream.operations(), ElementsAre("version?", R"(8 "a")", R"(8 "")", "3 2", "3 0", "11 0"));
}

TEST_F(ReadingCells, ALeafWithoutTranslation) {
  const CellRef cell = cellRead({aText(u"a"), aText(u"b"), aLong(2), aLong(0), aBoolean(true)});
  EXPECT_EQ(stateOf(*cell), "a/b 20 context");
}

TEST_F(ReadingCells, AVersionOneRecordHasNoFlag) {
  EXPECT_EQ(stateOf(*cellRead(cellStart(u"a", 0), 1)), "a/ 20");
}

TEST_F(ReadingCells, AVersionOneRecordLeavesTheFlagAsItWas) {
  const CellRef cell = KOBCellTraduction::create();
  cell->setContexte(true);
  EXPECT_TRUE(reads(*cell, 1, cellStart(u"a", 0)));
  EXPECT_TRUE(cell->Contexte());
}

TEST_F(ReadingCells, OnlyVersionTwoHasAFlag) {
  for (const std::int32_t version : {-2, 0, 1, 3, 258}) {
    const CellRef cell = KOBCellTraduction::create();
    ScriptedStream stream({version, cellStart(u"a", 0) + Values{aBoolean(true)}});
    cell->read(stream);
    EXPECT_EQ(stream.valuesRead(), 4U) << version;
    EXPECT_FALSE(cell->Contexte()) << version;
  }
}

TEST_F(ReadingCells, AVersionTwoRecordWithoutFlagFails) {
  const CellRef cell = KOBCellTraduction::create();
  EXPECT_FALSE(reads(*cell, 2, cellStart(u"a", 0)));
  EXPECT_EQ(stateOf(*cell), "a/ 20");
}

TEST_F(ReadingCells, ANodeTakesItsChildrenInOrderAndBecomesTheirParent) {
  const CellRef z = emptyCell(u"z");
  const CellRef a = emptyCell(u"a");
  const CellRef node = cellRead(
      {aText(u"n"), aText(u""), aLong(1), aLong(2), anObject(z), anObject(a), aLong(0), aBoolean(false)});
  EXPECT_EQ(stateOf(*node), "n/ 10 cells [z a]");
  EXPECT_EQ(node->ColCell()->Item(1), z);
  EXPECT_EQ(z->parentcell(), node);
  EXPECT_EQ(a->parentcell(), node);
}

TEST_F(ReadingCells, ANodeWhoseFirstChildFailsIsEmptyAndTakesOthers) {
  const CellRef node = KOBCellTraduction::create();
  EXPECT_FALSE(reads(*node, 2, {aText(u"n"), aText(u""), aLong(1), aLong(3), anObject(nullptr)}));
  const std::shared_ptr<CellList> children = node->ColCell();
  EXPECT_EQ(children->Count(), 0);
  EXPECT_TRUE(children->begin() == children->end());
  EXPECT_EQ(node->GetCell(u"x"), nullptr);
  const CellRef b = node->AddNoeuds(u"b");
  const CellRef a = node->AddNoeuds(u"a");
  EXPECT_EQ(children->Item(1), a);
  EXPECT_EQ(children->Item(2), b);
}

TEST_F(ReadingCells, ANameOfAnImageStaysWhereItIsUntilTheCellIsRenamed) {
  const CellRef cell = KOBCellTraduction::create();
  std::weak_ptr<const void> image;
  {
    ScriptedStream stream({2, cellStart(u"a name that is long enough", 0) + Values{aBoolean(false)}});
    stream.keepTexts();
    image = stream.kept();
    cell->read(stream);
  }
  EXPECT_FALSE(image.expired());
  EXPECT_EQ(cell->nom(), u"a name that is long enough");
  cell->setnom(u"another one");
  EXPECT_TRUE(image.expired()) << "nothing else keeps it";
  EXPECT_EQ(cell->nom(), u"another one");
}

TEST_F(ReadingCells, ANumberInThePlaceOfANameOfAnImageIsKeptAsText) {
  const CellRef cell = KOBCellTraduction::create();
  {
    ScriptedStream stream({2, {aLong(12), aText(u""), aLong(2), aLong(0), aBoolean(false)}});
    stream.keepTexts();
    cell->read(stream);
  }
  EXPECT_EQ(cell->nom(), u"12");
}

TEST_F(ReadingCells, ChildrenThatWereReadAreFound) {
  const CellRef child = emptyCell(u"Enfant");
  const CellRef node =
      cellRead({aText(u"n"), aText(u""), aLong(1), aLong(1), anObject(child), aLong(0), aBoolean(false)});
  EXPECT_EQ(node->GetCell(u"ENFANT"), child);
}

TEST_F(ReadingCells, EqualNamesAreBothKept) {
  const CellRef node = cellRead({aText(u"n"), aText(u""), aLong(1), aLong(2), anObject(emptyCell(u"a")),
                                 anObject(emptyCell(u"A")), aLong(0), aBoolean(false)});
  EXPECT_EQ(stateOf(*node), "n/ 10 cells [a A]");
}

TEST_F(ReadingCells, TheListOfChildrenIsANewOne) {
  const CellRef node = KOBCellTraduction::createNode();
  append(node, emptyCell(u"old"));
  const auto list = node->ColCell();
  EXPECT_TRUE(reads(*node, 2, {aText(u"n"), aText(u""), aLong(1), aLong(0), aLong(0), aBoolean(false)}));
  EXPECT_EQ(stateOf(*node), "n/ 10 cells []");
  EXPECT_EQ(list->Count(), 1) << "who holds the old list is not disturbed";
}

TEST_F(ReadingCells, ALeafLosesTheChildrenThatItHad) {
  const CellRef node = KOBCellTraduction::createNode();
  append(node, emptyCell(u"old"));
  EXPECT_TRUE(reads(*node, 2, cellStart(u"a", 0) + Values{aBoolean(false)}));
  EXPECT_EQ(stateOf(*node), "a/ 20");
  EXPECT_EQ(node->ColCell(), nullptr);
}

TEST_F(ReadingCells, AKindOfCellThatIsNoneIsIgnored) {
  for (const std::int32_t kind : {0, 3, -1, 1 << 30}) {
    const CellRef cell = cellRead({aText(u"a"), aText(u""), aLong(kind), aLong(0), aBoolean(false)});
    EXPECT_EQ(cell->TypeCell(), 2) << kind;
  }
}

TEST_F(ReadingCells, AKindOfCellThatIsNoneLeavesANodeANode) {
  const CellRef node = KOBCellTraduction::createNode();
  EXPECT_TRUE(reads(*node, 2, {aText(u"a"), aText(u""), aLong(5), aLong(0), aLong(0), aBoolean(false)}));
  EXPECT_EQ(stateOf(*node), "a/ 10 cells []");
}

TEST_F(ReadingCells, AKindOfTranslationThatIsNoneLeavesAMessageAMessage) {
  const EntryRef read = entry(u"", {u"text"});
  for (const std::int32_t kind : {-1, 3, 1 << 30}) {
    const CellRef cell = cellRead(cellStart(u"a", kind) + Values{anObject(read), aBoolean(false)});
    EXPECT_EQ(cell->TypeFeuille(), 1) << kind;
    EXPECT_EQ(cell->Traduction(), read) << kind;
  }
}

TEST_F(ReadingCells, NegativeNumbersOfChildrenAreNone) {
  for (const std::int32_t count : {-1, std::numeric_limits<std::int32_t>::min()}) {
    const CellRef cell =
        cellRead({aText(u"a"), aText(u""), aLong(1), aLong(count), aLong(0), aBoolean(false)});
    EXPECT_EQ(stateOf(*cell), "a/ 10 cells []") << count;
  }
}

TEST_F(ReadingCells, AHugeNumberOfChildrenFailsWhereTheRecordEnds) {
  const CellRef cell = KOBCellTraduction::create();
  const std::int32_t huge = std::numeric_limits<std::int32_t>::max();
  EXPECT_FALSE(reads(*cell, 2, {aText(u"a"), aText(u""), aLong(1), aLong(huge), anObject(emptyCell(u"b"))}));
  EXPECT_EQ(cell->ColCell()->Count(), 1);
}

TEST_F(ReadingCells, AChildThatIsNothingFails) {
  const CellRef cell = KOBCellTraduction::create();
  EXPECT_FALSE(reads(*cell, 2,
                     {aText(u"a"), aText(u""), aLong(1), aLong(2), anObject(emptyCell(u"b")), nothing(),
                      aLong(0), aBoolean(true)}));
  EXPECT_EQ(cell->ColCell()->Count(), 1);
  EXPECT_FALSE(cell->Contexte());
}

TEST_F(ReadingCells, AChildOfAnotherClassFails) {
  const CellRef cell = KOBCellTraduction::create();
  for (const PersistRef& wrong : {PersistRef(std::make_shared<KOBTraductionObj>()),
                                  PersistRef(std::make_shared<KOBModeleTraduction>())}) {
    EXPECT_FALSE(reads(*cell, 2, {aText(u"a"), aText(u""), aLong(1), aLong(1), anObject(wrong)}));
    EXPECT_EQ(cell->ColCell()->Count(), 0);
  }
}

TEST_F(ReadingCells, AMessageTakesItsEntry) {
  const EntryRef read = entry(u"x", {u"text"});
  const CellRef cell = cellRead(cellStart(u"a", 1) + Values{anObject(read), aBoolean(false)});
  EXPECT_EQ(cell->Traduction(), read);
  EXPECT_EQ(stateOf(*cell), R"(a/ 21 message ["text"])");
}

TEST_F(ReadingCells, AMessageWhoseEntryIsNothingHasNone) {
  const CellRef cell = cellRead(cellStart(u"a", 1) + Values{nothing(), aBoolean(true)});
  EXPECT_EQ(cell->Traduction(), nullptr);
  EXPECT_EQ(stateOf(*cell), "a/ 21 context");
}

TEST_F(ReadingCells, AMessageWhoseEntryIsOfAnotherClassFails) {
  const CellRef cell = KOBCellTraduction::create();
  const EntryRef before = cell->Traduction();
  EXPECT_FALSE(reads(*cell, 2, cellStart(u"a", 1) + Values{anObject(emptyCell(u"b")), aBoolean(true)}));
  EXPECT_EQ(cell->Traduction(), before);
}

TEST_F(ReadingCells, AControlReadsWidthBeforeLeftForEachLanguage) {
  const CellRef cell = cellRead(controlStart(aLong(1), aLong(-1)) + Values{aBoolean(false)});
  EXPECT_EQ(stateOf(*cell), "a/ 22 at 1,-1 entries [] width [1.5d 1 1d] left [0.5d 1 1]");
}

TEST_F(ReadingCells, AControlTakesItsEntriesInOrder) {
  const EntryRef toolTip = entry(u"ToolTip", {});
  const CellRef cell = cellRead(
      cellStart(u"a", 2) +
      Values{aLong(1), aLong(1), aLong(3), anObject(toolTip), nothing(), anObject(entry(u"Caption", {}))} +
      threeFactors + Values{aBoolean(true)});
  EXPECT_EQ(stateOf(*cell),
            "a/ 22 at 1,1 entries [ToolTip - Caption] width [1.5d 1 1d] left [0.5d 1 1] context");
  EXPECT_EQ(cell->ColTraduction()->Item(1), toolTip);
}

TEST_F(ReadingCells, EveryIndicatorButMinusOneReadsAsOne) {
  for (const std::int32_t value : {0, 1, 5, 2, -2, 255, std::numeric_limits<std::int32_t>::min(),
                                   std::numeric_limits<std::int32_t>::max()}) {
    const CellRef cell = cellRead(controlStart(aLong(value), aLong(-1)) + Values{aBoolean(false)});
    EXPECT_EQ(cell->m_left(), 1) << value;
    EXPECT_EQ(cell->m_width(), -1) << value;
    const CellRef other = cellRead(controlStart(aLong(-1), aLong(value)) + Values{aBoolean(false)});
    EXPECT_EQ(other->m_left(), -1) << value;
    EXPECT_EQ(other->m_width(), 1) << value;
  }
}

TEST_F(ReadingCells, TheListsOfAControlAreNewOnes) {
  const CellRef cell = KOBCellTraduction::createControl();
  cell->ColTraduction()->Add(entry(u"old", {}));
  cell->ChangeLeft(9, 1);
  const auto entries = cell->ColTraduction();
  const auto lefts = cell->ColLeft();
  const auto widths = cell->ColWidth();
  EXPECT_TRUE(reads(*cell, 2, controlStart(aLong(1), aLong(1)) + Values{aBoolean(false)}));
  EXPECT_EQ(stateOf(*cell), "a/ 22 at 1,1 entries [] width [1.5d 1 1d] left [0.5d 1 1]");
  EXPECT_EQ(entries->Count(), 1) << "who holds the old lists is not disturbed";
  EXPECT_EQ(stateOf(lefts), "9d 1 1");
  EXPECT_EQ(stateOf(widths), "1 1 1");
}

TEST_F(ReadingCells, ANegativeNumberOfEntriesIsNone) {
  Global_Util::setNbLangues(0);
  const CellRef cell = cellRead(cellStart(u"a", 2) + Values{aLong(1), aLong(1), aLong(-1), aBoolean(false)});
  EXPECT_EQ(stateOf(*cell), "a/ 22 at 1,1 entries [] width [] left []");
}

TEST_F(ReadingCells, AHugeNumberOfEntriesFailsWhereTheRecordEnds) {
  const CellRef cell = KOBCellTraduction::create();
  const std::int32_t huge = std::numeric_limits<std::int32_t>::max();
  EXPECT_FALSE(reads(
      *cell, 2, cellStart(u"a", 2) + Values{aLong(1), aLong(1), aLong(huge), anObject(entry(u"e", {}))}));
  EXPECT_EQ(stateOf(*cell), "a/ 22 at 1,1 entries [e] width [1 1 1] left [1 1 1]");
}

TEST_F(ReadingCells, AnEntryOfAnotherClassFails) {
  const CellRef cell = KOBCellTraduction::create();
  EXPECT_FALSE(
      reads(*cell, 2, cellStart(u"a", 2) + Values{aLong(1), aLong(1), aLong(1), anObject(emptyCell(u"b"))}));
  EXPECT_EQ(cell->ColTraduction()->Count(), 0);
}

TEST_F(ReadingCells, ANegativeLanguageCountReadsNoFactors) {
  Global_Util::setNbLangues(-7);
  const CellRef cell = cellRead(cellStart(u"a", 2) + Values{aLong(1), aLong(1), aLong(0), aBoolean(true)});
  EXPECT_EQ(stateOf(*cell), "a/ 22 at 1,1 entries [] width [] left [] context");
}

TEST_F(ReadingCells, AHugeLanguageCountFailsWhereTheRecordEndsAndTakesNoMemory) {
  const CellRef cell = KOBCellTraduction::create();
  Global_Util::setNbLangues(std::numeric_limits<std::int32_t>::max());
  EXPECT_FALSE(reads(*cell, 2, controlStart(aLong(-1), aLong(1))));
  EXPECT_EQ(stateOf(*cell), "a/ 22 at -1,1 entries [] width [1.5d 1 1d] left [0.5d 1 1]");
}

TEST_F(ReadingCells, AControlThatIsReadAsAMessageKeepsItsIndicators) {
  const CellRef cell = KOBCellTraduction::createControl();
  cell->setm_left(4);
  EXPECT_TRUE(reads(*cell, 2, cellStart(u"a", 1) + Values{nothing(), aBoolean(false)}));
  EXPECT_EQ(stateOf(*cell), "a/ 21 at 4,0");
}

TEST_F(ReadingCells, ANewNameIsKnownToTheListThatHoldsTheCell) {
  const CellRef node = KOBCellTraduction::createNode();
  const CellRef child = emptyCell(u"before");
  append(node, child);
  EXPECT_TRUE(reads(*child, 2, cellStart(u"after", 0) + Values{aBoolean(false)}));
  EXPECT_EQ(node->GetCell(u"after"), child);
  EXPECT_EQ(node->GetCell(u"before"), nullptr);
}

TEST_F(ReadingCells, ASharedEntryStaysOne) {
  const EntryRef shared = entry(u"Caption", {u"a"});
  Global_Util::setNbLangues(0);
  const Values values = cellStart(u"a", 2) + Values{aLong(1),         aLong(1),         aLong(2),
                                                    anObject(shared), anObject(shared), aBoolean(false)};
  const CellRef cell = cellRead(values);
  EXPECT_EQ(cell->ColTraduction()->Item(1), cell->ColTraduction()->Item(2));
}

}  // namespace
}  // namespace kob::test
