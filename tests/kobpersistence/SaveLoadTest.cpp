// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TestFile.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace kob::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Save and Load as a host sees them, on real files.
using SaveLoadTest = ServiceTest;

TEST_F(SaveLoadTest, SavingLeavesFichierAlone) {
  KOBModeleTraduction model;
  model.setFichier(u"autre.trad");
  EXPECT_TRUE(model.Save(name("m.trad")));
  EXPECT_EQ(model.Fichier(), u"autre.trad");
}

TEST_F(SaveLoadTest, LoadingSetsFichier) {
  KOBModeleTraduction model;
  ASSERT_TRUE(model.Save(name("m.trad")));
  EXPECT_TRUE(model.Load(name("m.trad")));
  EXPECT_EQ(model.Fichier(), name("m.trad"));
}

TEST_F(SaveLoadTest, AMissingFileShowsTheMessageAndLeavesFichier) {
  KOBModeleTraduction model;
  model.setFichier(u"avant.trad");
  EXPECT_FALSE(model.Load(name("m.trad")));
  EXPECT_EQ(lastNotice(), "Erreur de chargement du modèle\r\nThe file \"" + path("m.trad").string() +
                              "\" cannot be opened: it, or its folder, does not exist. Check the name.");
  EXPECT_THAT(boxes.titles, ElementsAre(u"KOBCN"));
  EXPECT_EQ(model.Fichier(), u"avant.trad");
}

TEST_F(SaveLoadTest, AMissingFolderShowsTheMessage) {
  KOBModeleTraduction model;
  EXPECT_FALSE(model.Save(name("no/m.trad")));
  EXPECT_EQ(lastNotice(), "Erreur de sauvegarde du modèle\r\nThe file \"" + path("no/m.trad").string() +
                              "\" cannot be written: it, or its folder, does not exist. Check the name.");
}

TEST_F(SaveLoadTest, ThreeLanguagesOfAFileReplaceFiveOfTheThread) {
  KOBModeleTraduction model;
  Global_Util::setNbLangues(3);
  message(model.Racine(), u"M", {u"un", u"deux", u"trois", u"quatre", u"cinq"});
  ASSERT_TRUE(model.Save(name("m.trad")));
  Global_Util::setNbLangues(5);
  EXPECT_TRUE(model.Load(name("m.trad"))) << lastNotice();
  EXPECT_EQ(Global_Util::NbLangues(), 3);
  EXPECT_EQ(texts(model.GetCell(u"M")), (Texts{u"un", u"deux", u"trois"}));
}

TEST_F(SaveLoadTest, AShortListIsFilledUpToTheLanguageCount) {
  KOBModeleTraduction model;
  message(model.Racine(), u"M", {u"un", u"deux"});
  ASSERT_TRUE(model.Save(name("m.trad")));
  EXPECT_TRUE(model.Load(name("m.trad"))) << lastNotice();
  EXPECT_EQ(texts(model.GetCell(u"M")), (Texts{u"un", u"deux", u"", u"", u"", u""}));
}

TEST_F(SaveLoadTest, AMissingFactorFailsWithoutAMessageAndTheRestIsInTheFile) {
  KOBModeleTraduction model;
  const CellRef cell = control(model.Racine(), u"C", {entry(u"Caption", {u"Un"})});
  cell->ColLeft()->Remove(6);
  message(model.Racine(), u"M", {u"Deux"});
  EXPECT_FALSE(model.Save(name("m.trad")));
  EXPECT_THAT(boxes.notices, IsEmpty());
  EXPECT_FALSE(model.Load(name("m.trad")));
  EXPECT_THAT(boxes.notices, IsEmpty());
  EXPECT_EQ(model.Fichier(), name("m.trad"));
  EXPECT_EQ(texts(model.GetCell(u"M")).front(), u"Deux");
  EXPECT_EQ(texts(*model.GetCell(u"C")->ColTraduction()->Item(1)->ColTraduction()).front(), u"Un");
  EXPECT_EQ(model.GetCell(u"C")->ColLeft()->Count(), 5);
}

TEST_F(SaveLoadTest, ARecordOfAnotherShapeKeepsWhatWasReadBefore) {
  const FileBytes cell = record(1, 2, letters("Nom") + letters("Alias") + letters("no number"));
  const FileBytes root =
      record(1, 2, emptyText + emptyText + longValue(1) + longValue(1) + nextObject + longValue(0) + no);
  putBytes(path("m.trad"), TestFile{.records = {modelRecord(2), root, cell}, .units = 17}.bytes());
  KOBModeleTraduction model;
  EXPECT_FALSE(model.Load(name("m.trad")));
  EXPECT_THAT(boxes.notices, IsEmpty());
  EXPECT_EQ(model.Fichier(), name("m.trad"));
  ASSERT_EQ(model.Racine()->ColCell()->Count(), 1);
  EXPECT_EQ(model.Racine()->ColCell()->Item(1)->nom(), u"Nom");
  EXPECT_EQ(model.Racine()->ColCell()->Item(1)->Alias(), u"Alias");
}

TEST_F(SaveLoadTest, ValuesThatNobodyAsksForArePassedOver) {
  const FileBytes rest = letters("x") + FileBytes{0x28, 0x12, 3, 0x1B} + nextObject + FileBytes{0x19, 4};
  const FileBytes first = record(2, 1, letters("a") + letters("b") + letters("c") + rest);
  const FileBytes second = record(2, 1, letters("d") + letters("e") + letters("f"));
  const FileBytes cell =
      record(1, 2,
             letters("Nom") + letters("Alias") + longValue(2) + longValue(2) + longValue(1) + longValue(1) +
                 longValue(2) + nextObject + nextObject + FileBytes{0x12, 4} + no);
  const FileBytes root =
      record(1, 2, emptyText + emptyText + longValue(1) + longValue(1) + nextObject + longValue(0) + no);
  const FileBytes stray = record(2, 1, letters("g") + emptyText + emptyText);
  putBytes(path("m.trad"),
           TestFile{.records = {modelRecord(2), root, cell, first, stray, second}, .units = 17}.bytes());
  KOBModeleTraduction model;
  EXPECT_TRUE(model.Load(name("m.trad"))) << lastNotice();
  EXPECT_EQ(printed(model),
            "Nom control left=1 width=1 alias=\"Alias\"\n  .a \"b\" 2=\"c\"\n  .d \"e\" 2=\"f\"\n");
}

TEST_F(SaveLoadTest, AModelRecordWithoutALanguageCountFailsWithoutAMessage) {
  putBytes(path("m.trad"),
           TestFile{.records = {record(0, 1, letters("x") + nextObject), rootRecord()}, .units = 1}.bytes());
  KOBModeleTraduction model;
  const CellRef root = model.Racine();
  EXPECT_FALSE(model.Load(name("m.trad")));
  EXPECT_THAT(boxes.notices, IsEmpty());
  EXPECT_EQ(model.Racine(), root);
  EXPECT_EQ(Global_Util::NbLangues(), 6);
}

TEST_F(SaveLoadTest, AModelRecordWithoutARootFailsAfterTheLanguageCount) {
  putBytes(path("m.trad"), TestFile{.records = {record(0, 1, longValue(2) + nothing)}}.bytes());
  KOBModeleTraduction model;
  const CellRef root = model.Racine();
  EXPECT_FALSE(model.Load(name("m.trad")));
  EXPECT_THAT(boxes.notices, IsEmpty());
  EXPECT_EQ(model.Racine(), root);
  EXPECT_EQ(Global_Util::NbLangues(), 2);
}

TEST_F(SaveLoadTest, TheSameModelGivesTheSameBytes) {
  for (const auto* const file : {"1.trad", "2.trad"}) {
    KOBModeleTraduction model;
    grow(model,
         "C control left=1 width=-1 width[2]=1.5\n  .Caption \"Un\" 2=\"One\"\nM message\n  . \"A\"\n");
    ASSERT_TRUE(model.Save(name(file)));
  }
  EXPECT_EQ(bytesOf(path("1.trad")), bytesOf(path("2.trad")));
}

/// Loads 1.trad, saves it as 2.trad, and that once more as 3.trad.
void saveLoaded(const SaveLoadTest& test) {
  for (const auto& [from, to] : {std::pair("1.trad", "2.trad"), std::pair("2.trad", "3.trad")}) {
    KOBModeleTraduction model;
    ASSERT_TRUE(model.Load(test.name(from)));
    ASSERT_TRUE(model.Save(test.name(to)));
  }
}

TEST_F(SaveLoadTest, WhatWasLoadedGivesTheSameBytes) {
  KOBModeleTraduction model;
  grow(model, "C control left=1 width=-1 width[2]=1.5\n  .Caption \"Un\" 2=\"One\"\nM message\n  . \"A\"\n");
  ASSERT_TRUE(model.Save(name("1.trad")));
  saveLoaded(*this);
  EXPECT_EQ(bytesOf(path("2.trad")), bytesOf(path("1.trad")));
  EXPECT_EQ(bytesOf(path("3.trad")), bytesOf(path("1.trad")));
}

TEST_F(SaveLoadTest, OnlyTheIndicatorsThatReadingNormalisesDifferInTheFirstSaveAfterALoad) {
  KOBModeleTraduction model;
  const CellRef cell = control(model.Racine(), u"Control", {});
  cell->setm_left(0);
  cell->setm_width(5);
  ASSERT_TRUE(model.Save(name("1.trad")));
  saveLoaded(*this);
  const FileBytes before = bytesOf(path("1.trad"));
  const FileBytes after = bytesOf(path("2.trad"));
  ASSERT_EQ(before.size(), after.size());
  // A long 0 and a long 5 behind the kinds 2 (leaf) and 2 (control).
  const FileBytes stored = {0x03, 4, 0x03, 4, 0x03, 0, 0x03, 10};
  const auto found = std::search(before.begin(), before.end(), stored.begin(), stored.end());
  ASSERT_NE(found, before.end());
  FileBytes expected = before;
  expected[static_cast<std::size_t>(found - before.begin()) + 5] = 2;
  expected[static_cast<std::size_t>(found - before.begin()) + 7] = 2;
  EXPECT_EQ(after, sealed(expected));
  EXPECT_EQ(bytesOf(path("3.trad")), after);
}

TEST_F(SaveLoadTest, OnlyTheFlagThatAnOldCellLacksIsNewInTheFirstSaveAfterALoad) {
  const FileBytes values = letters("Root") + emptyText + longValue(1) + longValue(0) + longValue(0);
  const auto fileWith = [](const FileBytes& root) {
    return TestFile{.records = {modelRecord(6), root}, .units = 4}.bytes();
  };
  putBytes(path("1.trad"), fileWith(record(1, 1, values)));
  saveLoaded(*this);
  EXPECT_EQ(bytesOf(path("2.trad")), fileWith(record(1, 2, values + no)));
  EXPECT_EQ(bytesOf(path("3.trad")), bytesOf(path("2.trad")));
}

TEST_F(SaveLoadTest, AnyOtherModeIsRefused) {
  KOBModeleTraduction model;
  try {
    makeFileManager()->SaveToFile(name("m.trad"), model, 2);
    FAIL();
  } catch (const PersistFailure& failure) {
    EXPECT_STREQ(failure.what(), "Only files of the kind 1 can be saved, and 2 was asked for.");
  }
  EXPECT_THAT(files(), IsEmpty());
}

TEST_F(SaveLoadTest, ACellIsNotSavedByItself) {
  try {
    makeFileManager()->SaveToFile(name("m.trad"), *KOBCellTraduction::create(), 1);
    FAIL();
  } catch (const PersistFailure& failure) {
    EXPECT_STREQ(failure.what(),
                 "An object of the class KOBTraduction.KOBCellTraduction is not saved by itself.");
  }
  EXPECT_THAT(files(), IsEmpty());
}

TEST_F(SaveLoadTest, UsePersistenceKeepsAServiceThatIsThere) {
  const MakeFileManager own = []() -> std::unique_ptr<FileManager> { return nullptr; };
  setPersistenceService(own);
  usePersistence();
  EXPECT_EQ(persistenceService(), own);
}

TEST_F(SaveLoadTest, UsePersistencePlugsInWhereNothingIs) {
  setPersistenceService(nullptr);
  usePersistence();
  EXPECT_EQ(persistenceService(), &makeFileManager);
}

}  // namespace
}  // namespace kob::test
