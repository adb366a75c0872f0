// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

namespace kob::test {
namespace {

/// What a raised language count does to the lists of a cell.
class CellLanguages : public ModelTest {
 protected:
  KOBModeleTraduction model;
};

TEST_F(CellLanguages, FromSixToEightAControlHasNineFactors) {
  const CellRef cell = control(model.Racine(), u"ctl", {});
  model.setNbLangues(8);
  EXPECT_EQ(factors(*cell->ColWidth()), Factors(9, 1.0));
  EXPECT_EQ(factors(*cell->ColLeft()), Factors(9, 1.0));
}

TEST_F(CellLanguages, FromSixToEightAnEntryHasNineTexts) {
  const CellRef cell = model.Racine()->AddMessage(u"m", u"text");
  model.setNbLangues(8);
  EXPECT_EQ(texts(cell), (Texts{u"text", u"", u"", u"", u"", u"", u"", u"", u""}));
}

TEST_F(CellLanguages, EveryEntryOfAControlGrows) {
  const CellRef cell = control(
      model.Racine(), u"ctl", {entry(u"Caption", {u"a", u"b", u"c", u"d", u"e", u"f"}), entry(u"x", {u"y"})});
  model.setNbLangues(8);
  EXPECT_EQ(cell->ColTraduction()->Item(1)->ColTraduction()->Count(), 9);
  EXPECT_EQ(cell->ColTraduction()->Item(2)->ColTraduction()->Count(), 9);
}

TEST_F(CellLanguages, TheSurplusIsCountedAtTheNextRaise) {
  const CellRef cell = control(model.Racine(), u"ctl", {});
  const CellRef text = model.Racine()->AddMessage(u"m", u"text");
  model.setNbLangues(8);
  model.setNbLangues(9);
  EXPECT_EQ(cell->ColWidth()->Count(), 10);
  EXPECT_EQ(texts(text).size(), 10U);
  model.setNbLangues(12);
  EXPECT_EQ(cell->ColWidth()->Count(), 13);
  EXPECT_EQ(texts(text).size(), 13U);
}

TEST_F(CellLanguages, AListLongerThanTheCountStays) {
  const CellRef cell = control(model.Racine(), u"ctl", {});
  for (int i = 0; i < 4; ++i) {
    cell->ColWidth()->Add(Factor());
  }
  model.setNbLangues(8);
  EXPECT_EQ(cell->ColWidth()->Count(), 10);
  EXPECT_EQ(cell->ColLeft()->Count(), 6);
}

TEST_F(CellLanguages, LeftGrowsByAsMuchAsWidthWhateverItsOwnCount) {
  const CellRef cell = control(model.Racine(), u"ctl", {});
  cell->ColLeft()->Remove(1);
  cell->ColLeft()->Remove(1);
  model.setNbLangues(8);
  EXPECT_EQ(cell->ColWidth()->Count(), 9);
  EXPECT_EQ(cell->ColLeft()->Count(), 7);
}

TEST_F(CellLanguages, LeftGrowsByAsMuchAsWidthEvenWhereItIsLonger) {
  const CellRef cell = control(model.Racine(), u"ctl", {});
  for (int i = 0; i < 6; ++i) {
    cell->ColLeft()->Add(Factor());
  }
  model.setNbLangues(8);
  EXPECT_EQ(cell->ColLeft()->Count(), 15);
}

TEST_F(CellLanguages, WhatIsAppendedIsTheSmallIntegerOneAndWhatWasThereStays) {
  const CellRef cell = control(model.Racine(), u"ctl", {});
  cell->ChangeWidth(2.5, 6);
  model.setNbLangues(7);
  EXPECT_EQ(factors(*cell->ColWidth()), (Factors{1, 1, 1, 1, 1, 2.5, 1, 1}));
  EXPECT_FALSE(cell->ColWidth()->Item(8).isDouble());
}

TEST_F(CellLanguages, ChildrenGrowAtEveryDepth) {
  const CellRef deep =
      model.Racine()->AddNoeuds(u"a")->AddNoeuds(u"b")->AddMessage(u"m", u"text")->AddMessage(u"n", u"text");
  model.setNbLangues(8);
  EXPECT_EQ(texts(deep).size(), 9U);
  EXPECT_EQ(texts(deep->parentcell()).size(), 9U);
}

TEST_F(CellLanguages, ACellBesideTheTreeDoesNotGrow) {
  const CellRef lone = named(u"lone");
  model.setNbLangues(8);
  EXPECT_EQ(texts(lone).size(), 6U);
}

TEST_F(CellLanguages, ALeafsListThatAHostAssignedIsNotWalked) {
  const CellRef leaf = model.Racine()->AddMessage(u"m", u"text");
  const auto list = std::make_shared<CellList>();
  const CellRef hidden = named(u"hidden");
  list->Add(hidden);
  leaf->setColCell(list);
  model.setNbLangues(8);
  EXPECT_EQ(texts(hidden).size(), 6U);
}

TEST_F(CellLanguages, TheCallOnACellStartsThere) {
  const CellRef a = model.Racine()->AddMessage(u"a", u"text");
  const CellRef b = model.Racine()->AddMessage(u"b", u"text");
  a->UpdateTestLangue(2);
  b->ClearLangue(1);
  EXPECT_EQ(texts(a)[1], u"** text **");
  EXPECT_EQ(texts(b), Texts(6, u""));
  a->UpdateNbLangues();
  EXPECT_EQ(texts(a).size(), 7U);
  EXPECT_EQ(texts(b).size(), 6U);
}

TEST_F(CellLanguages, ACellWithoutTranslationsIsPassedOver) {
  const CellRef node = model.Racine()->AddNoeuds(u"n");
  model.setNbLangues(8);
  model.UpdateTestLangue(2);
  model.ClearLangue(2);
  EXPECT_EQ(node->Traduction(), nullptr);
  EXPECT_EQ(node->ColTraduction(), nullptr);
}

TEST_F(CellLanguages, ANodeThatLostItsListStopsTheWalk) {
  const CellRef before = model.Racine()->AddMessage(u"a", u"text");
  model.Racine()->AddMessage(u"b", u"text")->AddNoeuds(u"x");
  const CellRef damaged = model.Racine()->GetCell(u"b");
  const CellRef after = model.Racine()->AddMessage(u"c", u"text");
  damaged->setColCell(nullptr);
  EXPECT_EQ(failureOf([&] { model.UpdateTestLangue(2); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(texts(before)[1], u"** text **");
  EXPECT_EQ(texts(damaged)[1], u"** text **");
  EXPECT_EQ(texts(after)[1], u"");
  EXPECT_TRUE(boxes.notices.empty());
}

TEST_F(CellLanguages, AnItemThatIsNothingStopsTheWalkWhereItStands) {
  const CellRef before = model.Racine()->AddMessage(u"a", u"text");
  model.Racine()->ColCell()->Add(nullptr);
  const CellRef after = named(u"z");
  append(model.Racine(), after);
  EXPECT_EQ(failureOf([&] { model.setNbLangues(7); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(texts(before).size(), 8U);
  EXPECT_EQ(texts(after).size(), 6U);
}

TEST_F(CellLanguages, AnEntryThatIsNothingStopsTheWalkWhereItStands) {
  const EntryRef before = entry(u"Caption", {u"text", u""});
  const EntryRef after = entry(u"ToolTip", {u"text", u""});
  control(model.Racine(), u"ctl", {before, nullptr, after});
  EXPECT_EQ(failureOf([&] { model.UpdateTestLangue(2); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(before->ColTraduction()->Item(2), u"** text **");
  EXPECT_EQ(after->ColTraduction()->Item(2), u"");
}

TEST_F(CellLanguages, AControlThatLostItsEntriesStopsTheWalk) {
  control(model.Racine(), u"ctl", {})->setColTraduction(nullptr);
  EXPECT_EQ(failureOf([&] { model.ClearLangue(2); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(failureOf([&] { model.UpdateTestLangue(2); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(failureOf([&] { model.setNbLangues(7); }), FailureKind::ObjectNotSet);
}

TEST_F(CellLanguages, AControlThatLostItsWidthsFailsAfterItsEntriesHaveGrown) {
  const EntryRef caption = entry(u"Caption", {u"a", u"b", u"c", u"d", u"e", u"f"});
  const CellRef cell = control(model.Racine(), u"ctl", {caption});
  cell->setColWidth(nullptr);
  EXPECT_EQ(failureOf([&] { model.setNbLangues(8); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(caption->ColTraduction()->Count(), 9);
  EXPECT_EQ(cell->ColLeft()->Count(), 6);
}

TEST_F(CellLanguages, AControlThatLostItsLeftsFailsAfterItsFirstNewWidth) {
  const CellRef cell = control(model.Racine(), u"ctl", {});
  cell->setColLeft(nullptr);
  EXPECT_EQ(failureOf([&] { model.setNbLangues(8); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(cell->ColWidth()->Count(), 7);
}

TEST_F(CellLanguages, TheWalkGoesDownBeforeItGoesOn) {
  const CellRef a = model.Racine()->AddMessage(u"a", u"text");
  const CellRef below = a->AddMessage(u"below", u"text");
  const CellRef z = model.Racine()->AddMessage(u"z", u"text");
  z->setTraduction(nullptr);
  const CellRef inZ = z->AddMessage(u"below", u"text");
  EXPECT_EQ(failureOf([&] { model.UpdateTestLangue(2); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(texts(below)[1], u"** text **");
  EXPECT_EQ(texts(inZ)[1], u"");
}

}  // namespace
}  // namespace kob::test
