// SPDX-FileCopyrightText: The KOBTraduction authors
#include "PersistenceTest.h"

namespace kob::test {
namespace {

class WritingRecords : public PersistenceTest {};

/// A control cell below nothing, its factors as a new cell has them.
CellRef controlCell(TextView name) {
  CellRef cell = emptyCell(name);
  cell->setTypeFeuille(2);
  return cell;
}

TEST_F(WritingRecords, TheClassIdentifierOfEachClass) {
  EXPECT_EQ(KOBModeleTraduction().getProgID(), u"KOBTraduction.KOBModeleTraduction");
  EXPECT_EQ(named(u"a")->getProgID(), u"KOBTraduction.KOBCellTraduction");
  EXPECT_EQ(KOBTraductionObj().getProgID(), u"KOBTraduction.KOBTraductionObj");
}

TEST_F(WritingRecords, TheModelListsTheClassesOfItsGraphInOrder) {
  const auto table = KOBModeleTraduction().getProgIdTable();
  ASSERT_EQ(table->Count(), 3);
  EXPECT_EQ(table->Item(1), u"KOBTraduction.KOBModeleTraduction");
  EXPECT_EQ(table->Item(2), u"KOBTraduction.KOBCellTraduction");
  EXPECT_EQ(table->Item(3), u"KOBTraduction.KOBTraductionObj");
}

TEST_F(WritingRecords, TheModelMakesANewTableEachTime) {
  KOBModeleTraduction model;
  const auto first = model.getProgIdTable();
  first->Remove(1);
  const auto second = model.getProgIdTable();
  EXPECT_NE(first, second);
  EXPECT_EQ(second->Count(), 3);
}

TEST_F(WritingRecords, TheModelKeepsTheTable) {
  KOBModeleTraduction model;
  const std::weak_ptr<ProgIdTable> table = model.getProgIdTable();
  EXPECT_FALSE(table.expired());
}

TEST_F(WritingRecords, CellsAndEntriesHaveNoTable) {
  EXPECT_EQ(named(u"a")->getProgIdTable(), nullptr);
  EXPECT_EQ(KOBTraductionObj().getProgIdTable(), nullptr);
}

TEST_F(WritingRecords, TypeCodesAreThoseOfFiles) {
  EXPECT_EQ(static_cast<int>(PersistType::SmallInteger), 2);
  EXPECT_EQ(static_cast<int>(PersistType::Long), 3);
  EXPECT_EQ(static_cast<int>(PersistType::Double), 5);
  EXPECT_EQ(static_cast<int>(PersistType::String), 8);
  EXPECT_EQ(static_cast<int>(PersistType::Object), 9);
  EXPECT_EQ(static_cast<int>(PersistType::Boolean), 11);
}

TEST_F(WritingRecords, TheVersionComesBeforeTheValues) {
  KOBModeleTraduction model;
  ScriptedStream ofModel;
  model.write(ofModel);
  EXPECT_EQ(ofModel.operations().front(), "version=1");
  ScriptedStream ofCell;
  model.Racine()->write(ofCell);
  EXPECT_EQ(ofCell.operations().front(), "version=2");
  ScriptedStream ofEntry;
  KOBTraductionObj().write(ofEntry);
  EXPECT_EQ(ofEntry.operations().front(), "version=1");
}

TEST_F(WritingRecords, AVersionIsSetOnce) {
  ScriptedStream stream;
  emptyCell(u"a")->write(stream);
  EXPECT_EQ(stream.operations().size(), 1 + stream.record().values.size());
}

TEST_F(WritingRecords, AModelIsItsLanguageCountAndItsRoot) {
  KOBModeleTraduction model;
  EXPECT_THAT(written(model), ElementsAre(aLong(6), anObject(model.Racine())));
}

TEST_F(WritingRecords, AModelWritesTheCountOfTheThread) {
  KOBModeleTraduction model;
  Global_Util::setNbLangues(-4);
  EXPECT_THAT(written(model), ElementsAre(aLong(-4), anObject(model.Racine())));
}

TEST_F(WritingRecords, AnEntryIsItsNameAndItsTexts) {
  const EntryRef caption = entry(u"Caption", {u"Nom", u"Name", u"Naam"});
  EXPECT_THAT(written(*caption),
              ElementsAre(aText(u"Caption"), aText(u"Nom"), aText(u"Name"), aText(u"Naam")));
}

TEST_F(WritingRecords, AShortEntryIsPaddedWithEmptyTexts) {
  const EntryRef caption = entry(u"Caption", {u"Nom", u"Name"});
  EXPECT_THAT(written(*caption), ElementsAre(aText(u"Caption"), aText(u"Nom"), aText(u"Name"), aText(u"")));
}

TEST_F(WritingRecords, ALongEntryIsCutAtTheLanguageCount) {
  const EntryRef caption = entry(u"Caption", {u"a", u"b", u"c", u"d", u"e"});
  EXPECT_THAT(written(*caption), ElementsAre(aText(u"Caption"), aText(u"a"), aText(u"b"), aText(u"c")));
  EXPECT_EQ(caption->ColTraduction()->Count(), 5) << "writing changes nothing";
}

TEST_F(WritingRecords, AnEntryInVeryManyLanguagesIsWrittenWhole) {
  Global_Util::setNbLangues(40);
  const EntryRef texts = entry(u"Caption", {});
  texts->ColTraduction()->AddEmpty(40 - texts->ColTraduction()->Count());
  std::vector<::testing::Matcher<const RecordValue&>> expected = {aText(u"Caption")};
  for (std::int32_t language = 1; language <= 40; ++language) {
    texts->ChangeTraduction(decimal(language), language);
    expected.push_back(aText(decimal(language)));
  }
  EXPECT_THAT(written(*texts), ::testing::ElementsAreArray(expected));
}

TEST_F(WritingRecords, AnEntryWithoutTextsIsPaddedWhole) {
  EXPECT_THAT(written(*entry(u"", {})), ElementsAre(aText(u""), aText(u""), aText(u""), aText(u"")));
}

TEST_F(WritingRecords, AnEntryWithoutLanguagesIsItsName) {
  Global_Util::setNbLangues(0);
  EXPECT_THAT(written(*entry(u"Caption", {u"Nom"})), ElementsAre(aText(u"Caption")));
}

TEST_F(WritingRecords, AnEntryKeepsUnpairedSurrogatesAndZeros) {
  Global_Util::setNbLangues(1);
  const Text odd = {0xD800, 0, u'a', 0xDC00};
  EXPECT_THAT(written(*entry(u"", {odd})), ElementsAre(aText(u""), aText(odd)));
}

TEST_F(WritingRecords, AnEmptyLeafIsItsNamesKindsAndFlag) {
  const CellRef cell = emptyCell(u"a");
  cell->setAlias(u"b");
  EXPECT_THAT(written(*cell), ElementsAre(aText(u"a"), aText(u"b"), aLong(2), aLong(0), aBoolean(false)));
}

TEST_F(WritingRecords, AContextCellEndsInTrue) {
  const CellRef cell = emptyCell(u"a");
  cell->setContexte(true);
  EXPECT_THAT(written(*cell), ElementsAre(aText(u"a"), aText(u""), aLong(2), aLong(0), aBoolean(true)));
}

TEST_F(WritingRecords, TrueIsMinusOne) {
  EXPECT_EQ(aBoolean(true).integer, -1);
  EXPECT_EQ(PersistValue::ofBoolean(true).integer(), -1);
  EXPECT_EQ(PersistValue::ofBoolean(false).integer(), 0);
}

TEST_F(WritingRecords, ANodeWritesItsChildrenBehindTheirNumberInListOrder) {
  const CellRef node = emptyCell(u"node");
  const CellRef z = emptyCell(u"z");
  const CellRef a = emptyCell(u"a");
  append(node, z);
  append(node, a);
  EXPECT_THAT(written(*node), ElementsAre(aText(u"node"), aText(u""), aLong(1), aLong(2), anObject(z),
                                          anObject(a), aLong(0), aBoolean(false)));
}

TEST_F(WritingRecords, ANodeWithoutChildrenWritesZero) {
  EXPECT_THAT(written(*KOBCellTraduction::createNode()),
              ElementsAre(aText(u""), aText(u""), aLong(1), aLong(0), aLong(0), aBoolean(false)));
}

TEST_F(WritingRecords, ALeafWritesNoChildCountEvenWhenAListWasPutIntoIt) {
  const CellRef leaf = emptyCell(u"a");
  leaf->setColCell(std::make_shared<CellList>());
  leaf->ColCell()->Add(emptyCell(u"b"));
  EXPECT_THAT(written(*leaf), ElementsAre(aText(u"a"), aText(u""), aLong(2), aLong(0), aBoolean(false)));
}

TEST_F(WritingRecords, AChildThatIsNothingIsWrittenAsNothing) {
  const CellRef node = KOBCellTraduction::createNode();
  node->ColCell()->Add(nullptr);
  EXPECT_THAT(written(*node),
              ElementsAre(aText(u""), aText(u""), aLong(1), aLong(1), nothing(), aLong(0), aBoolean(false)));
  EXPECT_TRUE(writes(*node));
}

TEST_F(WritingRecords, TheParentIsNeverWritten) {
  const CellRef node = emptyCell(u"node");
  const CellRef child = emptyCell(u"child");
  append(node, child);
  for (const RecordValue& value : written(*child)) {
    EXPECT_NE(value.type, PersistType::Object);
  }
}

TEST_F(WritingRecords, AMessageIsItsEntry) {
  const CellRef cell = named(u"a");
  EXPECT_THAT(written(*cell), ElementsAre(aText(u"a"), aText(u""), aLong(2), aLong(1),
                                          anObject(cell->Traduction()), aBoolean(false)));
}

TEST_F(WritingRecords, AMessageWithoutEntryIsNothing) {
  const CellRef cell = named(u"a");
  cell->setTraduction(nullptr);
  EXPECT_THAT(written(*cell),
              ElementsAre(aText(u"a"), aText(u""), aLong(2), aLong(1), nothing(), aBoolean(false)));
  EXPECT_TRUE(writes(*cell));
}

TEST_F(WritingRecords, AControlWritesWidthBeforeLeftForEachLanguage) {
  const CellRef cell = controlCell(u"a");
  cell->setm_left(7);
  cell->setm_width(-9);
  cell->ChangeLeft(0.5, 1);
  cell->ChangeWidth(1.5, 1);
  cell->ChangeLeft(0.25, 3);
  cell->ChangeWidth(2, 2);
  EXPECT_THAT(written(*cell), ElementsAre(aText(u"a"), aText(u""), aLong(2), aLong(2), aLong(7), aLong(-9),
                                          aLong(0), aDouble(1.5), aDouble(0.5), aDouble(2), aSmallInteger(1),
                                          aSmallInteger(1), aDouble(0.25), aBoolean(false)));
}

TEST_F(WritingRecords, AControlWritesItsEntriesInListOrder) {
  Global_Util::setNbLangues(0);
  const CellRef cell = controlCell(u"a");
  const EntryRef toolTip = entry(u"ToolTip", {});
  const EntryRef caption = entry(u"Caption", {});
  cell->ColTraduction()->Add(toolTip);
  cell->ColTraduction()->Add(caption);
  EXPECT_THAT(written(*cell), ElementsAre(aText(u"a"), aText(u""), aLong(2), aLong(2), aLong(0), aLong(0),
                                          aLong(2), anObject(toolTip), anObject(caption), aBoolean(false)));
}

TEST_F(WritingRecords, AnUntouchedFactorIsTheSmallIntegerOne) {
  Global_Util::setNbLangues(1);
  EXPECT_THAT(written(*controlCell(u"a")),
              ElementsAre(aText(u"a"), aText(u""), aLong(2), aLong(2), aLong(0), aLong(0), aLong(0),
                          aSmallInteger(1), aSmallInteger(1), aBoolean(false)));
}

TEST_F(WritingRecords, AFactorSetToOneIsADouble) {
  Global_Util::setNbLangues(1);
  const CellRef cell = controlCell(u"a");
  cell->ChangeWidth(1.0, 1);
  EXPECT_THAT(written(*cell), ElementsAre(aText(u"a"), aText(u""), aLong(2), aLong(2), aLong(0), aLong(0),
                                          aLong(0), aDouble(1.0), aSmallInteger(1), aBoolean(false)));
}

TEST_F(WritingRecords, FactorsBeyondTheLanguageCountAreLeftOut) {
  const CellRef cell = controlCell(u"a");
  Global_Util::setNbLangues(1);
  EXPECT_EQ(written(*cell).size(), 10U);
  EXPECT_TRUE(writes(*cell));
}

TEST_F(WritingRecords, AnEntryThatIsNothingIsWrittenAsNothing) {
  Global_Util::setNbLangues(0);
  const CellRef cell = controlCell(u"a");
  cell->ColTraduction()->Add(nullptr);
  EXPECT_THAT(written(*cell), ElementsAre(aText(u"a"), aText(u""), aLong(2), aLong(2), aLong(0), aLong(0),
                                          aLong(1), nothing(), aBoolean(false)));
  EXPECT_TRUE(writes(*cell));
}

TEST_F(WritingRecords, ANodeMayBeAMessageToo) {
  const CellRef cell = named(u"a");
  append(cell, emptyCell(u"b"));
  EXPECT_THAT(written(*cell),
              ElementsAre(aText(u"a"), aText(u""), aLong(1), aLong(1), anObject(cell->ColCell()->Item(1)),
                          aLong(1), anObject(cell->Traduction()), aBoolean(false)));
}

}  // namespace
}  // namespace kob::test
