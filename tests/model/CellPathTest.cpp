// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

namespace kob::test {
namespace {

class CellPath : public ModelTest {
 protected:
  KOBModeleTraduction model;
};

TEST_F(CellPath, OfAChildOfTheRootIsItsName) {
  EXPECT_EQ(model.Racine()->AddNoeuds(u"a")->GetCellPath(), u"a");
}

TEST_F(CellPath, OfACellFurtherDownJoinsTheNames) {
  const CellRef a = model.Racine()->AddNoeuds(u"a");
  EXPECT_EQ(a->AddNoeuds(u"b")->GetCellPath(), u"a\\b");
  EXPECT_EQ(a->GetCell(u"b")->AddMessage(u"C", u"")->GetCellPath(), u"a\\b\\C");
}

TEST_F(CellPath, OfTheRootIsItsName) {
  EXPECT_EQ(model.Racine()->GetCellPath(), u"RACINE");
}

TEST_F(CellPath, AnyAncestorNamedRacineIsLeftOut) {
  const CellRef inner = model.Racine()->AddNoeuds(u"a")->AddNoeuds(u"RACINE");
  EXPECT_EQ(inner->AddNoeuds(u"b")->GetCellPath(), u"a\\b");
}

TEST_F(CellPath, TheCellItselfIsNeverLeftOut) {
  const CellRef inner = model.Racine()->AddNoeuds(u"a")->AddNoeuds(u"RACINE");
  EXPECT_EQ(inner->GetCellPath(), u"a\\RACINE");
}

TEST_F(CellPath, AnAncestorNamedRacineInOtherLettersIsKept) {
  const CellRef inner = model.Racine()->AddNoeuds(u"Racine");
  EXPECT_EQ(inner->AddNoeuds(u"b")->GetCellPath(), u"Racine\\b");
}

TEST_F(CellPath, ARenamedRootIsNoLongerLeftOut) {
  const CellRef a = model.Racine()->AddNoeuds(u"a");
  model.Racine()->setnom(u"other");
  EXPECT_EQ(a->GetCellPath(), u"other\\a");
}

TEST_F(CellPath, OfACellWithoutAParentIsItsName) {
  EXPECT_EQ(named(u"lone")->GetCellPath(), u"lone");
  EXPECT_EQ(named(u"")->GetCellPath(), u"");
}

TEST_F(CellPath, FollowsTheParentReferenceAndNotTheLists) {
  const CellRef cell = named(u"cell");
  const CellRef parent = named(u"parent");
  cell->setparentcell(parent);
  EXPECT_EQ(cell->GetCellPath(), u"parent\\cell");
  cell->setparentcell(nullptr);
  EXPECT_EQ(cell->GetCellPath(), u"cell");
}

TEST_F(CellPath, EmptyNamesKeepTheirSeparators) {
  const CellRef unnamed = model.Racine()->AddNoeuds(u"");
  EXPECT_EQ(unnamed->AddNoeuds(u"b")->GetCellPath(), u"\\b");
}

TEST_F(CellPath, ACellThatIsItsOwnParentIsNamedOnce) {
  const CellRef cell = named(u"a");
  cell->setparentcell(cell);
  EXPECT_EQ(cell->GetCellPath(), u"a");
}

TEST_F(CellPath, ACircleOfParentsEndsAtTheCellAlreadyMet) {
  const CellRef a = named(u"a");
  const CellRef b = named(u"b");
  const CellRef c = named(u"c");
  a->setparentcell(b);
  b->setparentcell(c);
  c->setparentcell(b);
  EXPECT_EQ(a->GetCellPath(), u"c\\b\\a");
}

TEST_F(CellPath, ALargeCircleEndsToo) {
  std::vector<CellRef> circle;
  for (int i = 0; i < 1000; ++i) {
    circle.push_back(named(u"x"));
    if (i > 0) {
      circle[static_cast<std::size_t>(i) - 1]->setparentcell(circle.back());
    }
  }
  circle.back()->setparentcell(circle.front());
  EXPECT_EQ(circle.front()->GetCellPath().size(), 1999U);
}

}  // namespace
}  // namespace kob::test
