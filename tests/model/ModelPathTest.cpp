// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

namespace kob::test {
namespace {

/// A model with the cells a, a\b and a\b\c.
class ModelPath : public ModelTest {
 protected:
  ModelPath() : a(model.Racine()->AddNoeuds(u"a")), b(a->AddNoeuds(u"b")), c(b->AddMessage(u"c", u"text")) {}

  KOBModeleTraduction model;
  CellRef a;
  CellRef b;
  CellRef c;
};

TEST_F(ModelPath, OfNoSegmentsIsTheRoot) {
  EXPECT_EQ(model.GetCell(u""), model.Racine());
}

TEST_F(ModelPath, OfOnlySeparatorsIsTheRoot) {
  EXPECT_EQ(model.GetCell(u"\\"), model.Racine());
  EXPECT_EQ(model.GetCell(u"\\\\\\"), model.Racine());
}

TEST_F(ModelPath, LeadsThroughTheChildren) {
  EXPECT_EQ(model.GetCell(u"a"), a);
  EXPECT_EQ(model.GetCell(u"a\\b"), b);
  EXPECT_EQ(model.GetCell(u"a\\b\\c"), c);
}

TEST_F(ModelPath, EmptySegmentsDoNotCount) {
  EXPECT_EQ(model.GetCell(u"\\a\\b\\"), b);
  EXPECT_EQ(model.GetCell(u"a\\\\b"), b);
  EXPECT_EQ(model.GetCell(u"\\\\a\\\\\\b\\\\"), b);
}

TEST_F(ModelPath, IgnoresCase) {
  EXPECT_EQ(model.GetCell(u"A\\B"), b);
  EXPECT_EQ(model.GetCell(u"A\\b\\C"), c);
}

TEST_F(ModelPath, AMissingSegmentFindsNone) {
  EXPECT_EQ(model.GetCell(u"x"), nullptr);
  EXPECT_EQ(model.GetCell(u"a\\x"), nullptr);
  EXPECT_EQ(model.GetCell(u"x\\b"), nullptr);
  EXPECT_TRUE(boxes.notices.empty());
}

TEST_F(ModelPath, ALeafHasNothingBelow) {
  EXPECT_EQ(model.GetCell(u"a\\b\\c\\d"), nullptr);
}

TEST_F(ModelPath, SegmentsAreNotTrimmedAndNoOtherCharacterIsSpecial) {
  EXPECT_EQ(model.GetCell(u" a"), nullptr);
  EXPECT_EQ(model.GetCell(u"a/b"), nullptr);
  const CellRef odd = model.Racine()->AddNoeuds(u" a.b/c|* ");
  EXPECT_EQ(model.GetCell(u"\\ a.b/c|* "), odd);
}

TEST_F(ModelPath, TheRootsNameIsNotPartOfIt) {
  EXPECT_EQ(model.GetCell(u"RACINE"), nullptr);
  EXPECT_EQ(model.GetCell(u"RACINE\\a"), nullptr);
}

TEST_F(ModelPath, AFirstSegmentRacineIsAChildOfThatName) {
  const CellRef child = model.Racine()->AddNoeuds(u"Racine");
  EXPECT_EQ(model.GetCell(u"RACINE"), child);
}

TEST_F(ModelPath, ANameWithASeparatorIsReachedByNoPath) {
  const CellRef odd = model.Racine()->AddNoeuds(u"x\\y");
  EXPECT_EQ(model.Racine()->GetCell(u"x\\y"), odd);
  EXPECT_EQ(model.GetCell(u"x\\y"), nullptr);
}

TEST_F(ModelPath, AnEmptyNameIsReachedByNoPath) {
  const CellRef unnamed = model.Racine()->AddNoeuds(u"");
  EXPECT_EQ(model.Racine()->GetCell(u""), unnamed);
  EXPECT_EQ(model.GetCell(u"\\\\"), model.Racine());
}

TEST_F(ModelPath, ADamagedListOnTheWayShowsTheMessageAndFindsNone) {
  a->setColCell(nullptr);
  EXPECT_EQ(model.GetCell(u"a\\b\\c"), nullptr);
  EXPECT_EQ(boxes.notices, Texts{u"GetCell - KOBCellTraduction"});
}

TEST_F(ModelPath, ADamagedListBesideTheWayIsNotNoticed) {
  b->setColCell(nullptr);
  EXPECT_EQ(model.GetCell(u"a\\b"), b);
  EXPECT_TRUE(boxes.notices.empty());
}

TEST_F(ModelPath, FollowsARenamedCell) {
  b->setnom(u"Élan");
  EXPECT_EQ(model.GetCell(u"a\\b"), nullptr);
  EXPECT_EQ(model.GetCell(u"a\\éLAN\\c"), c);
}

TEST_F(ModelPath, EveryCellIsReachedByItsOwnPath) {
  for (const CellRef& cell : {a, b, c}) {
    EXPECT_EQ(model.GetCell(cell->GetCellPath()), cell);
  }
}

}  // namespace
}  // namespace kob::test
