// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

#include <limits>

namespace kob::test {
namespace {

class CellKinds : public ModelTest {};

constexpr std::int32_t noKinds[] = {-1, 3, 99, std::numeric_limits<std::int32_t>::min(),
                                    std::numeric_limits<std::int32_t>::max()};

TEST_F(CellKinds, ANewCellIsALeafHoldingOneMessage) {
  const CellRef cell = KOBCellTraduction::create();
  EXPECT_EQ(cell->TypeCell(), 2);
  EXPECT_EQ(cell->TypeFeuille(), 1);
  ASSERT_NE(cell->Traduction(), nullptr);
  EXPECT_EQ(texts(cell), Texts(6, u""));
  EXPECT_FALSE(cell->Contexte());
}

TEST_F(CellKinds, ANewCellHasNothingElse) {
  const CellRef cell = KOBCellTraduction::create();
  EXPECT_EQ(cell->nom(), u"");
  EXPECT_EQ(cell->Alias(), u"");
  EXPECT_EQ(cell->parentcell(), nullptr);
  EXPECT_EQ(cell->ColCell(), nullptr);
  EXPECT_EQ(cell->ColTraduction(), nullptr);
  EXPECT_EQ(cell->ColLeft(), nullptr);
  EXPECT_EQ(cell->ColWidth(), nullptr);
  EXPECT_EQ(cell->m_left(), 0);
  EXPECT_EQ(cell->m_width(), 0);
}

TEST_F(CellKinds, ANewCellOnAThreadWithoutLanguagesHasNoTexts) {
  Global_Util::setNbLangues(0);
  EXPECT_EQ(texts(KOBCellTraduction::create()), Texts{});
}

TEST_F(CellKinds, ANodeHasAnEmptyList) {
  const CellRef cell = KOBCellTraduction::create();
  cell->setTypeCell(1);
  EXPECT_EQ(cell->TypeCell(), 1);
  ASSERT_NE(cell->ColCell(), nullptr);
  EXPECT_EQ(cell->ColCell()->Count(), 0);
}

TEST_F(CellKinds, BecomingANodeKeepsTheMessage) {
  const CellRef cell = KOBCellTraduction::create();
  cell->Traduction()->ChangeTraduction(u"text", 1);
  cell->setTypeCell(1);
  EXPECT_EQ(cell->TypeFeuille(), 1);
  EXPECT_EQ(texts(cell)[0], u"text");
}

TEST_F(CellKinds, BecomingALeafDropsAllChildren) {
  const CellRef cell = named(u"node");
  const std::weak_ptr<KOBCellTraduction> child = cell->AddNoeuds(u"child");
  const std::weak_ptr<KOBCellTraduction> below = child.lock()->AddNoeuds(u"below");
  cell->setTypeCell(2);
  EXPECT_EQ(cell->TypeCell(), 2);
  EXPECT_EQ(cell->ColCell(), nullptr);
  EXPECT_TRUE(child.expired());
  EXPECT_TRUE(below.expired());
}

TEST_F(CellKinds, BecomingANodeAgainDoesNotBringTheChildrenBack) {
  const CellRef cell = named(u"node");
  cell->AddNoeuds(u"child");
  cell->setTypeCell(2);
  cell->setTypeCell(1);
  EXPECT_EQ(names(cell), Texts{});
}

TEST_F(CellKinds, AssigningTheCurrentTypeCellKeepsTheChildren) {
  const CellRef cell = named(u"node");
  cell->AddNoeuds(u"child");
  const auto list = cell->ColCell();
  cell->setTypeCell(1);
  EXPECT_EQ(cell->ColCell(), list);
  EXPECT_EQ(names(cell), Texts{u"child"});
}

TEST_F(CellKinds, ATypeCellThatIsNoneIsIgnored) {
  const CellRef cell = named(u"node");
  cell->AddNoeuds(u"child");
  for (const std::int32_t kind : noKinds) {
    cell->setTypeCell(kind);
    EXPECT_EQ(cell->TypeCell(), 1);
  }
  cell->setTypeCell(0);
  EXPECT_EQ(cell->TypeCell(), 1);
  EXPECT_EQ(names(cell), Texts{u"child"});
}

TEST_F(CellKinds, WithoutTranslationsNothingIsThere) {
  const CellRef cell = KOBCellTraduction::create();
  cell->setTypeFeuille(0);
  EXPECT_EQ(cell->TypeFeuille(), 0);
  EXPECT_EQ(cell->Traduction(), nullptr);
  EXPECT_EQ(cell->ColTraduction(), nullptr);
  EXPECT_EQ(cell->ColLeft(), nullptr);
  EXPECT_EQ(cell->ColWidth(), nullptr);
}

TEST_F(CellKinds, AControlHasSixFactorsOfOneAndNoEntries) {
  const CellRef cell = KOBCellTraduction::create();
  cell->setTypeFeuille(2);
  EXPECT_EQ(cell->Traduction(), nullptr);
  ASSERT_NE(cell->ColTraduction(), nullptr);
  EXPECT_EQ(cell->ColTraduction()->Count(), 0);
  ASSERT_NE(cell->ColLeft(), nullptr);
  ASSERT_NE(cell->ColWidth(), nullptr);
  EXPECT_EQ(factors(*cell->ColLeft()), Factors(6, 1.0));
  EXPECT_EQ(factors(*cell->ColWidth()), Factors(6, 1.0));
  EXPECT_NE(cell->ColLeft(), cell->ColWidth());
}

TEST_F(CellKinds, AFreshFactorIsTheSmallIntegerOne) {
  const CellRef cell = KOBCellTraduction::create();
  cell->setTypeFeuille(2);
  EXPECT_FALSE(cell->ColLeft()->Item(1).isDouble());
  EXPECT_FALSE(cell->ColWidth()->Item(6).isDouble());
}

TEST_F(CellKinds, AControlThatIsMadeAControlAgainKeepsItsTranslations) {
  const CellRef cell = KOBCellTraduction::create();
  cell->setTypeFeuille(2);
  cell->ColTraduction()->Add(entry(u"Caption", {u"text"}));
  cell->ChangeLeft(2.0, 1);
  const auto width = cell->ColWidth();
  cell->setTypeFeuille(2);
  EXPECT_EQ(cell->ColTraduction()->Count(), 1);
  EXPECT_EQ(cell->ColLeft()->Item(1).value(), 2.0);
  EXPECT_EQ(cell->ColWidth(), width);
}

TEST_F(CellKinds, AControlThatLosesItsTranslationsDropsItsLists) {
  const CellRef cell = KOBCellTraduction::create();
  cell->setTypeFeuille(2);
  cell->setTypeFeuille(0);
  EXPECT_EQ(cell->ColTraduction(), nullptr);
  EXPECT_EQ(cell->ColLeft(), nullptr);
  EXPECT_EQ(cell->ColWidth(), nullptr);
}

TEST_F(CellKinds, AControlThatBecomesAMessageStartsWithEmptyTexts) {
  const CellRef cell = KOBCellTraduction::create();
  cell->Traduction()->ChangeTraduction(u"old", 1);
  cell->setTypeFeuille(2);
  cell->setTypeFeuille(1);
  EXPECT_EQ(cell->ColTraduction(), nullptr);
  EXPECT_EQ(cell->ColLeft(), nullptr);
  EXPECT_EQ(cell->ColWidth(), nullptr);
  EXPECT_EQ(texts(cell), Texts(6, u""));
}

TEST_F(CellKinds, AMessageThatIsMadeAMessageAgainKeepsItsText) {
  const CellRef cell = KOBCellTraduction::create();
  cell->Traduction()->ChangeTraduction(u"text", 1);
  cell->setTypeFeuille(1);
  EXPECT_EQ(texts(cell)[0], u"text");
}

TEST_F(CellKinds, ATypeFeuilleThatIsNoneIsIgnored) {
  const CellRef cell = KOBCellTraduction::create();
  cell->Traduction()->ChangeTraduction(u"text", 1);
  for (const std::int32_t kind : noKinds) {
    cell->setTypeFeuille(kind);
    EXPECT_EQ(cell->TypeFeuille(), 1);
  }
  EXPECT_EQ(texts(cell)[0], u"text");
}

TEST_F(CellKinds, TheTwoKindsAreIndependent) {
  for (const std::int32_t kind : {0, 1, 2}) {
    const CellRef cell = KOBCellTraduction::create();
    cell->setTypeFeuille(kind);
    cell->setTypeCell(1);
    EXPECT_EQ(cell->TypeFeuille(), kind);
    cell->AddNoeuds(u"child");
    cell->setTypeFeuille(kind == 0 ? 2 : 0);
    EXPECT_EQ(names(cell), Texts{u"child"});
  }
}

TEST_F(CellKinds, AFieldOfAnotherKindThatAHostAssignedIsDroppedWithTheKind) {
  const CellRef cell = KOBCellTraduction::create();
  cell->setColTraduction(std::make_shared<EntryList>());
  cell->setColLeft(std::make_shared<FactorList>());
  cell->setColWidth(std::make_shared<FactorList>());
  cell->setTypeFeuille(0);
  EXPECT_EQ(cell->ColTraduction(), nullptr);
  EXPECT_EQ(cell->ColLeft(), nullptr);
  EXPECT_EQ(cell->ColWidth(), nullptr);
}

TEST_F(CellKinds, TheReadyMadeCellsAreWhatTheKindsMake) {
  const CellRef ctl = KOBCellTraduction::createControl();
  EXPECT_EQ(ctl->TypeCell(), 2);
  EXPECT_EQ(ctl->TypeFeuille(), 2);
  EXPECT_EQ(ctl->Traduction(), nullptr);
  EXPECT_EQ(ctl->ColTraduction()->Count(), 0);
  EXPECT_EQ(factors(*ctl->ColLeft()), Factors(6, 1.0));
  EXPECT_EQ(factors(*ctl->ColWidth()), Factors(6, 1.0));
  const CellRef node = KOBCellTraduction::createNode();
  EXPECT_EQ(node->TypeCell(), 1);
  EXPECT_EQ(node->TypeFeuille(), 0);
  EXPECT_EQ(node->Traduction(), nullptr);
  EXPECT_EQ(names(node), Texts{});
}

TEST_F(CellKinds, PlainFieldsReadAsAssigned) {
  const CellRef cell = KOBCellTraduction::create();
  cell->setAlias(u"Alias");
  cell->setm_left(-1);
  cell->setm_width(1);
  cell->setContexte(true);
  EXPECT_EQ(cell->nom(), u"");
  EXPECT_EQ(cell->Alias(), u"Alias");
  EXPECT_EQ(cell->m_left(), -1);
  EXPECT_EQ(cell->m_width(), 1);
  EXPECT_TRUE(cell->Contexte());
}

TEST_F(CellKinds, AnIndicatorKeepsAnyNumberAndTheOtherOne) {
  const CellRef cell = KOBCellTraduction::create();
  constexpr std::int32_t numbers[] = {1, 127, 128, -129, 70000, std::numeric_limits<std::int32_t>::min(), -1};
  for (const std::int32_t left : numbers) {
    cell->setm_left(left);
    for (const std::int32_t width : numbers) {
      cell->setm_width(width);
      EXPECT_EQ(cell->m_left(), left) << width;
      EXPECT_EQ(cell->m_width(), width) << left;
    }
  }
}

}  // namespace
}  // namespace kob::test
