// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

namespace kob::test {
namespace {

/// Filling by path. Reference texts differ, so that nothing is completed unless a case is about it.
class Filling : public ModelTest {
 protected:
  /// Models raise the count to 6 when they are made.
  Filling() { Global_Util::setNbLangues(4); }

  void fill(std::int32_t langue = -1) { model.UpdateWithTraductionModele(other, langue); }

  KOBModeleTraduction model;
  KOBModeleTraduction other;
};

TEST_F(Filling, FillsTheGapsOfAMessage) {
  const CellRef own = message(model.Racine(), u"m", {u"a", u"", u"x", u""});
  message(other.Racine(), u"m", {u"b", u"2", u"3", u"4"});
  fill();
  EXPECT_EQ(texts(own), (Texts{u"a", u"2", u"x", u"4"}));
}

TEST_F(Filling, FillsTheGapsOfAControl) {
  const EntryRef caption = entry(u"Caption", {u"a", u"", u"x", u""});
  const EntryRef toolTip = entry(u"ToolTip", {u"b", u"", u"", u"y"});
  control(model.Racine(), u"c", {caption, toolTip});
  control(other.Racine(), u"c",
          {entry(u"ToolTip", {u"p", u"5", u"6", u"7"}), entry(u"Caption", {u"q", u"2", u"3", u"4"})});
  fill();
  EXPECT_EQ(texts(*caption->ColTraduction()), (Texts{u"a", u"2", u"x", u"4"}));
  EXPECT_EQ(texts(*toolTip->ColTraduction()), (Texts{u"b", u"5", u"6", u"y"}));
}

TEST_F(Filling, NeverFillsTheReferenceTextByDefault) {
  const CellRef own = message(model.Racine(), u"m", {u"", u"", u"", u""});
  message(other.Racine(), u"m", {u"b", u"2", u"3", u"4"});
  fill();
  EXPECT_EQ(texts(own), (Texts{u"", u"2", u"3", u"4"}));
}

TEST_F(Filling, FillsTheReferenceTextWhenItIsAskedFor) {
  const CellRef own = message(model.Racine(), u"m", {u"", u"", u"", u""});
  message(other.Racine(), u"m", {u"b", u"2", u"3", u"4"});
  fill(1);
  EXPECT_EQ(texts(own), (Texts{u"b", u"", u"", u""}));
}

TEST_F(Filling, AReferenceTextIsNeverOverwritten) {
  const CellRef own = message(model.Racine(), u"m", {u"a", u"", u"", u""});
  message(other.Racine(), u"m", {u"b", u"2", u"3", u"4"});
  fill(1);
  EXPECT_EQ(texts(own), (Texts{u"a", u"", u"", u""}));
}

TEST_F(Filling, OneLanguageAloneIsFilled) {
  const CellRef own = message(model.Racine(), u"m", {u"a", u"", u"", u""});
  message(other.Racine(), u"m", {u"b", u"2", u"3", u"4"});
  fill(3);
  EXPECT_EQ(texts(own), (Texts{u"a", u"", u"3", u""}));
}

TEST_F(Filling, TheOtherModelIsNotChanged) {
  message(model.Racine(), u"m", {u"a", u"2", u"", u""});
  const CellRef source = message(other.Racine(), u"m", {u"b", u"", u"3", u""});
  message(other.Racine(), u"same", {u"B", u"", u"", u"4"});
  fill();
  EXPECT_EQ(texts(source), (Texts{u"b", u"", u"3", u""}));
}

TEST_F(Filling, CellsThatOnlyTheOtherModelHasAreNotAdded) {
  message(model.Racine(), u"m", {u"a", u"", u"", u""});
  message(other.Racine(), u"n", {u"b", u"2", u"3", u"4"});
  fill();
  EXPECT_EQ(names(model.Racine()), Texts{u"m"});
}

TEST_F(Filling, CellsThatTheOtherModelLacksAreSkippedSilently) {
  const CellRef own = message(model.Racine(), u"m", {u"a", u"", u"", u""});
  fill();
  EXPECT_EQ(texts(own), (Texts{u"a", u"", u"", u""}));
  EXPECT_TRUE(boxes.notices.empty());
}

TEST_F(Filling, PathsAreMatchedInAnyLetters) {
  const CellRef own = message(model.Racine()->AddNoeuds(u"Form"), u"Titre", {u"a", u"", u"", u""});
  message(other.Racine()->AddNoeuds(u"FORM"), u"titre", {u"b", u"2", u"", u""});
  fill();
  EXPECT_EQ(texts(own)[1], u"2");
}

TEST_F(Filling, TranslationsOfAControlAreMatchedInExactLettersOnly) {
  const EntryRef own = entry(u"Caption", {u"a", u"", u"", u""});
  control(model.Racine(), u"c", {own});
  control(other.Racine(), u"c", {entry(u"caption", {u"b", u"2", u"3", u"4"})});
  fill();
  EXPECT_EQ(texts(*own->ColTraduction()), (Texts{u"a", u"", u"", u""}));
}

TEST_F(Filling, MessagesWhoseEntriesAreNamedDifferentlyAreLeft) {
  const CellRef own = message(model.Racine(), u"m", {u"a", u"", u"", u""});
  own->Traduction()->setnom(u"x");
  const CellRef source = message(other.Racine(), u"m", {u"b", u"2", u"3", u"4"});
  source->Traduction()->setnom(u"X");
  fill();
  EXPECT_EQ(texts(own), (Texts{u"a", u"", u"", u""}));
}

TEST_F(Filling, LeavesOfDifferentKindsAreLeft) {
  const CellRef own = message(model.Racine(), u"x", {u"a", u"", u"", u""});
  control(other.Racine(), u"x", {entry(u"", {u"b", u"2", u"3", u"4"})});
  const EntryRef caption = entry(u"", {u"c", u"", u"", u""});
  control(model.Racine(), u"y", {caption});
  message(other.Racine(), u"y", {u"d", u"2", u"3", u"4"});
  fill();
  EXPECT_EQ(texts(own), (Texts{u"a", u"", u"", u""}));
  EXPECT_EQ(texts(*caption->ColTraduction()), (Texts{u"c", u"", u"", u""}));
}

TEST_F(Filling, TheFirstEntryOfANameThatHasATextGivesIt) {
  const EntryRef first = entry(u"n", {u"a", u"", u"", u""});
  const EntryRef second = entry(u"n", {u"b", u"x", u"", u""});
  control(model.Racine(), u"c", {first, second});
  control(other.Racine(), u"c", {entry(u"n", {u"c", u"", u"3", u""}), entry(u"n", {u"d", u"2", u"33", u""})});
  fill();
  EXPECT_EQ(texts(*first->ColTraduction()), (Texts{u"a", u"2", u"3", u""}));
  EXPECT_EQ(texts(*second->ColTraduction()), (Texts{u"b", u"x", u"3", u""}));
}

TEST_F(Filling, FactorsAliasesAndTheShapeOfTheTreeStay) {
  const CellRef own = control(model.Racine(), u"c", {entry(u"n", {u"a", u"", u"", u""})});
  own->setAlias(u"own");
  const CellRef source = control(other.Racine(), u"c", {entry(u"n", {u"b", u"2", u"", u""})});
  source->setAlias(u"other");
  source->ChangeLeft(2.5, 2);
  source->ChangeWidth(2.5, 2);
  source->AddNoeuds(u"below");
  fill();
  EXPECT_EQ(own->Alias(), u"own");
  EXPECT_EQ(own->ColLeft()->Item(2).value(), 1.0);
  EXPECT_EQ(own->ColWidth()->Item(2).value(), 1.0);
  EXPECT_EQ(own->TypeCell(), 2);
}

TEST_F(Filling, ANodeWithTranslationsIsFilledAndSoIsWhatIsBelow) {
  const CellRef own = message(model.Racine(), u"m", {u"a", u"", u"", u""});
  const CellRef below = message(own, u"n", {u"b", u"", u"", u""});
  message(message(other.Racine(), u"m", {u"c", u"2", u"", u""}), u"n", {u"d", u"3", u"", u""});
  fill();
  EXPECT_EQ(texts(own)[1], u"2");
  EXPECT_EQ(texts(below)[1], u"3");
}

TEST_F(Filling, AnAncestorNamedAsTheRootIsLeftOutOfThePath) {
  const CellRef own = message(model.Racine()->AddNoeuds(u"RACINE"), u"m", {u"a", u"", u"", u""});
  message(other.Racine(), u"m", {u"b", u"2", u"", u""});
  message(other.Racine()->AddNoeuds(u"RACINE"), u"m", {u"c", u"3", u"", u""});
  fill();
  EXPECT_EQ(texts(own)[1], u"2");
}

TEST_F(Filling, AnAncestorNamedAsTheRootInOtherLettersIsPartOfThePath) {
  const CellRef own = message(model.Racine()->AddNoeuds(u"Racine"), u"m", {u"a", u"", u"", u""});
  message(other.Racine(), u"m", {u"b", u"2", u"", u""});
  message(other.Racine()->AddNoeuds(u"RACINE"), u"m", {u"c", u"3", u"", u""});
  fill();
  EXPECT_EQ(texts(own)[1], u"3");
}

TEST_F(Filling, ALeafNamedAsTheRootIsLookedForByThatName) {
  const CellRef own = message(model.Racine(), u"RACINE", {u"a", u"", u"", u""});
  message(other.Racine(), u"racine", {u"b", u"2", u"", u""});
  fill();
  EXPECT_EQ(texts(own)[1], u"2");
}

TEST_F(Filling, ARootWithTextsIsFilledFromAChildOfItsName) {
  model.Racine()->setTypeFeuille(1);
  message(other.Racine(), u"RACINE", {u"b", u"2", u"", u""});
  fill();
  EXPECT_EQ(texts(model.Racine())[1], u"2");
}

TEST_F(Filling, ANameWithSeparatorsIsSeveralSteps) {
  const CellRef own = message(model.Racine(), u"f\\m", {u"a", u"", u"", u""});
  message(other.Racine()->AddNoeuds(u"f"), u"m", {u"b", u"2", u"", u""});
  fill();
  EXPECT_EQ(texts(own)[1], u"2");
}

TEST_F(Filling, AnEmptyNameIsNoStep) {
  const CellRef own =
      message(message(model.Racine(), u"m", {u"a", u"x", u"", u""}), u"", {u"b", u"", u"", u""});
  message(other.Racine(), u"m", {u"c", u"2", u"", u""});
  fill();
  EXPECT_EQ(texts(own)[1], u"2");
}

TEST_F(Filling, OfDuplicateNamesTheFirstIsTheSourceForAll) {
  const CellRef first = message(model.Racine(), u"m", {u"a", u"", u"", u""});
  const CellRef second = message(model.Racine(), u"M", {u"b", u"", u"", u""});
  message(other.Racine(), u"m", {u"c", u"2", u"", u""});
  message(other.Racine(), u"M", {u"d", u"3", u"", u""});
  fill();
  EXPECT_EQ(texts(first)[1], u"2");
  EXPECT_EQ(texts(second)[1], u"2");
}

TEST_F(Filling, ACellIsLookedForUnderTheParentThatItNames) {
  const CellRef own = message(model.Racine()->AddNoeuds(u"f"), u"m", {u"a", u"", u"", u""});
  own->setparentcell(model.Racine());
  message(other.Racine()->AddNoeuds(u"f"), u"m", {u"b", u"2", u"", u""});
  message(other.Racine(), u"m", {u"c", u"3", u"", u""});
  fill();
  EXPECT_EQ(texts(own)[1], u"3");
}

TEST_F(Filling, CellsThatTheOtherModelHoldsTooAreFoundWhereTheyAre) {
  message(other.Racine(), u"m", {u"b", u"2", u"", u""});
  KOBModeleTraduction third;
  Global_Util::setNbLangues(4);
  third.AddModele(other);
  const CellRef own = message(model.Racine(), u"m", {u"a", u"", u"", u""});
  fill();
  EXPECT_EQ(texts(own)[1], u"2");
}

TEST_F(Filling, ADamagedListOfTheOtherModelIsShownForEachCellThatPassesIt) {
  message(model.Racine(), u"m", {u"a", u"", u"", u""});
  message(model.Racine(), u"n", {u"b", u"", u"", u""});
  other.Racine()->ColCell()->Add(nullptr);
  fill();
  EXPECT_EQ(boxes.notices, (Texts{u"GetCell - KOBCellTraduction", u"GetCell - KOBCellTraduction"}));
}

TEST_F(Filling, FromItselfChangesNothing) {
  const CellRef own = message(model.Racine(), u"m", {u"a", u"", u"x", u""});
  model.UpdateWithTraductionModele(model);
  EXPECT_EQ(texts(own), (Texts{u"a", u"", u"x", u""}));
}

TEST_F(Filling, ALanguageBeyondTheCountFailsAtTheFirstMatch) {
  const CellRef own = message(model.Racine(), u"m", {u"a", u"", u"", u""});
  EXPECT_EQ(failureOf([&] { fill(5); }), std::nullopt);
  message(other.Racine(), u"m", {u"b", u"2", u"3", u"4"});
  EXPECT_EQ(failureOf([&] { fill(5); }), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(own), (Texts{u"a", u"", u"", u""}));
}

TEST_F(Filling, LanguageZeroFailsAtTheFirstMatch) {
  message(model.Racine(), u"m", {u"a", u"", u"", u""});
  message(other.Racine(), u"m", {u"b", u"2", u"3", u"4"});
  EXPECT_EQ(failureOf([&] { fill(0); }), FailureKind::InvalidIndex);
}

TEST_F(Filling, ALanguageBeyondTheCountThatAnExtendedListHasIsNotWritten) {
  const CellRef own = message(model.Racine(), u"m", {u"a", u"", u"", u"", u""});
  message(other.Racine(), u"m", {u"b", u"", u"", u"", u"5"});
  fill(5);
  EXPECT_EQ(texts(own), (Texts{u"a", u"", u"", u"", u""}));
}

TEST_F(Filling, WhatWasFilledBeforeAFailureStays) {
  const CellRef first = message(model.Racine(), u"m", {u"a", u"", u"", u""});
  const CellRef second = message(model.Racine(), u"n", {u"b", u""});
  message(other.Racine(), u"m", {u"c", u"2", u"3", u"4"});
  message(other.Racine(), u"n", {u"d", u"5", u"6", u"7"});
  EXPECT_EQ(failureOf([&] { fill(); }), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(first), (Texts{u"a", u"2", u"3", u"4"}));
  EXPECT_EQ(texts(second), (Texts{u"b", u"5"}));
}

TEST_F(Filling, AfterAFailureNothingIsCompleted) {
  const CellRef first = message(model.Racine(), u"m", {u"a", u"", u"", u""});
  message(model.Racine(), u"same", {u"A", u"2", u"3", u"4"});
  message(model.Racine(), u"n", {u"b"});
  message(other.Racine(), u"n", {u"d", u"5", u"6", u"7"});
  EXPECT_EQ(failureOf([&] { fill(); }), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(first), (Texts{u"a", u"", u"", u""}));
}

TEST_F(Filling, AShortSourceIsReadOnlyWhereThereIsAGap) {
  const CellRef own = message(model.Racine(), u"m", {u"a", u"", u"x", u"y"});
  message(other.Racine(), u"m", {u"b", u"2"});
  EXPECT_EQ(failureOf([&] { fill(); }), std::nullopt);
  EXPECT_EQ(texts(own), (Texts{u"a", u"2", u"x", u"y"}));
}

TEST_F(Filling, ASourceWithoutAListIsNotMissedWhereThereIsNoGap) {
  message(model.Racine(), u"m", {u"a", u"x", u"y", u"z"});
  message(other.Racine(), u"m", {})->Traduction()->setColTraduction(nullptr);
  EXPECT_EQ(failureOf([&] { fill(); }), std::nullopt);
}

TEST_F(Filling, AShortSourceFailsAtAGap) {
  message(model.Racine(), u"m", {u"a", u"", u"x", u""});
  message(other.Racine(), u"m", {u"b", u"2", u"3"});
  EXPECT_EQ(failureOf([&] { fill(); }), FailureKind::InvalidIndex);
}

TEST_F(Filling, MissingTextsAreObjectNotSet) {
  const CellRef own = message(model.Racine(), u"m", {u"a", u"", u"", u""});
  const CellRef source = message(other.Racine(), u"m", {u"b", u"2", u"3", u"4"});
  source->Traduction()->setColTraduction(nullptr);
  EXPECT_EQ(failureOf([&] { fill(); }), FailureKind::ObjectNotSet);
  source->setTraduction(nullptr);
  EXPECT_EQ(failureOf([&] { fill(); }), FailureKind::ObjectNotSet);
}

TEST_F(Filling, AnEntryThatIsNothingIsOnlyMetWhenItIsCompared) {
  const CellRef own = control(model.Racine(), u"c", {});
  const CellRef source = control(other.Racine(), u"c", {nullptr});
  EXPECT_EQ(failureOf([&] { fill(); }), std::nullopt);
  own->ColTraduction()->Add(entry(u"n", {u"a", u"", u"", u""}));
  EXPECT_EQ(failureOf([&] { fill(); }), FailureKind::ObjectNotSet);
}

TEST_F(Filling, TheLanguageCountIsReadAnewEachTime) {
  const CellRef own = message(model.Racine(), u"m", {u"a", u"", u"", u""});
  message(other.Racine(), u"m", {u"b", u"2", u"3", u"4"});
  Global_Util::setNbLangues(2);
  fill();
  EXPECT_EQ(texts(own), (Texts{u"a", u"2", u"", u""}));
}

TEST_F(Filling, ThenIdenticalTextsCompleteEachOther) {
  const CellRef first = message(model.Racine(), u"m", {u"Ouvrir", u"", u"", u""});
  const CellRef second = message(model.Racine(), u"n", {u"OUVRIR", u"", u"x", u""});
  message(other.Racine(), u"m", {u"b", u"Open", u"", u""});
  fill();
  EXPECT_EQ(texts(first), (Texts{u"Ouvrir", u"Open", u"x", u""}));
  EXPECT_EQ(texts(second), (Texts{u"OUVRIR", u"Open", u"x", u""}));
}

TEST_F(Filling, IdenticalTextsCompleteEachOtherInAllLanguagesWhenOneWasAskedFor) {
  const CellRef first = message(model.Racine(), u"m", {u"a", u"", u"", u""});
  message(model.Racine(), u"n", {u"A", u"2", u"3", u"4"});
  fill(2);
  EXPECT_EQ(texts(first), (Texts{u"a", u"2", u"3", u"4"}));
}

TEST_F(Filling, ATextGivenAsReferenceIsCompletedInTheSameCall) {
  const CellRef first = message(model.Racine(), u"m", {u"", u"", u"", u""});
  message(model.Racine(), u"n", {u"b", u"2", u"3", u"4"});
  message(other.Racine(), u"m", {u"B", u"", u"", u""});
  fill(1);
  EXPECT_EQ(texts(first), (Texts{u"B", u"2", u"3", u"4"}));
}

}  // namespace
}  // namespace kob::test
