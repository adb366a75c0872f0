// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

namespace kob::test {
namespace {

/// A host put the root's child "a" below its own child "b".
class CircleOfLists : public ModelTest {
 protected:
  CircleOfLists() : a(model.Racine()->AddMessage(u"a", u"text")), b(a->AddMessage(u"b", u"text")) {
    b->setTypeCell(1);
    b->ColCell()->Add(a);
    z = model.Racine()->AddMessage(u"z", u"text");
  }
  ~CircleOfLists() override { b->setColCell(nullptr); }

  KOBModeleTraduction model;
  CellRef a;
  CellRef b;
  CellRef z;
};

TEST_F(CircleOfLists, PathsGoRoundAsOftenAsTheySay) {
  EXPECT_EQ(model.GetCell(u"a\\b\\a\\b\\A\\B"), b);
  EXPECT_EQ(model.GetCell(u"a\\b\\a\\z"), nullptr);
  EXPECT_EQ(model.GetTraduction(u"a\\b\\a", 1), u"text");
}

TEST_F(CircleOfLists, TheCellPathFollowsTheParentsOnly) {
  EXPECT_EQ(b->GetCellPath(), u"a\\b");
}

TEST_F(CircleOfLists, ATestLanguageReachesEveryCell) {
  model.UpdateTestLangue(2);
  for (const CellRef& cell : {a, b, z}) {
    EXPECT_EQ(texts(cell)[1], u"** text **");
  }
}

TEST_F(CircleOfLists, ClearingReachesEveryCell) {
  model.UpdateTestLangue(2);
  model.ClearLangue(2);
  for (const CellRef& cell : {a, b, z}) {
    EXPECT_EQ(texts(cell)[1], u"");
  }
}

TEST_F(CircleOfLists, EveryCellGrowsWithTheLanguageCount) {
  model.setNbLangues(8);
  for (const CellRef& cell : {a, b, z}) {
    EXPECT_EQ(texts(cell).size(), 9U);
  }
}

TEST_F(CircleOfLists, CanBeWalkedAgainAfterAWalkThatFailed) {
  const auto kept = z->Traduction();
  z->setTraduction(nullptr);
  EXPECT_EQ(failureOf([&] { model.UpdateTestLangue(2); }), FailureKind::ObjectNotSet);
  z->setTraduction(kept);
  model.UpdateTestLangue(3);
  for (const CellRef& cell : {a, b, z}) {
    EXPECT_EQ(texts(cell)[2], u"** text **");
  }
}

TEST_F(CircleOfLists, ChildrenAreAddedAsAnywhere) {
  EXPECT_NE(b->AddNoeuds(u"c"), nullptr);
  EXPECT_EQ(b->AddNoeuds(u"A"), nullptr);
  EXPECT_EQ(model.GetCell(u"a\\b\\c")->GetCellPath(), u"a\\b\\c");
}

TEST_F(CircleOfLists, ACellBelowItselfIsWalkedAndEnds) {
  const CellRef self = model.Racine()->AddMessage(u"self", u"text");
  self->setTypeCell(1);
  self->ColCell()->Add(self);
  model.UpdateTestLangue(2);
  EXPECT_EQ(texts(self)[1], u"** text **");
  EXPECT_EQ(model.GetCell(u"self\\self\\self"), self);
  self->setColCell(nullptr);
}

TEST_F(CircleOfLists, TheRootBelowItselfIsWalkedAndEnds) {
  b->ColCell()->Add(model.Racine());
  model.UpdateTestLangue(2);
  model.setNbLangues(8);
  model.ClearLangue(2);
  EXPECT_EQ(model.GetCell(u"a\\b\\racine\\a"), a);
  EXPECT_EQ(texts(z)[1], u"");
}

TEST_F(CircleOfLists, ACellThatStandsTwiceInItsListIsNoCircle) {
  const CellRef twice = named(u"twice");
  twice->Traduction()->ChangeTraduction(u"text", 1);
  const CellRef below = twice->AddMessage(u"below", u"text");
  model.Racine()->ColCell()->Add(twice);
  model.Racine()->ColCell()->Add(twice);
  model.UpdateTestLangue(2);
  EXPECT_EQ(texts(twice)[1], u"** text **");
  EXPECT_EQ(texts(below)[1], u"** text **");
}

TEST_F(CircleOfLists, ALongCircleIsWalkedAndEnds) {
  CellRef cell = model.Racine()->AddNoeuds(u"long");
  const CellRef top = cell;
  for (int i = 0; i < 20000; ++i) {
    cell = cell->AddNoeuds(u"n");
  }
  const CellRef last = cell->AddMessage(u"m", u"text");
  cell->ColCell()->Add(top);
  model.UpdateTestLangue(2);
  EXPECT_EQ(texts(last)[1], u"** text **");
  top->setparentcell(cell);
  EXPECT_EQ(last->GetCellPath().size(), 20000U * 2 + TextView(u"long\\m").size());
  cell->ColCell()->Remove(cell->ColCell()->Count());
}

}  // namespace
}  // namespace kob::test
