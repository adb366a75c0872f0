// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TestFile.h"

#include "tests/model/SmallStack.h"

#include <gmock/gmock.h>

namespace kob::test {
namespace {

using ::testing::HasSubstr;

using GraphTest = ServiceTest;

TEST_F(GraphTest, AnEntryOfTwoCellsIsOneEntryAfterwards) {
  KOBModeleTraduction saved;
  const EntryRef shared = entry(u"", {u"Un", u"One", u"", u"", u"", u""});
  message(saved.Racine(), u"A", {})->setTraduction(shared);
  message(saved.Racine(), u"B", {})->setTraduction(shared);
  ASSERT_TRUE(saved.Save(name("m.trad"))) << lastNotice();
  KOBModeleTraduction loaded;
  ASSERT_TRUE(loaded.Load(name("m.trad"))) << lastNotice();
  EXPECT_EQ(loaded.GetCell(u"A")->Traduction(), loaded.GetCell(u"B")->Traduction());
  EXPECT_EQ(texts(loaded.GetCell(u"A")), (Texts{u"Un", u"One", u"", u"", u"", u""}));
}

TEST_F(GraphTest, ACellMetAgainDeeperIsOneCellAfterwards) {
  KOBModeleTraduction saved;
  const CellRef shared = named(u"Partagé");
  append(saved.Racine(), shared);
  const CellRef node = saved.Racine()->AddNoeuds(u"Noeud")->AddNoeuds(u"Plus bas");
  append(node, shared);
  ASSERT_TRUE(saved.Save(name("m.trad"))) << lastNotice();
  KOBModeleTraduction loaded;
  ASSERT_TRUE(loaded.Load(name("m.trad"))) << lastNotice();
  EXPECT_NE(loaded.GetCell(u"Partagé"), nullptr);
  EXPECT_EQ(loaded.GetCell(u"Partagé"), loaded.GetCell(u"Noeud\\Plus bas\\Partagé"));
}

TEST_F(GraphTest, ACellTwiceInOneListIsOneCellAfterwards) {
  KOBModeleTraduction saved;
  const CellRef shared = named(u"Deux fois");
  append(saved.Racine(), shared);
  append(saved.Racine(), named(u"Entre"));
  append(saved.Racine(), shared);
  ASSERT_TRUE(saved.Save(name("m.trad"))) << lastNotice();
  KOBModeleTraduction loaded;
  ASSERT_TRUE(loaded.Load(name("m.trad"))) << lastNotice();
  EXPECT_EQ(names(loaded.Racine()), (Texts{u"Deux fois", u"Entre", u"Deux fois"}));
  EXPECT_EQ(loaded.Racine()->ColCell()->Item(1), loaded.Racine()->ColCell()->Item(3));
}

TEST_F(GraphTest, SharedObjectsGiveTheSameBytesOnceLoaded) {
  KOBModeleTraduction saved;
  const CellRef shared = named(u"Partagé");
  for (const TextView name : {u"A", u"B", u"C"}) {
    append(saved.Racine()->AddNoeuds(name), shared);
  }
  append(saved.Racine(), shared);
  ASSERT_TRUE(saved.Save(name("1.trad"))) << lastNotice();
  KOBModeleTraduction loaded;
  ASSERT_TRUE(loaded.Load(name("1.trad"))) << lastNotice();
  ASSERT_TRUE(loaded.Save(name("2.trad"))) << lastNotice();
  EXPECT_EQ(bytesOf(path("1.trad")), bytesOf(path("2.trad")));
}

TEST_F(GraphTest, ManySharedLevelsAreNotWrittenOnceForEachWay) {
  KOBModeleTraduction saved;
  CellRef level = saved.Racine();
  for (int i = 0; i < 100; ++i) {
    const CellRef below = level->AddNoeuds(u"Gauche");
    level->ColCell()->Add(below);
    level = below;
  }
  ASSERT_TRUE(saved.Save(name("m.trad"))) << lastNotice();
  EXPECT_LT(std::filesystem::file_size(path("m.trad")), 10'000U);
  KOBModeleTraduction loaded;
  EXPECT_TRUE(loaded.Load(name("m.trad"))) << lastNotice();
}

/// Saving must fail with one box that says so, and write nothing.
void expectCycle(GraphTest& test, KOBModeleTraduction& model) {
  EXPECT_FALSE(model.Save(test.name("m.trad")));
  EXPECT_THAT(test.lastNotice(), HasSubstr("An object contains itself, so it cannot be saved"));
  EXPECT_EQ(test.files(), std::vector<std::string>{});
}

TEST_F(GraphTest, ACellBelowItselfIsRefused) {
  KOBModeleTraduction model;
  const CellRef node = model.Racine()->AddNoeuds(u"Noeud");
  append(node, node);
  expectCycle(*this, model);
  node->setColCell(nullptr);
}

TEST_F(GraphTest, ACellBelowItsGrandchildIsRefused) {
  KOBModeleTraduction model;
  const CellRef node = model.Racine()->AddNoeuds(u"Noeud");
  append(node->AddNoeuds(u"Enfant")->AddNoeuds(u"Petit-enfant"), node);
  expectCycle(*this, model);
  node->setColCell(nullptr);
}

TEST_F(GraphTest, TheRootBelowItselfIsRefused) {
  KOBModeleTraduction model;
  append(model.Racine()->AddNoeuds(u"Noeud"), model.Racine());
  expectCycle(*this, model);
  model.Racine()->setColCell(nullptr);
}

/// A model with so many levels of cells below its root, the last of them a message.
void growDeep(KOBModeleTraduction& model, int levels) {
  CellRef cell = model.Racine();
  for (int i = 1; i < levels; ++i) {
    const auto below = KOBCellTraduction::createNode();
    below->setnom(u"n");
    append(cell, below);
    cell = below;
  }
  message(cell, u"Fond", {u"Au fond", u"", u"", u"", u"", u""});
}

TEST_F(GraphTest, TenThousandLevelsAreSavedAndLoadedOnASmallStack) {
  const Text file = name("m.trad");
  onSmallStack([&] {
    KOBModeleTraduction saved;
    growDeep(saved, 10'000);
    ASSERT_TRUE(saved.Save(file));
  });
  onSmallStack([&] {
    KOBModeleTraduction loaded;
    ASSERT_TRUE(loaded.Load(file));
    int levels = 0;
    CellRef cell = loaded.Racine();
    for (; cell->TypeCell() == 1; cell = cell->ColCell()->Item(1)) {
      ++levels;
    }
    EXPECT_EQ(levels, 10'000);
    EXPECT_EQ(cell->Traduction()->ColTraduction()->Item(1), u"Au fond");
  });
}

TEST_F(GraphTest, OneLevelMoreIsRefusedWhenItIsSaved) {
  KOBModeleTraduction saved;
  growDeep(saved, 10'001);
  EXPECT_FALSE(saved.Save(name("m.trad")));
  EXPECT_EQ(
      lastNotice(),
      "Erreur de sauvegarde du modèle\r\nThe objects are nested deeper than 10003 levels, which is the most "
      "that a file may hold. Make the tree flatter.");
  EXPECT_EQ(files(), std::vector<std::string>{});
}

TEST_F(GraphTest, OneLevelMoreIsRefusedWhenObjectsAreShared) {
  KOBModeleTraduction saved;
  const EntryRef shared = entry(u"", {u"Un", u"", u"", u"", u"", u""});
  message(saved.Racine(), u"A", {})->setTraduction(shared);
  message(saved.Racine(), u"B", {})->setTraduction(shared);
  growDeep(saved, 10'001);
  EXPECT_FALSE(saved.Save(name("m.trad")));
  EXPECT_THAT(lastNotice(), HasSubstr("The objects are nested deeper than 10003 levels"));
}

TEST_F(GraphTest, OneLevelMoreIsRefusedWhenItIsLoaded) {
  TestFile file{.records = {modelRecord(6)}};
  const FileBytes node =
      record(1, 2, emptyText + emptyText + longValue(1) + longValue(1) + nextObject + longValue(0) + no);
  file.records.insert(file.records.end(), 10'002, node);
  file.records.push_back(rootRecord());
  putBytes(path("m.trad"), file.bytes());
  KOBModeleTraduction loaded;
  const CellRef root = loaded.Racine();
  EXPECT_FALSE(loaded.Load(name("m.trad")));
  EXPECT_THAT(lastNotice(), HasSubstr("The objects are nested deeper than 10003 levels"));
  EXPECT_EQ(loaded.Racine(), root);
  file.records.pop_back();
  file.records.back() = rootRecord();
  putBytes(path("m.trad"), file.bytes());
  EXPECT_TRUE(loaded.Load(name("m.trad"))) << lastNotice();
}

}  // namespace
}  // namespace kob::test
