// SPDX-FileCopyrightText: The KOBTraduction authors
#include "PersistenceTest.h"

#include <limits>

namespace kob::test {
namespace {

class ReadingModels : public PersistenceTest {};
class ReadingEntries : public PersistenceTest {};

TEST_F(ReadingModels, ReadsTheVersionOnceAndFirst) {
  ScriptedStream stream({1, {aLong(6), anObject(emptyCell(u"root"))}});
  KOBModeleTraduction().read(stream);
  EXPECT_THAT(stream.operations(), ElementsAre("version?", "3 6", "9 KOBTraduction.KOBCellTraduction"));
}

TEST_F(ReadingModels, TheRootIsReplaced) {
  KOBModeleTraduction model;
  const CellRef root = emptyCell(u"other");
  EXPECT_TRUE(reads(model, 1, {aLong(6), anObject(root)}));
  EXPECT_EQ(model.Racine(), root);
}

TEST_F(ReadingModels, PathsLeadIntoTheNewTree) {
  KOBModeleTraduction model;
  model.Racine()->AddNoeuds(u"a");
  const CellRef root = emptyCell(u"root");
  append(root, emptyCell(u"A"));
  // From here on no tree changes but by the record.
  const CellRef before = model.GetCell(u"a");
  EXPECT_TRUE(reads(model, 1, {aLong(6), anObject(root)}));
  EXPECT_EQ(model.GetCell(u"a"), root->ColCell()->Item(1));
  EXPECT_NE(model.GetCell(u"a"), before);
}

TEST_F(ReadingModels, ASmallerLanguageCountHoldsForTheThread) {
  KOBModeleTraduction model;
  Global_Util::setNbLangues(5);
  EXPECT_TRUE(reads(model, 1, {aLong(3), anObject(emptyCell(u"root"))}));
  EXPECT_EQ(Global_Util::NbLangues(), 3);
}

TEST_F(ReadingModels, ALargerLanguageCountExtendsNeitherTheOldNorTheNewNorAnotherTree) {
  KOBModeleTraduction model;
  KOBModeleTraduction other;
  const CellRef old = message(model.Racine(), u"a", {u"1", u"2"});
  const CellRef elsewhere = message(other.Racine(), u"a", {u"1", u"2"});
  const CellRef root = emptyCell(u"root");
  const CellRef read = message(root, u"a", {u"1", u"2"});
  EXPECT_TRUE(reads(model, 1, {aLong(9), anObject(root)}));
  EXPECT_EQ(Global_Util::NbLangues(), 9);
  EXPECT_EQ(texts(old).size(), 2U);
  EXPECT_EQ(texts(elsewhere).size(), 2U);
  EXPECT_EQ(texts(read).size(), 2U);
}

TEST_F(ReadingModels, AnyVersionIsRead) {
  KOBModeleTraduction model;
  for (const std::int32_t version : {-1, 0, 2, 77}) {
    EXPECT_TRUE(reads(model, version, {aLong(4), anObject(emptyCell(u"root"))})) << version;
  }
}

TEST_F(ReadingModels, NegativeAndHugeLanguageCountsAreTakenAsTheyAre) {
  KOBModeleTraduction model;
  for (const std::int32_t count :
       {std::numeric_limits<std::int32_t>::min(), -1, 0, std::numeric_limits<std::int32_t>::max()}) {
    EXPECT_TRUE(reads(model, 1, {aLong(count), anObject(model.Racine())}));
    EXPECT_EQ(Global_Util::NbLangues(), count);
  }
}

TEST_F(ReadingModels, ARootThatIsNothingFailsAndTheOldOneStays) {
  KOBModeleTraduction model;
  const CellRef root = model.Racine();
  EXPECT_FALSE(reads(model, 1, {aLong(4), nothing()}));
  EXPECT_EQ(model.Racine(), root);
  EXPECT_EQ(Global_Util::NbLangues(), 4) << "what was read before stays";
}

TEST_F(ReadingModels, ARootOfAnotherClassFails) {
  KOBModeleTraduction model;
  const CellRef root = model.Racine();
  EXPECT_FALSE(reads(model, 1, {aLong(4), anObject(std::make_shared<KOBTraductionObj>())}));
  EXPECT_FALSE(reads(model, 1, {aLong(4), anObject(std::make_shared<KOBModeleTraduction>())}));
  EXPECT_FALSE(reads(model, 1, {aLong(4), aLong(1)}));
  EXPECT_FALSE(reads(model, 1, {aLong(4), aText(u"RACINE")}));
  EXPECT_EQ(model.Racine(), root);
}

TEST_F(ReadingModels, TheRootKeepsTheParentThatItHas) {
  KOBModeleTraduction model;
  const CellRef above = emptyCell(u"above");
  const CellRef root = emptyCell(u"root");
  append(above, root);
  EXPECT_TRUE(reads(model, 1, {aLong(6), anObject(root)}));
  EXPECT_EQ(root->parentcell(), above);
}

TEST_F(ReadingEntries, ReadsTheVersionOnceAndFirst) {
  ScriptedStream stream({1, {aText(u"Caption"), aText(u"a"), aText(u"b"), aText(u"c")}});
  KOBTraductionObj().read(stream);
  EXPECT_THAT(stream.operations(),
              ElementsAre("version?", R"(8 "Caption")", R"(8 "a")", R"(8 "b")", R"(8 "c")"));
}

TEST_F(ReadingEntries, TheNameAndATextPerLanguage) {
  const EntryRef entry = entryRead({aText(u"Caption"), aText(u"Nom"), aText(u""), aText(u"Naam")});
  EXPECT_EQ(stateOf(*entry), R"(Caption: ["Nom" "" "Naam"])");
}

TEST_F(ReadingEntries, AnyVersionIsRead) {
  KOBTraductionObj entry;
  for (const std::int32_t version : {-1, 0, 2, 77}) {
    EXPECT_TRUE(reads(entry, version, {aText(u""), aText(u""), aText(u""), aText(u"")})) << version;
  }
}

TEST_F(ReadingEntries, TheListIsANewOne) {
  const EntryRef made = entry(u"Old", {u"x", u"y", u"z", u"and more"});
  const auto list = made->ColTraduction();
  EXPECT_TRUE(reads(*made, 1, {aText(u"New"), aText(u"a"), aText(u"b"), aText(u"c")}));
  EXPECT_NE(made->ColTraduction(), list);
  EXPECT_EQ(list->Count(), 4) << "who holds the old list is not disturbed";
  EXPECT_EQ(stateOf(*made), R"(New: ["a" "b" "c"])");
}

TEST_F(ReadingEntries, AnEntryWhoseListIsNoneGetsOne) {
  KOBTraductionObj entry;
  entry.setColTraduction(nullptr);
  EXPECT_TRUE(reads(entry, 1, {aText(u""), aText(u"a"), aText(u"b"), aText(u"c")}));
  EXPECT_EQ(stateOf(entry), R"(: ["a" "b" "c"])");
}

TEST_F(ReadingEntries, WithoutLanguagesTheListIsEmpty) {
  for (const std::int32_t count : {0, -1, std::numeric_limits<std::int32_t>::min()}) {
    Global_Util::setNbLangues(count);
    EXPECT_EQ(stateOf(*entryRead({aText(u"Caption")})), "Caption: []") << count;
  }
}

TEST_F(ReadingEntries, AHugeLanguageCountFailsWhereTheRecordEnds) {
  KOBTraductionObj entry;
  Global_Util::setNbLangues(std::numeric_limits<std::int32_t>::max());
  EXPECT_FALSE(reads(entry, 1, {aText(u"Caption"), aText(u"a")}));
  EXPECT_EQ(stateOf(entry), R"(Caption: ["a"])");
}

TEST_F(ReadingEntries, AnyUnitsComeBack) {
  Global_Util::setNbLangues(1);
  const Text odd = {0xD800, 0, u'a', 0xDC00, 0xFFFF};
  const EntryRef entry = entryRead({aText(odd), aText(odd)});
  EXPECT_EQ(entry->nom(), odd);
  EXPECT_EQ(entry->ColTraduction()->Item(1), odd);
}

TEST_F(ReadingEntries, TextsOutliveTheStream) {
  EntryRef entry = std::make_shared<KOBTraductionObj>();
  {
    ScriptedStream stream(
        {1, {aText(u"Caption"), aText(u"long enough"), aText(u"to be"), aText(u"elsewhere")}});
    entry->read(stream);
  }
  EXPECT_EQ(stateOf(*entry), R"(Caption: ["long enough" "to be" "elsewhere"])");
}

TEST_F(ReadingEntries, TextsOfAnImageStayWhereTheyAreAndOutliveTheStream) {
  EntryRef entry = std::make_shared<KOBTraductionObj>();
  std::weak_ptr<const void> image;
  {
    ScriptedStream stream(
        {1, {aText(u"Caption"), aText(u"long enough"), aText(u"to be"), aText(u"elsewhere")}});
    stream.keepTexts();
    image = stream.kept();
    entry->read(stream);
  }
  EXPECT_FALSE(image.expired());
  EXPECT_EQ(stateOf(*entry), R"(Caption: ["long enough" "to be" "elsewhere"])");
  entry = nullptr;
  EXPECT_TRUE(image.expired()) << "nothing else keeps it";
}

TEST_F(ReadingEntries, ANumberAmongTheTextsOfAnImageIsKeptAsText) {
  EntryRef entry = std::make_shared<KOBTraductionObj>();
  {
    ScriptedStream stream({1, {aText(u"Caption"), aText(u"a"), aLong(12), aDouble(2.5)}});
    stream.keepTexts();
    entry->read(stream);
  }
  EXPECT_EQ(stateOf(*entry), R"(Caption: ["a" "12" "2.5"])");
}

TEST_F(ReadingEntries, ATextOfAnImageCanBeChanged) {
  EntryRef entry = std::make_shared<KOBTraductionObj>();
  {
    ScriptedStream stream({1, {aText(u"Caption"), aText(u"a"), aText(u"b"), aText(u"c")}});
    stream.keepTexts();
    entry->read(stream);
  }
  entry->ChangeTraduction(u"changed", 2);
  EXPECT_EQ(stateOf(*entry), R"(Caption: ["a" "changed" "c"])");
}

}  // namespace
}  // namespace kob::test
