// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

namespace kob::test {
namespace {

class AddingCells : public ModelTest {
 protected:
  CellRef parent = named(u"parent");
};

TEST_F(AddingCells, ALeafBecomesANodeWithItsFirstChild) {
  EXPECT_EQ(parent->TypeCell(), 2);
  const CellRef child = parent->AddNoeuds(u"child");
  EXPECT_EQ(parent->TypeCell(), 1);
  EXPECT_EQ(names(parent), Texts{u"child"});
  EXPECT_EQ(parent->ColCell()->Item(1), child);
}

TEST_F(AddingCells, ALeafThatBecomesANodeKeepsItsTranslations) {
  parent->Traduction()->ChangeTraduction(u"text", 1);
  parent->AddNoeuds(u"child");
  EXPECT_EQ(parent->TypeFeuille(), 1);
  EXPECT_EQ(texts(parent)[0], u"text");
}

TEST_F(AddingCells, ANodeIsAddedEmptyAndWithoutTranslations) {
  const CellRef child = parent->AddNoeuds(u"child");
  EXPECT_EQ(child->TypeCell(), 1);
  EXPECT_EQ(child->TypeFeuille(), 0);
  EXPECT_EQ(names(child), Texts{});
  EXPECT_EQ(child->Traduction(), nullptr);
  EXPECT_EQ(child->nom(), u"child");
  EXPECT_EQ(child->parentcell(), parent);
  EXPECT_FALSE(child->Contexte());
}

TEST_F(AddingCells, AMessageIsAddedAsALeafWithItsReferenceText) {
  const CellRef child = parent->AddMessage(u"Titre", u"Hello");
  EXPECT_EQ(child->TypeCell(), 2);
  EXPECT_EQ(child->TypeFeuille(), 1);
  EXPECT_EQ(texts(child), (Texts{u"Hello", u"", u"", u"", u"", u""}));
  EXPECT_EQ(child->nom(), u"Titre");
  EXPECT_EQ(child->parentcell(), parent);
}

TEST_F(AddingCells, AMessageMakesALeafANodeToo) {
  parent->AddMessage(u"Titre", u"Hello");
  EXPECT_EQ(parent->TypeCell(), 1);
  EXPECT_EQ(names(parent), Texts{u"Titre"});
}

TEST_F(AddingCells, WithoutAnAliasTheNameIsTheAlias) {
  EXPECT_EQ(parent->AddNoeuds(u"node")->Alias(), u"node");
  EXPECT_EQ(parent->AddMessage(u"Titre", u"Hello")->Alias(), u"Titre");
}

TEST_F(AddingCells, AnAliasIsKept) {
  EXPECT_EQ(parent->AddNoeuds(u"node", nullptr, u"Noeud")->Alias(), u"Noeud");
  EXPECT_EQ(parent->AddMessage(u"Titre", u"Hello", nullptr, u"Le titre")->Alias(), u"Le titre");
}

TEST_F(AddingCells, ChildrenStandInTheOrderOfTheirCapitals) {
  parent->AddNoeuds(u"b");
  parent->AddNoeuds(u"C");
  parent->AddNoeuds(u"a");
  EXPECT_EQ(names(parent), (Texts{u"a", u"b", u"C"}));
}

TEST_F(AddingCells, MessagesAndNodesStandInOneOrder) {
  parent->AddMessage(u"m", u"");
  parent->AddNoeuds(u"Z");
  parent->AddNoeuds(u"a");
  parent->AddMessage(u"N", u"");
  EXPECT_EQ(names(parent), (Texts{u"a", u"m", u"N", u"Z"}));
}

TEST_F(AddingCells, TheOrderIsOrdinalByCodeUnit) {
  for (const TextView name : {u"z", u"é", u"_", u"A1", u"a", u"Z9", u"10", u"9"}) {
    parent->AddNoeuds(name);
  }
  EXPECT_EQ(names(parent), (Texts{u"10", u"9", u"a", u"A1", u"z", u"Z9", u"_", u"é"}));
}

TEST_F(AddingCells, ANameThatDiffersInCaseOnlyIsRefusedWithMinusTwo) {
  parent->AddNoeuds(u"b");
  std::int32_t erreur = 0;
  EXPECT_EQ(parent->AddNoeuds(u"B", &erreur), nullptr);
  EXPECT_EQ(erreur, -2);
  EXPECT_EQ(names(parent), Texts{u"b"});
}

TEST_F(AddingCells, AMessageOfATakenNameIsRefusedWithMinusTwo) {
  parent->AddNoeuds(u"été");
  std::int32_t erreur = 0;
  EXPECT_EQ(parent->AddMessage(u"ÉTÉ", u"text", &erreur), nullptr);
  EXPECT_EQ(erreur, -2);
  EXPECT_EQ(names(parent), Texts{u"été"});
}

TEST_F(AddingCells, ARefusalLeavesTheCellThatIsThere) {
  const CellRef first = parent->AddMessage(u"m", u"text", nullptr, u"alias");
  parent->AddMessage(u"M", u"other", nullptr, u"other");
  EXPECT_EQ(texts(first)[0], u"text");
  EXPECT_EQ(first->Alias(), u"alias");
  EXPECT_EQ(first->nom(), u"m");
}

TEST_F(AddingCells, ARefusalWithoutAnErrorArgumentJustReturnsNone) {
  parent->AddNoeuds(u"b");
  EXPECT_EQ(parent->AddNoeuds(u"b"), nullptr);
  EXPECT_EQ(parent->AddMessage(u"b", u"text"), nullptr);
}

TEST_F(AddingCells, SuccessDoesNotWriteTheError) {
  std::int32_t erreur = 42;
  parent->AddNoeuds(u"a", &erreur);
  parent->AddMessage(u"b", u"text", &erreur);
  EXPECT_EQ(erreur, 42);
}

TEST_F(AddingCells, TheSameNameUnderAnotherParentIsFree) {
  const CellRef first = parent->AddNoeuds(u"a");
  EXPECT_NE(first->AddNoeuds(u"a"), nullptr);
}

TEST_F(AddingCells, AnEmptyNameIsANameToo) {
  EXPECT_NE(parent->AddNoeuds(u""), nullptr);
  EXPECT_EQ(parent->AddNoeuds(u""), nullptr);
  parent->AddNoeuds(u"a");
  EXPECT_EQ(names(parent), (Texts{u"", u"a"}));
}

TEST_F(AddingCells, AMessageOnAThreadWithoutLanguagesHasNoText) {
  Global_Util::setNbLangues(0);
  const CellRef child = parent->AddMessage(u"m", u"lost");
  ASSERT_NE(child, nullptr);
  EXPECT_EQ(texts(child), Texts{});
}

TEST_F(AddingCells, InAnUnsortedListTheFirstGreaterNameDecides) {
  for (const TextView name : {u"m", u"c", u"x", u"b"}) {
    append(parent, named(name));
  }
  parent->AddNoeuds(u"d");
  EXPECT_EQ(names(parent), (Texts{u"d", u"m", u"c", u"x", u"b"}));
  parent->AddNoeuds(u"n");
  EXPECT_EQ(names(parent), (Texts{u"d", u"m", u"c", u"n", u"x", u"b"}));
  parent->AddNoeuds(u"y");
  EXPECT_EQ(names(parent), (Texts{u"d", u"m", u"c", u"n", u"x", u"b", u"y"}));
}

TEST_F(AddingCells, ARenamedSiblingCountsWithItsNewName) {
  parent->AddNoeuds(u"b")->setnom(u"x");
  EXPECT_NE(parent->AddNoeuds(u"b"), nullptr);
  EXPECT_EQ(names(parent), (Texts{u"b", u"x"}));
  EXPECT_EQ(parent->AddNoeuds(u"X"), nullptr);
}

TEST_F(AddingCells, ANodeWithoutAListShowsTheMessageAndFails) {
  parent->setTypeCell(1);
  parent->setColCell(nullptr);
  std::int32_t erreur = 42;
  EXPECT_EQ(failureOf([&] { parent->AddNoeuds(u"a", &erreur); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(failureOf([&] { parent->AddMessage(u"a", u"text", &erreur); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(erreur, 42);
  EXPECT_EQ(boxes.notices, Texts(2, u"GetCell - KOBCellTraduction"));
}

TEST_F(AddingCells, BehindAnItemThatIsNothingNoPlaceIsFound) {
  append(parent, named(u"a"));
  parent->ColCell()->Add(nullptr);
  append(parent, named(u"z"));
  EXPECT_EQ(failureOf([&] { parent->AddNoeuds(u"m"); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(names(parent), (Texts{u"a", u"(nothing)", u"z"}));
  EXPECT_EQ(boxes.notices, Texts{u"GetCell - KOBCellTraduction"});
}

TEST_F(AddingCells, BeforeAnItemThatIsNothingThePlaceIsFound) {
  append(parent, named(u"m"));
  parent->ColCell()->Add(nullptr);
  EXPECT_NE(parent->AddNoeuds(u"c"), nullptr);
  EXPECT_EQ(names(parent), (Texts{u"c", u"m", u"(nothing)"}));
  EXPECT_EQ(boxes.notices, Texts{u"GetCell - KOBCellTraduction"});
}

}  // namespace
}  // namespace kob::test
