// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

namespace kob::test {
namespace {

class Grafting : public ModelTest {
 protected:
  /// `added` gets two nodes and a message, `b`, `a` and `m`, in this order.
  Grafting() {
    append(added.Racine(), b);
    append(added.Racine(), a);
    m = message(added.Racine(), u"m", {u"text", u"", u"", u"", u"", u""});
  }

  /// What grafting `added` onto a cell fails with.
  std::optional<FailureKind> graft(const CellRef& cell) {
    return failureOf([&] { cell->AddModele(added); });
  }

  KOBModeleTraduction model;
  KOBModeleTraduction added;
  CellRef b = named(u"b");
  CellRef a = named(u"a");
  CellRef m;
};

TEST_F(Grafting, AppendsTheTopLevelCellsInTheirOrder) {
  model.AddModele(added);
  EXPECT_EQ(names(model.Racine()), (Texts{u"b", u"a", u"m"}));
}

TEST_F(Grafting, SharesTheCellsWithTheirModel) {
  model.AddModele(added);
  EXPECT_EQ(names(added.Racine()), (Texts{u"b", u"a", u"m"}));
  EXPECT_EQ(model.Racine()->ColCell()->Item(3), m);
}

TEST_F(Grafting, TheParentLinkPointsIntoTheModelThatReceived) {
  model.AddModele(added);
  for (const CellRef& cell : {a, b, m}) {
    EXPECT_EQ(cell->parentcell(), model.Racine());
  }
}

TEST_F(Grafting, PathsLeadToTheGraftedCellsInBothModels) {
  model.AddModele(added);
  EXPECT_EQ(model.GetTraduction(u"m", 1), u"text");
  EXPECT_EQ(added.GetTraduction(u"m", 1), u"text");
}

TEST_F(Grafting, ShowsNothingAndDoesNotChangeTheLanguageCount) {
  model.AddModele(added);
  EXPECT_TRUE(boxes.notices.empty());
  EXPECT_EQ(model.NbLangues(), 6);
}

TEST_F(Grafting, UnderARootWithChildrenIsATypeMismatch) {
  const CellRef own = message(model.Racine(), u"own", {u"x"});
  EXPECT_EQ(failureOf([&] { model.AddModele(added); }), FailureKind::TypeMismatch);
}

TEST_F(Grafting, UnderARootWithChildrenChangesNothing) {
  const CellRef own = message(model.Racine(), u"own", {u"x"});
  EXPECT_TRUE(graft(model.Racine()).has_value());
  EXPECT_EQ(names(model.Racine()), Texts{u"own"});
  EXPECT_EQ(a->parentcell(), added.Racine());
}

TEST_F(Grafting, ADuplicateNameIsATypeMismatchTooAndNotShown) {
  message(model.Racine(), u"a", {u"x"});
  EXPECT_EQ(graft(model.Racine()), FailureKind::TypeMismatch);
  EXPECT_TRUE(boxes.notices.empty());
}

TEST_F(Grafting, TwiceIsATypeMismatch) {
  model.AddModele(added);
  EXPECT_EQ(graft(model.Racine()), FailureKind::TypeMismatch);
  EXPECT_EQ(names(model.Racine()), (Texts{u"b", u"a", u"m"}));
}

TEST_F(Grafting, AModelOntoItselfIsATypeMismatch) {
  EXPECT_EQ(graft(added.Racine()), FailureKind::TypeMismatch);
}

TEST_F(Grafting, AnEmptyModelOntoItselfDoesNothing) {
  EXPECT_EQ(failureOf([&] { model.AddModele(model); }), std::nullopt);
  EXPECT_EQ(model.Racine()->ColCell()->Count(), 0);
}

TEST_F(Grafting, AnEmptyModelRaisesNothingUnderARootWithChildren) {
  message(model.Racine(), u"own", {u"x"});
  KOBModeleTraduction empty;
  EXPECT_EQ(failureOf([&] { model.AddModele(empty); }), std::nullopt);
  EXPECT_EQ(names(model.Racine()), Texts{u"own"});
}

TEST_F(Grafting, ALeafBecomesANodeAndKeepsItsTranslations) {
  const CellRef leaf = message(model.Racine(), u"leaf", {u"x"});
  EXPECT_EQ(graft(leaf), std::nullopt);
  EXPECT_EQ(leaf->TypeCell(), 1);
  EXPECT_EQ(names(leaf), (Texts{u"b", u"a", u"m"}));
  EXPECT_EQ(texts(leaf), Texts{u"x"});
}

TEST_F(Grafting, ALeafHasBecomeANodeAlsoWhenTheGraftFails) {
  const CellRef leaf = message(model.Racine(), u"leaf", {u"x"});
  added.Racine()->setColCell(nullptr);
  EXPECT_EQ(graft(leaf), FailureKind::ObjectNotSet);
  EXPECT_EQ(leaf->TypeCell(), 1);
}

TEST_F(Grafting, ANodeWithoutAListIsObjectNotSet) {
  model.Racine()->setColCell(nullptr);
  EXPECT_EQ(graft(model.Racine()), FailureKind::ObjectNotSet);
}

TEST_F(Grafting, AnEmptyModelRaisesNothingAtANodeWithoutAList) {
  model.Racine()->setColCell(nullptr);
  KOBModeleTraduction empty;
  EXPECT_EQ(failureOf([&] { model.AddModele(empty); }), std::nullopt);
}

TEST_F(Grafting, AChildThatIsNothingFailsBeforeTheNamesAreCompared) {
  model.Racine()->ColCell()->Add(nullptr);
  EXPECT_EQ(graft(model.Racine()), FailureKind::ObjectNotSet);
}

TEST_F(Grafting, AnAddedChildThatIsNothingEndsItThere) {
  added.Racine()->ColCell()->Add(nullptr, 2);
  EXPECT_EQ(graft(model.Racine()), FailureKind::ObjectNotSet);
  EXPECT_EQ(names(model.Racine()), (Texts{u"b", u"(nothing)"}));
  EXPECT_EQ(b->parentcell(), model.Racine());
}

TEST_F(Grafting, AboveItselfIsRefusedAndNothingChanges) {
  EXPECT_EQ(graft(m), FailureKind::InvalidCall);
  EXPECT_EQ(m->TypeCell(), 2);
  EXPECT_EQ(m->ColCell(), nullptr);
  EXPECT_EQ(m->parentcell(), added.Racine());
}

TEST_F(Grafting, AnEmptyNodeDeepInTheAddedModelIsRefused) {
  const CellRef deep = b->AddNoeuds(u"x")->AddNoeuds(u"y");
  EXPECT_EQ(graft(deep), FailureKind::InvalidCall);
  EXPECT_TRUE(names(deep).empty());
}

TEST_F(Grafting, ACellThatBothModelsHoldIsRefusedToo) {
  model.AddModele(added);
  EXPECT_EQ(failureOf([&] { m->AddModele(model); }), FailureKind::InvalidCall);
}

TEST_F(Grafting, BelowItselfACellWithChildrenIsATypeMismatch) {
  b->AddNoeuds(u"x");
  EXPECT_EQ(graft(b), FailureKind::TypeMismatch);
}

TEST_F(Grafting, WhatIsDamagedInTheAddedModelDoesNotHinderIt) {
  const CellRef leaf = message(model.Racine(), u"leaf", {u"x"});
  b->AddNoeuds(u"x");
  b->ColCell()->Add(nullptr, 1);
  EXPECT_EQ(graft(leaf), std::nullopt);
  EXPECT_EQ(names(leaf), (Texts{u"b", u"a", u"m"}));
}

TEST_F(Grafting, AnEmptyModelOntoItsOwnRelativesIsNotRefused) {
  KOBModeleTraduction empty;
  EXPECT_EQ(failureOf([&] { m->AddModele(empty); }), std::nullopt);
  EXPECT_EQ(m->TypeCell(), 1);
}

}  // namespace
}  // namespace kob::test
