// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

#include <tests/doubles/Utf8.h>

namespace kob::testing {
namespace {

/// The two operations of a cell that record one control: AddCtrl and UpdateCtrl.
class CellHarvestTest : public EngineTest {
 protected:
  using CellRef = std::shared_ptr<KOBCellTraduction>;

  CellRef add(const CellRef& parent, TextView name, TextView caption, TextView toolTip = {},
              TextView context = {}, TextView alias = {}) {
    code = 99;
    return parent->AddCtrl(name, toolTip, caption, 7, 8, code, alias, context);
  }
  CellRef update(TextView path, TextView caption, TextView toolTip = {}, TextView context = {}) {
    code = 99;
    return cell(path)->UpdateCtrl(toolTip, caption, 7, 8, code, u"autre", context);
  }
  const CellRef& root() const { return model.Racine(); }

  std::int32_t code = 0;
};

TEST_F(CellHarvestTest, AddMakesALeafWithAnEntryForEachTextAndReturnsIt) {
  const CellRef made = add(root(), u"Label1", u"Nom", u"aide");
  EXPECT_EQ(made, cell(u"Label1"));
  EXPECT_EQ(code, 0);
  EXPECT_TRUE(treeIs(R"(
    Label1 control left=7 width=8
      .Caption "Nom"
      .ToolTip "aide"
  )"));
}

TEST_F(CellHarvestTest, AddMakesNoEntryForAnEmptyText) {
  add(root(), u"A", u"", u"aide");
  add(root(), u"B", u"");
  EXPECT_TRUE(treeIs(R"(
    A control left=7 width=8
      .ToolTip "aide"
    B control left=7 width=8
  )"));
}

TEST_F(CellHarvestTest, AddInsertsInOrderIgnoringCase) {
  add(root(), u"b", u"1");
  add(root(), u"A", u"2");
  add(root(), u"C", u"3");
  EXPECT_TRUE(treeIs(R"(
    A control left=7 width=8
      .Caption "2"
    b control left=7 width=8
      .Caption "1"
    C control left=7 width=8
      .Caption "3"
  )"));
}

TEST_F(CellHarvestTest, AddOrdersByUnitOfTheUpperCasedNames) {
  add(root(), u"a_", u"");
  add(root(), u"aB", u"");
  add(root(), u"é", u"");
  add(root(), u"z", u"");
  EXPECT_TRUE(treeIs(R"(
    aB control left=7 width=8
    a_ control left=7 width=8
    z control left=7 width=8
    é control left=7 width=8
  )"));
}

TEST_F(CellHarvestTest, AddGivesTheNameAsAliasUnlessThereIsOne) {
  add(root(), u"A", u"");
  add(root(), u"B", u"", u"", u"", u"Bouton");
  EXPECT_TRUE(treeIs(R"(
    A control left=7 width=8
    B control left=7 width=8 alias="Bouton"
  )"));
}

TEST_F(CellHarvestTest, AddMakesALeafParentANodeAndKeepsItsKind) {
  givenModel(R"(
    A control left=1 width=1
      .Caption "a"
  )");
  add(cell(u"A"), u"B", u"b");
  EXPECT_TRUE(treeIs(R"(
    A node control left=1 width=1
      .Caption "a"
      B control left=7 width=8
        .Caption "b"
  )"));
}

TEST_F(CellHarvestTest, AddWithAContextMakesANodeAndAContextCellBelowIt) {
  const CellRef made = add(root(), u"A", u"a", u"t", u"Vente", u"autre");
  EXPECT_EQ(made, cell(u"A\\Vente"));
  EXPECT_EQ(code, 0);
  EXPECT_TRUE(treeIs(R"(
    A node
      Vente control context left=7 width=8
        .Caption "a"
        .ToolTip "t"
  )"));
}

TEST_F(CellHarvestTest, AddTwiceWithoutContextIsRefusedWithMinusFour) {
  add(root(), u"A", u"a");
  EXPECT_EQ(add(root(), u"a", u"b"), nullptr);
  EXPECT_EQ(code, -4);
  EXPECT_EQ(cell(u"A")->ColTraduction()->Count(), 1);
}

TEST_F(CellHarvestTest, AddOnAMessageLeafIsRefusedWithMinusThree) {
  givenModel("A message");
  EXPECT_EQ(add(root(), u"A", u"a"), nullptr);
  EXPECT_EQ(code, -3);
  EXPECT_EQ(add(root(), u"A", u"a", u"", u"Vente"), nullptr);
  EXPECT_EQ(code, -3);
  EXPECT_TRUE(treeIs("A message\n  . \"\""));
}

TEST_F(CellHarvestTest, AddOnAMessageNodeKeepsItsKindAndCannotHoldEntries) {
  givenModel("A message node");
  code = 0;
  EXPECT_ANY_THROW(add(root(), u"A", u"a"));
}

TEST_F(CellHarvestTest, AddOnAMessageNodeWithoutTextsReturnsItWithTheIndicators) {
  givenModel("A node message");
  EXPECT_EQ(add(root(), u"A", u""), cell(u"A"));
  EXPECT_EQ(code, 0);
  EXPECT_TRUE(treeIs("A node message left=7 width=8\n  . \"\""));
}

TEST_F(CellHarvestTest, AddOnAPlainNodeMakesItAControl) {
  givenModel("A node\n  B node");
  EXPECT_EQ(add(root(), u"a", u"x", u"y"), cell(u"A"));
  EXPECT_EQ(code, 0);
  EXPECT_TRUE(treeIs(R"(
    A node control left=7 width=8
      .Caption "x"
      .ToolTip "y"
      B node
  )"));
}

TEST_F(CellHarvestTest, AddOnAPlainLeafMakesItAControlLeaf) {
  givenModel("A");
  add(root(), u"A", u"x");
  EXPECT_TRUE(treeIs("A control left=7 width=8\n  .Caption \"x\""));
}

TEST_F(CellHarvestTest, AddWithAContextToAnExistingCellInsertsItInOrder) {
  givenModel(R"(
    A node
      C node
      b node
  )");
  cell(u"A")->ColCell()->Remove(1);
  const CellRef made = add(root(), u"A", u"x", u"", u"B2");
  EXPECT_EQ(made, cell(u"A\\B2"));
  add(root(), u"A", u"x", u"", u"aa");
  EXPECT_TRUE(treeIs(R"(
    A node
      aa control context left=7 width=8
        .Caption "x"
      b node
      B2 control context left=7 width=8
        .Caption "x"
  )"));
}

TEST_F(CellHarvestTest, AddWithAContextMakesAnExistingLeafANode) {
  givenModel("A control left=1 width=1");
  add(root(), u"A", u"x", u"", u"Vente");
  EXPECT_TRUE(treeIs(R"(
    A node control left=1 width=1
      Vente control context left=7 width=8
        .Caption "x"
  )"));
}

TEST_F(CellHarvestTest, AddWithAContextNamedLikeACellBesideItIsRefusedWithMinusFive) {
  givenModel(R"(
    A
    vente node
  )");
  EXPECT_EQ(add(root(), u"A", u"x", u"", u"Vente"), nullptr);
  EXPECT_EQ(code, -5);
  EXPECT_TRUE(treeIs("A node\nvente node")) << "the cell has become a node before the look-up";
}

TEST_F(CellHarvestTest, AddWithAContextThatTheCellHasAlreadyMakesASecondOne) {
  givenModel("A node\n  Vente node");
  EXPECT_NE(add(root(), u"A", u"x", u"", u"Vente"), nullptr);
  EXPECT_EQ(cell(u"A")->ColCell()->Count(), 2);
}

TEST_F(CellHarvestTest, UpdateReplacesACaptionWithoutAQuestionWhenThereIsNoToolTip) {
  givenModel("A control left=1 width=1\n  .Caption \"Ok\" 2=\"x\"");
  EXPECT_EQ(update(u"A", u"OK"), cell(u"A"));
  EXPECT_EQ(code, 0);
  EXPECT_TRUE(treeIs("A control left=7 width=8\n  .Caption \"OK\" 2=\"x\""));
}

TEST_F(CellHarvestTest, UpdateReplacesAToolTipWithoutAQuestionWhenThereIsNoCaption) {
  givenModel("A control left=1 width=1\n  .ToolTip \"t\"");
  EXPECT_EQ(update(u"A", u"", u"u"), cell(u"A"));
  EXPECT_TRUE(treeIs("A control left=7 width=8\n  .ToolTip \"u\""));
}

TEST_F(CellHarvestTest, UpdateAsksWhenBothTextsAreThereAndNoLeavesEverything) {
  givenModel("A control left=1 width=1\n  .Caption \"Ok\"\n  .ToolTip \"Valide\"");
  messages.answer(false);
  EXPECT_EQ(update(u"A", u"OK", u"Valide"), nullptr);
  EXPECT_EQ(code, 0);
  EXPECT_EQ(messages.take(),
            "question \"Le Controle A existe déja\\r\\nVoulez vous le modifier?\\r\\n"
            "Ok  ->  OK\\r\\nValide  ->  Valide\" -> No\n");
  EXPECT_TRUE(treeIs("A control left=1 width=1\n  .Caption \"Ok\"\n  .ToolTip \"Valide\""));
}

TEST_F(CellHarvestTest, UpdateReplacesBothAfterAYes) {
  givenModel("A control left=1 width=1\n  .Caption \"Ok\"\n  .ToolTip \"Valide\"");
  messages.answer(true);
  EXPECT_EQ(update(u"A", u"OK", u"Accepte"), cell(u"A"));
  messages.take();
  EXPECT_TRUE(treeIs("A control left=7 width=8\n  .Caption \"OK\"\n  .ToolTip \"Accepte\""));
}

TEST_F(CellHarvestTest, UpdateWithTheSameTextsChangesNotEvenTheIndicators) {
  givenModel("A control left=1 width=1\n  .Caption \"Ok\"\n  .ToolTip \"Valide\"");
  EXPECT_EQ(update(u"A", u"Ok", u"Valide"), nullptr);
  EXPECT_EQ(code, 0);
  EXPECT_TRUE(treeIs("A control left=1 width=1\n  .Caption \"Ok\"\n  .ToolTip \"Valide\""));
}

TEST_F(CellHarvestTest, UpdateComparesTextsExactlyAndEntryNamesIgnoringCase) {
  givenModel("A control left=1 width=1\n  .CAPTION \"Ok\"");
  EXPECT_EQ(update(u"A", u"Ok"), nullptr);
  EXPECT_EQ(update(u"A", u"ok"), cell(u"A"));
  EXPECT_TRUE(treeIs("A control left=7 width=8\n  .CAPTION \"ok\""));
}

TEST_F(CellHarvestTest, UpdateComparesAndChangesTheFirstEntryOfAName) {
  givenModel("A control left=1 width=1\n  .Caption \"a\"\n  .CAPTION \"b\"");
  EXPECT_EQ(update(u"A", u"a"), nullptr);
  EXPECT_EQ(update(u"A", u"b"), cell(u"A"));
  EXPECT_TRUE(treeIs("A control left=7 width=8\n  .Caption \"b\"\n  .CAPTION \"b\""));
}

TEST_F(CellHarvestTest, UpdateWithAnEmptyTextKeepsTheRecordedOne) {
  givenModel("A control left=1 width=1\n  .Caption \"Ok\"\n  .ToolTip \"Valide\"");
  messages.answer(true);
  update(u"A", u"", u"Accepte");
  messages.take();
  EXPECT_TRUE(treeIs("A control left=7 width=8\n  .Caption \"Ok\"\n  .ToolTip \"Accepte\""));
}

TEST_F(CellHarvestTest, UpdateAddsAnEntryThatIsMissing) {
  givenModel("A control left=1 width=1\n  .Caption \"Ok\"");
  update(u"A", u"Ok", u"Valide");
  EXPECT_TRUE(treeIs("A control left=7 width=8\n  .Caption \"Ok\"\n  .ToolTip \"Valide\""));
}

TEST_F(CellHarvestTest, UpdateOfAPlainCellMakesItAControlWithoutComparing) {
  givenModel("A node");
  EXPECT_EQ(update(u"A", u""), cell(u"A"));
  EXPECT_TRUE(treeIs("A node control left=7 width=8"));
}

TEST_F(CellHarvestTest, UpdateOfAMessageLeafIsRefusedWithMinusThree) {
  givenModel("A message");
  EXPECT_EQ(update(u"A", u"x"), nullptr);
  EXPECT_EQ(code, -3);
  EXPECT_EQ(update(u"A", u"x", u"", u"Vente"), nullptr);
  EXPECT_EQ(code, -3);
}

TEST_F(CellHarvestTest, UpdateOfAMessageNodeGoesStraightToItsEntriesAndFails) {
  givenModel("A node message");
  EXPECT_ANY_THROW(update(u"A", u"x"));
  EXPECT_EQ(cell(u"A")->m_left(), 7);
}

TEST_F(CellHarvestTest, UpdateIgnoresTheAlias) {
  givenModel("A node");
  update(u"A", u"x");
  EXPECT_EQ(cell(u"A")->Alias(), u"A");
}

TEST_F(CellHarvestTest, UpdateWithAContextAsksWithItsName) {
  givenModel("A node\n  Vente control left=1 width=1\n    .Caption \"a\"\n    .ToolTip \"t\"");
  messages.answer(false);
  EXPECT_EQ(update(u"A", u"b", u"u", u"VENTE"), nullptr);
  EXPECT_EQ(messages.take(),
            "question \"Le Contexte VENTE du controle A existe déja\\r\\nVoulez vous le modifier?\\r\\n"
            "a  ->  b\\r\\nt  ->  u\" -> No\n");
}

TEST_F(CellHarvestTest, UpdateWithAContextThatHasTheTextsReturnsNothing) {
  givenModel("A node\n  Vente control left=1 width=1\n    .Caption \"a\"");
  EXPECT_EQ(update(u"A", u"a", u"", u"Vente"), nullptr);
  EXPECT_EQ(code, 0);
}

TEST_F(CellHarvestTest, UpdateWithAContextUpdatesTheContextsCell) {
  givenModel("A node control left=1 width=1\n  Vente control left=1 width=1\n    .Caption \"a\"");
  EXPECT_EQ(update(u"A", u"b", u"", u"Vente"), cell(u"A\\Vente"));
  EXPECT_TRUE(treeIs("A node control left=1 width=1\n  Vente control left=7 width=8\n    .Caption \"b\""));
}

TEST_F(CellHarvestTest, UpdateWithAContextComparesItsFirstEntriesOfAName) {
  givenModel("A node\n  Vente control left=1 width=1\n    .Caption \"a\"\n    .CAPTION \"b\"");
  EXPECT_EQ(update(u"A", u"a", u"", u"Vente"), nullptr);
}

TEST_F(CellHarvestTest, UpdateWithAMissingContextComparesTheLastEntriesOfAName) {
  givenModel("A node control left=1 width=1\n  .Caption \"a\"\n  .CAPTION \"b\"");
  EXPECT_EQ(update(u"A", u"b", u"", u"Vente"), nullptr);
  EXPECT_EQ(cell(u"A\\Vente"), nullptr);
}

TEST_F(CellHarvestTest, UpdateWithAContextThatIsAMessageIsRefusedWithMinusSix) {
  givenModel("A node\n  Vente message");
  EXPECT_EQ(update(u"A", u"a", u"", u"Vente"), nullptr);
  EXPECT_EQ(code, -6);
}

TEST_F(CellHarvestTest, UpdateWithAMissingContextAndTheControlsOwnTextsMakesNothing) {
  givenModel("A control left=1 width=1\n  .Caption \"a\"\n  .ToolTip \"t\"");
  EXPECT_EQ(update(u"A", u"a", u"t", u"Vente"), nullptr);
  EXPECT_EQ(code, 0);
  EXPECT_TRUE(treeIs("A node control left=1 width=1\n  .Caption \"a\"\n  .ToolTip \"t\""))
      << "a context makes the cell a node, whatever follows";
}

TEST_F(CellHarvestTest, UpdateWithAMissingContextMakesItWithoutAQuestion) {
  givenModel("A control left=1 width=1\n  .Caption \"a\"\n  .ToolTip \"t\"");
  const CellRef made = update(u"A", u"b", u"t", u"Vente");
  EXPECT_EQ(made, cell(u"A\\Vente"));
  EXPECT_TRUE(treeIs(R"(
    A node control left=1 width=1
      .Caption "a"
      .ToolTip "t"
      Vente control context left=7 width=8
        .Caption "b"
        .ToolTip "t"
  )"));
}

TEST_F(CellHarvestTest, UpdateWithAMissingContextOfAPlainCellMakesItWithoutComparing) {
  givenModel("A node");
  const CellRef made = update(u"A", u"", u"", u"Vente");
  EXPECT_EQ(made, cell(u"A\\Vente"));
  EXPECT_TRUE(treeIs("A node\n  Vente control context left=7 width=8"));
}

TEST_F(CellHarvestTest, UpdateInsertsANewContextInOrder) {
  givenModel("A node\n  B node\n  C node");
  update(u"A", u"x", u"", u"bb");
  EXPECT_EQ(toUtf8(cell(u"A")->ColCell()->Item(2)->nom()), "bb");
}

TEST_F(CellHarvestTest, UpdateOfAContextWithoutEntriesAsksNothing) {
  givenModel("A node\n  Vente control left=1 width=1");
  EXPECT_EQ(update(u"A", u"a", u"t", u"Vente"), cell(u"A\\Vente"));
  EXPECT_EQ(cell(u"A\\Vente")->ColTraduction()->Count(), 2);
}

TEST_F(CellHarvestTest, ADamagedEntryListFailsToTheCaller) {
  givenModel("A control left=1 width=1");
  cell(u"A")->ColTraduction()->Add(nullptr);
  EXPECT_THROW(update(u"A", u"x"), Failure);
}

}  // namespace
}  // namespace kob::testing
