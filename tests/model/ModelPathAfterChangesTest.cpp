// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

namespace kob::test {
namespace {

/// A model with the cells a, a\b and a\b\c whose paths were all asked for before.
class ModelPathAskedBefore : public ModelTest {
 protected:
  ModelPathAskedBefore()
      : a(model.Racine()->AddNoeuds(u"a")), b(a->AddNoeuds(u"b")), c(b->AddMessage(u"c", u"text")) {
    ask();
  }

  void ask() const {
    for (const TextView path : {u"a", u"a\\b", u"a\\b\\c", u"\\A\\B\\C"}) {
      model.GetCell(path);
    }
  }

  KOBModeleTraduction model;
  CellRef a;
  CellRef b;
  CellRef c;
};

TEST_F(ModelPathAskedBefore, LeadsToTheSameCells) {
  EXPECT_EQ(model.GetCell(u"a"), a);
  EXPECT_EQ(model.GetCell(u"A\\b"), b);
  EXPECT_EQ(model.GetCell(u"\\a\\B\\c"), c);
}

TEST_F(ModelPathAskedBefore, IsAnotherOneAfterTheCellIsRenamed) {
  c->setnom(u"d");
  EXPECT_EQ(model.GetCell(u"a\\b\\c"), nullptr);
  EXPECT_EQ(model.GetCell(u"a\\b\\d"), c);
}

TEST_F(ModelPathAskedBefore, IsAnotherOneAfterACellAboveIsRenamed) {
  a->setnom(u"z");
  EXPECT_EQ(model.GetCell(u"a\\b\\c"), nullptr);
  EXPECT_EQ(model.GetCell(u"z\\b\\c"), c);
}

TEST_F(ModelPathAskedBefore, EndsAfterTheCellIsRemoved) {
  b->ColCell()->Remove(1);
  EXPECT_EQ(model.GetCell(u"a\\b\\c"), nullptr);
}

TEST_F(ModelPathAskedBefore, EndsAfterACellAboveIsRemovedAndReleased) {
  model.Racine()->ColCell()->Remove(1);
  a = b = c = nullptr;
  EXPECT_EQ(model.GetCell(u"a\\b\\c"), nullptr);
}

TEST_F(ModelPathAskedBefore, EndsWhereANodeBecomesALeaf) {
  b->setTypeCell(2);
  EXPECT_EQ(model.GetCell(u"a\\b"), b);
  EXPECT_EQ(model.GetCell(u"a\\b\\c"), nullptr);
}

TEST_F(ModelPathAskedBefore, FollowsAListThatAHostAssigned) {
  auto list = std::make_shared<CellList>();
  const CellRef other = named(u"c");
  list->Add(other);
  b->setColCell(list);
  EXPECT_EQ(model.GetCell(u"a\\b\\c"), other);
}

TEST_F(ModelPathAskedBefore, LeadsToANamesakeThatIsPutInFront) {
  const CellRef other = named(u"C");
  b->ColCell()->Add(other, 1);
  EXPECT_EQ(model.GetCell(u"a\\b\\c"), other);
}

TEST_F(ModelPathAskedBefore, EndsAtDamageThatIsPutInFrontWithTheMessage) {
  b->ColCell()->Add(nullptr, 1);
  EXPECT_EQ(model.GetCell(u"a\\b\\c"), nullptr);
  EXPECT_EQ(boxes.notices, Texts{u"GetCell - KOBCellTraduction"});
}

TEST_F(ModelPathAskedBefore, IsFoundOnceTheCellIsThere) {
  EXPECT_EQ(model.GetCell(u"a\\x"), nullptr);
  const CellRef x = a->AddNoeuds(u"x");
  EXPECT_EQ(model.GetCell(u"a\\x"), x);
}

TEST_F(ModelPathAskedBefore, BelongsToItsOwnModel) {
  KOBModeleTraduction other;
  EXPECT_EQ(other.GetCell(u"a\\b\\c"), nullptr);
  EXPECT_EQ(model.GetCell(u"a\\b\\c"), c);
}

TEST_F(ModelPathAskedBefore, StaysRightAmongThousandsOfPathsThatWereAsked) {
  constexpr int count = 3000;
  for (int i = 0; i < count; ++i) {
    b->AddNoeuds(u"n" + decimal(i));
  }
  for (int pass = 0; pass < 2; ++pass) {
    for (int i = 0; i < count; ++i) {
      const CellRef found = model.GetCell(u"A\\B\\N" + decimal(i));
      ASSERT_NE(found, nullptr);
      ASSERT_EQ(found->nom(), u"n" + decimal(i));
    }
  }
}

TEST_F(ModelPathAskedBefore, StaysRightBelowThousandsOfNodes) {
  constexpr int count = 3000;
  for (int i = 0; i < count; ++i) {
    b->AddNoeuds(u"n" + decimal(i))->AddNoeuds(u"below" + decimal(i));
  }
  for (int pass = 0; pass < 2; ++pass) {
    for (int i = 0; i < count; ++i) {
      const CellRef found = model.GetCell(u"a\\b\\N" + decimal(i) + u"\\BELOW" + decimal(i));
      ASSERT_NE(found, nullptr);
      ASSERT_EQ(found->nom(), u"below" + decimal(i));
    }
  }
}

TEST_F(ModelPathAskedBefore, EndsAtALeafEvenWithAListThatAHostAssigned) {
  auto list = std::make_shared<CellList>();
  list->Add(named(u"x"));
  c->setColCell(list);
  for (int pass = 0; pass < 2; ++pass) {
    EXPECT_EQ(model.GetCell(u"a\\b\\c\\x"), nullptr);
  }
  EXPECT_TRUE(boxes.notices.empty());
}

}  // namespace
}  // namespace kob::test
