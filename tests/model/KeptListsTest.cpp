// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

namespace kob::test {
namespace {

class KeptLists : public ModelTest {};

TEST_F(KeptLists, AListOfTextsThatAHostKeepsOutlivesTheEntrysOtherHolders) {
  auto made = entry(u"Caption", {u"Nom", u"Name"});
  made->setColTraduction(std::make_shared<KOBTraductionObj>(2)->ColTraduction());
  const std::shared_ptr<TextList> kept = made->ColTraduction();
  made = nullptr;
  kept->Replace(2, u"Name");
  EXPECT_EQ(texts(*kept), (Texts{u"", u"Name"}));
}

TEST_F(KeptLists, AnEntrysListIsTheSameEveryTimeItIsAskedFor) {
  const auto made = std::make_shared<KOBTraductionObj>();
  const auto kept = made->ColTraduction();
  made->ChangeTraduction(u"Nom", 1);
  EXPECT_EQ(made->ColTraduction(), kept);
  EXPECT_EQ(kept->Item(1), u"Nom");
}

TEST_F(KeptLists, AssigningAnEntrysOwnListBackChangesNothingAndLetsTheEntryGo) {
  auto made = std::make_shared<KOBTraductionObj>();
  const std::weak_ptr<KOBTraductionObj> alive = made;
  made->setColTraduction(made->ColTraduction());
  made->ChangeTraduction(u"Nom", 1);
  EXPECT_EQ(made->ColTraduction()->Item(1), u"Nom");
  made = nullptr;
  EXPECT_TRUE(alive.expired());
}

TEST_F(KeptLists, AnEntryTakesItsOwnListBackAfterAnotherOne) {
  const auto made = std::make_shared<KOBTraductionObj>();
  const auto own = made->ColTraduction();
  made->ChangeTraduction(u"Nom", 1);
  made->setColTraduction(textList({u"other"}));
  made->setColTraduction(own);
  EXPECT_EQ(made->ColTraduction(), own);
  EXPECT_EQ(made->ColTraduction()->Item(1), u"Nom");
}

TEST_F(KeptLists, AListThatWasReplacedKeepsItsTexts) {
  const auto made = std::make_shared<KOBTraductionObj>();
  made->ChangeTraduction(u"Nom", 1);
  const auto kept = made->ColTraduction();
  made->setColTraduction(textList({u"other"}));
  made->ChangeTraduction(u"changed", 1);
  EXPECT_EQ(kept->Item(1), u"Nom");
}

TEST_F(KeptLists, AnEntryWithoutAListHasNone) {
  const auto made = std::make_shared<KOBTraductionObj>();
  made->setColTraduction(nullptr);
  EXPECT_EQ(made->ColTraduction(), nullptr);
  EXPECT_EQ(failureOf([&] { made->ChangeTraduction(u"x", 1); }), FailureKind::ObjectNotSet);
}

TEST_F(KeptLists, AnEntryThatNobodySharesLendsItsList) {
  KOBTraductionObj made;
  made.ColTraduction()->Replace(1, u"Nom");
  EXPECT_EQ(made.ColTraduction()->Item(1), u"Nom");
}

TEST_F(KeptLists, TheEntriesOfAFormerKindAreNotEmptiedWhileAHostKeepsThem) {
  const CellRef cell = KOBCellTraduction::createControl();
  const auto kept = cell->ColTraduction();
  kept->Add(entry(u"Caption", {u"Nom"}));
  cell->setTypeFeuille(0);
  EXPECT_EQ(cell->ColTraduction(), nullptr);
  cell->setTypeFeuille(2);
  EXPECT_EQ(kept->Count(), 1);
  EXPECT_NE(cell->ColTraduction(), kept);
  EXPECT_EQ(cell->ColTraduction()->Count(), 0);
}

TEST_F(KeptLists, AListOfEntriesThatAHostKeepsOutlivesTheCellsOtherHolders) {
  CellRef cell = KOBCellTraduction::createControl();
  const auto kept = cell->ColTraduction();
  kept->Add(entry(u"Caption", {u"Nom"}));
  cell = nullptr;
  EXPECT_EQ(kept->Item(1)->nom(), u"Caption");
}

TEST_F(KeptLists, FactorListsHaveTheLanguagesOfTheMomentInWhichTheKindWasAssigned) {
  const CellRef cell = KOBCellTraduction::createControl();
  Global_Util::setNbLangues(9);
  EXPECT_EQ(failureOf([&] { static_cast<void>(cell->leftFactor(7)); }), FailureKind::InvalidIndex);
  EXPECT_EQ(cell->leftFactor(6).value(), 1);
  EXPECT_EQ(factors(*cell->ColLeft()), Factors(6, 1));
  EXPECT_EQ(factors(*cell->ColWidth()), Factors(6, 1));
}

TEST_F(KeptLists, AMessageHasTheLanguagesOfTheMomentInWhichItsCellWasMade) {
  const CellRef cell = KOBCellTraduction::create();
  Global_Util::setNbLangues(9);
  EXPECT_EQ(texts(cell), Texts(6));
}

TEST_F(KeptLists, FactorListsThatWereNeverAskedForAreExtendedByOneMoreThanTheGap) {
  const CellRef cell = KOBCellTraduction::createControl();
  Global_Util::setNbLangues(8);
  cell->UpdateNbLangues();
  cell->UpdateNbLangues();
  EXPECT_EQ(cell->ColWidth()->Count(), 9);
  EXPECT_EQ(cell->ColLeft()->Count(), 9);
  EXPECT_FALSE(cell->ColLeft()->Item(9).isDouble());
}

TEST_F(KeptLists, OneFactorListCanBeTakenAwayFromAControlThatWasNeverAskedForThem) {
  const CellRef cell = KOBCellTraduction::createControl();
  cell->setColLeft(nullptr);
  EXPECT_EQ(cell->ColLeft(), nullptr);
  EXPECT_EQ(failureOf([&] { static_cast<void>(cell->leftFactor(1)); }), FailureKind::ObjectNotSet);
  EXPECT_EQ(cell->widthFactor(6).value(), 1);
  EXPECT_EQ(factors(*cell->ColWidth()), Factors(6, 1));
}

TEST_F(KeptLists, AMessageThatWasTakenAwayIsNotMadeAgain) {
  const CellRef cell = KOBCellTraduction::create();
  cell->setTraduction(nullptr);
  EXPECT_EQ(cell->Traduction(), nullptr);
}

TEST_F(KeptLists, AnAliasThatWasTheNameStaysWhenTheNameChanges) {
  const CellRef cell = named(u"Achats");
  cell->setAlias(u"Achats");
  cell->setnom(u"Ventes");
  EXPECT_EQ(cell->nom(), u"Ventes");
  EXPECT_EQ(cell->Alias(), u"Achats");
}

TEST_F(KeptLists, AnAliasCanBecomeTheNameAndBeClearedAgain) {
  const CellRef cell = named(u"Achats");
  EXPECT_EQ(cell->Alias(), u"");
  cell->setAlias(u"les achats");
  cell->setAlias(u"Achats");
  EXPECT_EQ(cell->Alias(), u"Achats");
  cell->setAlias({});
  EXPECT_EQ(cell->Alias(), u"");
  cell->setAlias(cell->nom());
  cell->setnom(cell->Alias());
  EXPECT_EQ(cell->Alias(), u"Achats");
}

TEST_F(KeptLists, AViewOfACellsOwnNameCanBecomeItsNameOrAlias) {
  const CellRef cell = named(u"a name that is long enough to be stored apart");
  cell->setnom(cell->nom().substr(2, 4));
  cell->setAlias(cell->nom().substr(1));
  cell->setAlias(cell->Alias().substr(1));
  EXPECT_EQ(cell->nom(), u"name");
  EXPECT_EQ(cell->Alias(), u"me");
}

}  // namespace
}  // namespace kob::test
