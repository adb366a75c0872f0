// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

#include <unordered_map>
#include <utility>
#include <vector>

namespace kob::test {
namespace {

class CompletingModels : public ModelTest {
 protected:
  CompletingModels() { Global_Util::setNbLangues(3); }

  CellRef add(std::initializer_list<TextView> texts) { return message(model.Racine(), u"m", texts); }
  std::optional<FailureKind> complete() {
    return failureOf([&] { model.CompleteIdentiques(); });
  }

  KOBModeleTraduction model;
};

TEST_F(CompletingModels, EntriesOfOneReferenceShareTheirTexts) {
  const CellRef first = add({u"a", u"2", u""});
  const CellRef second = add({u"a", u"", u"3"});
  complete();
  EXPECT_EQ(texts(first), (Texts{u"a", u"2", u"3"}));
  EXPECT_EQ(texts(second), (Texts{u"a", u"2", u"3"}));
}

TEST_F(CompletingModels, LetterCaseAndAccentedLettersInAnyCaseAreTheSame) {
  const CellRef first = add({u"Fermé", u"", u""});
  add({u"FERMÉ", u"2", u""});
  add({u"Ferme", u"x", u"y"});
  complete();
  EXPECT_EQ(texts(first), (Texts{u"Fermé", u"2", u""}));
}

TEST_F(CompletingModels, NothingIsOverwritten) {
  const CellRef first = add({u"a", u"1", u"1"});
  const CellRef second = add({u"a", u"2", u""});
  complete();
  EXPECT_EQ(texts(first), (Texts{u"a", u"1", u"1"}));
  EXPECT_EQ(texts(second), (Texts{u"a", u"2", u"1"}));
}

TEST_F(CompletingModels, TheFirstTextInTheOrderOfTheWalkIsTaken) {
  const CellRef gap = add({u"a", u"", u""});
  add({u"a", u"first", u""});
  add({u"a", u"second", u"third"});
  complete();
  EXPECT_EQ(texts(gap), (Texts{u"a", u"first", u"third"}));
}

TEST_F(CompletingModels, ACellComesBeforeWhatIsBelowIt) {
  const CellRef node = add({u"a", u"own", u""});
  message(node, u"n", {u"a", u"below", u""});
  const CellRef gap = add({u"a", u"", u""});
  complete();
  EXPECT_EQ(texts(gap)[1], u"own");
}

TEST_F(CompletingModels, EntriesOfControlsAndMessagesCompleteEachOther) {
  const EntryRef caption = entry(u"Caption", {u"a", u"2", u""});
  control(model.Racine(), u"c", {caption, entry(u"ToolTip", {u"A", u"", u"3"})});
  const CellRef gap = add({u"a", u"", u""});
  complete();
  EXPECT_EQ(texts(gap), (Texts{u"a", u"2", u"3"}));
  EXPECT_EQ(texts(*caption->ColTraduction()), (Texts{u"a", u"2", u"3"}));
}

TEST_F(CompletingModels, EmptyReferencesAreTheSameToo) {
  const CellRef gap = add({u"", u"", u""});
  add({u"", u"2", u"3"});
  complete();
  EXPECT_EQ(texts(gap), (Texts{u"", u"2", u"3"}));
}

TEST_F(CompletingModels, TheReferenceTextIsNeverWritten) {
  const CellRef first = add({u"a", u"", u""});
  add({u"A", u"2", u""});
  complete();
  EXPECT_EQ(texts(first)[0], u"a");
}

TEST_F(CompletingModels, ItemsBeyondTheLanguageCountAreLeft) {
  const CellRef gap = add({u"a", u"", u"", u""});
  add({u"a", u"2", u"3", u"4"});
  complete();
  EXPECT_EQ(texts(gap), (Texts{u"a", u"2", u"3", u""}));
}

TEST_F(CompletingModels, WithOneLanguageThereIsNothingToComplete) {
  Global_Util::setNbLangues(1);
  const CellRef gap = add({u"a"});
  add({u"a", u"2"});
  EXPECT_EQ(complete(), std::nullopt);
  EXPECT_EQ(texts(gap), Texts{u"a"});
}

TEST_F(CompletingModels, TheRootsOwnEntriesAreCompleted) {
  model.Racine()->setTypeFeuille(1);
  model.Racine()->Traduction()->setColTraduction(textList({u"a", u"", u""}));
  add({u"a", u"2", u"3"});
  complete();
  EXPECT_EQ(texts(model.Racine()), (Texts{u"a", u"2", u"3"}));
}

TEST_F(CompletingModels, AnEntryThatStandsTwiceIsCompletedOnce) {
  const EntryRef shared = entry(u"n", {u"a", u"", u""});
  control(model.Racine(), u"c", {shared, shared});
  add({u"a", u"2", u"3"});
  complete();
  EXPECT_EQ(texts(*shared->ColTraduction()), (Texts{u"a", u"2", u"3"}));
}

TEST_F(CompletingModels, EntriesThatShareAListAreCompletedTogether) {
  const CellRef first = add({u"a", u"", u""});
  const CellRef second = add({});
  second->Traduction()->setColTraduction(first->Traduction()->ColTraduction());
  add({u"A", u"2", u"3"});
  EXPECT_EQ(complete(), std::nullopt);
  EXPECT_EQ(texts(second), (Texts{u"a", u"2", u"3"}));
}

/// Two texts that the hash does not tell apart.
std::pair<Text, Text> textsOfOneHash() {
  std::unordered_map<std::uint32_t, Text> known;
  for (int i = 0;; ++i) {
    const Text text = decimal(i);
    const auto [place, isNew] = known.emplace(hashUpper(text), text);
    if (!isNew) {
      return {place->second, text};
    }
  }
}

/// A list that is too short fails the operation in the end, and what stands before it is completed in another
/// way.
class CompletingOneHash : public CompletingModels, public ::testing::WithParamInterface<bool> {
 protected:
  void completeAll() {
    if (GetParam()) {
      add({u"b", u""});
    }
    EXPECT_EQ(complete(), GetParam() ? std::optional(FailureKind::InvalidIndex) : std::nullopt);
  }
};

INSTANTIATE_TEST_SUITE_P(Lists, CompletingOneHash, ::testing::Bool(),
                         [](const auto& shape) { return shape.param ? "ShortBehind" : "LongEnough"; });

TEST_P(CompletingOneHash, DifferentTextsAreKeptApart) {
  const auto [first, second] = textsOfOneHash();
  const CellRef firstGap = add({first, u"", u""});
  const CellRef secondGap = add({second, u"", u""});
  add({second, u"second", u""});
  add({first, u"first", u""});
  completeAll();
  EXPECT_EQ(texts(firstGap)[1], u"first");
  EXPECT_EQ(texts(secondGap)[1], u"second");
}

TEST_P(CompletingOneHash, DifferentTextsAreKeptApartWhenTheFirstHasNoGap) {
  const auto [first, second] = textsOfOneHash();
  add({first, u"first", u"x"});
  const CellRef secondGap = add({second, u"", u""});
  add({second, u"second", u""});
  completeAll();
  EXPECT_EQ(texts(secondGap), (Texts{second, u"second", u""}));
}

TEST_F(CompletingModels, AShortListFailsInItsTurnAndKeepsWhatItHasRoomFor) {
  const CellRef full = add({u"a", u"2", u"3"});
  const CellRef gap = add({u"A", u"", u""});
  const CellRef shortOne = add({u"a", u""});
  const CellRef later = add({u"a", u"", u""});
  EXPECT_EQ(complete(), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(gap), (Texts{u"A", u"2", u"3"}));
  EXPECT_EQ(texts(shortOne), (Texts{u"a", u"2"}));
  EXPECT_EQ(texts(later), (Texts{u"a", u"", u""}));
}

TEST_F(CompletingModels, AheadOfAShortListAllIsCompletedAsWithoutOne) {
  const CellRef first = add({u"a", u"", u""});
  add({u"a", u"first", u""});
  add({u"a", u"second", u"third"});
  const CellRef last = add({u"A", u"", u""});
  add({u"b", u""});
  EXPECT_EQ(complete(), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(first), (Texts{u"a", u"first", u"third"}));
  EXPECT_EQ(texts(last), (Texts{u"A", u"first", u"third"}));
}

TEST_F(CompletingModels, AShortListThatNobodySharesATextWithFailsToo) {
  const CellRef before = add({u"a", u"", u""});
  add({u"a", u"2", u""});
  add({u"b", u""});
  const CellRef behind = add({u"c", u"", u""});
  add({u"c", u"2", u""});
  EXPECT_EQ(complete(), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(before)[1], u"2");
  EXPECT_EQ(texts(behind)[1], u"");
}

TEST_F(CompletingModels, AShortListThatIsAskedForAGapFailsTheAskersTurn) {
  const CellRef asker = add({u"a", u"", u""});
  add({u"a", u"2"});
  const CellRef behind = add({u"a", u"", u"3"});
  EXPECT_EQ(complete(), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(asker), (Texts{u"a", u"2", u""}));
  EXPECT_EQ(texts(behind), (Texts{u"a", u"", u"3"}));
}

TEST_F(CompletingModels, AShortListBehindAFullOneIsNotAsked) {
  const CellRef asker = add({u"a", u"", u""});
  add({u"a", u"2", u"3"});
  const CellRef shortOne = add({u"a", u""});
  EXPECT_EQ(complete(), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(asker), (Texts{u"a", u"2", u"3"}));
  EXPECT_EQ(texts(shortOne), (Texts{u"a", u"2"}));
}

TEST_F(CompletingModels, AnEmptyListAnywhereFailsTheVeryFirstTurn) {
  const CellRef first = add({u"a", u"", u""});
  add({u"a", u"2", u""});
  const CellRef other = add({u"b", u"", u""});
  add({u"b", u"2", u""});
  add({});
  add({u"a", u"", u"3"});
  EXPECT_EQ(complete(), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(first), (Texts{u"a", u"2", u""}));
  EXPECT_EQ(texts(other), (Texts{u"b", u"", u""}));
}

TEST_F(CompletingModels, AListThatIsNoneFailsTheVeryFirstTurn) {
  const CellRef first = add({u"a", u"", u""});
  add({u"a", u"2", u""});
  add({})->Traduction()->setColTraduction(nullptr);
  EXPECT_EQ(complete(), FailureKind::ObjectNotSet);
  EXPECT_EQ(texts(first), (Texts{u"a", u"2", u""}));
}

TEST_F(CompletingModels, AShortListAheadOfAnEmptyOneIsTheFailure) {
  add({u"a", u"", u""});
  add({u"a", u"2"});
  add({})->Traduction()->setColTraduction(nullptr);
  EXPECT_EQ(complete(), FailureKind::InvalidIndex);
}

TEST_F(CompletingModels, AnEmptyListAtTheStartFailsWithNothingFilled) {
  add({});
  const CellRef gap = add({u"a", u"", u""});
  add({u"a", u"2", u"3"});
  EXPECT_EQ(complete(), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(gap), (Texts{u"a", u"", u""}));
}

TEST_F(CompletingModels, AnEntryThatIsNothingFailsTheVeryFirstTurn) {
  const CellRef first = add({u"a", u"", u""});
  add({u"a", u"2", u""});
  control(model.Racine(), u"c", {nullptr});
  add({u"a", u"", u"3"});
  EXPECT_EQ(complete(), FailureKind::ObjectNotSet);
  EXPECT_EQ(texts(first), (Texts{u"a", u"2", u""}));
}

TEST_F(CompletingModels, ACellThatIsNothingFailsTheVeryFirstTurn) {
  const CellRef first = add({u"a", u"", u""});
  add({u"a", u"2", u""});
  model.Racine()->ColCell()->Add(nullptr);
  EXPECT_EQ(complete(), FailureKind::ObjectNotSet);
  EXPECT_EQ(texts(first), (Texts{u"a", u"2", u""}));
}

TEST_F(CompletingModels, ANodeWithoutAListFailsBehindItsOwnEntries) {
  const CellRef first = add({u"a", u"", u""});
  const CellRef node = add({u"a", u"2", u""});
  node->setTypeCell(1);
  node->setColCell(nullptr);
  EXPECT_EQ(complete(), FailureKind::ObjectNotSet);
  EXPECT_EQ(texts(first), (Texts{u"a", u"2", u""}));
}

TEST_F(CompletingModels, ADamagedTreeWithoutEntriesFailsToo) {
  model.Racine()->ColCell()->Add(nullptr);
  EXPECT_EQ(complete(), FailureKind::ObjectNotSet);
}

// Entries are read while the walk is some way ahead of them.

TEST_F(CompletingModels, AnEmptyListFarAheadOfADamagedCellIsTheFailure) {
  const CellRef first = add({u"a", u"", u""});
  add({u"a", u"2", u""});
  add({});
  for (int i = 0; i < 100; ++i) {
    add({u"b", u"", u""});
  }
  add({u"a", u"", u"3"});
  model.Racine()->ColCell()->Add(nullptr);
  EXPECT_EQ(complete(), FailureKind::InvalidIndex);
  EXPECT_EQ(texts(first), (Texts{u"a", u"2", u""}));
}

TEST_F(CompletingModels, ADamagedCellAheadOfAnEmptyListIsTheFailure) {
  for (int i = 0; i < 100; ++i) {
    add({u"b", u"", u""});
  }
  model.Racine()->ColCell()->Add(nullptr);
  add({});
  EXPECT_EQ(complete(), FailureKind::ObjectNotSet);
}

TEST_F(CompletingModels, EntriesThatLieFarApartBelowManyNodesCompleteEachOther) {
  constexpr int forms = 40;
  constexpr int controls = 20;
  std::vector<CellRef> cells;
  for (int form = 0; form < forms; ++form) {
    const CellRef node = model.Racine()->AddNoeuds(decimal(form));
    for (int i = 0; i < controls; ++i) {
      // Each control has a text in every form, translated in the third and in the last one.
      const Text translated = form == 2 || form == forms - 1 ? u"in " + decimal(form) : Text();
      cells.push_back(message(node, u"m", {u"text " + decimal(i), translated, u""}));
    }
  }
  complete();
  for (std::size_t i = 0; i + controls < cells.size(); ++i) {
    EXPECT_EQ(texts(cells[i])[1], u"in 2");
  }
  EXPECT_EQ(texts(cells.back())[1], u"in 39");
}

TEST_F(CompletingModels, EntriesBelowNodesOfAnySizeCompleteEachOther) {
  std::vector<CellRef> cells;
  const std::vector<int> sizes{3, 0, 40, 1, 0, 0, 17, 200, 2};
  for (std::size_t node = 0; node < sizes.size(); ++node) {
    const CellRef parent = model.Racine()->AddNoeuds(u"n" + decimal(static_cast<int>(node)));
    for (int i = 0; i < sizes[node]; ++i) {
      cells.push_back(message(parent, u"m", {u"a", u"", u""}));
    }
  }
  cells.push_back(add({u"a", u"2", u"3"}));
  complete();
  for (const CellRef& cell : cells) {
    EXPECT_EQ(texts(cell), (Texts{u"a", u"2", u"3"}));
  }
}

// What comes after a node is fetched while the walk is below it.

TEST_F(CompletingModels, ANodeWithoutAListFailsWhenTheNodesBeforeItAreRead) {
  const CellRef before = model.Racine()->AddNoeuds(u"before");
  const CellRef first = message(before, u"m", {u"a", u"", u""});
  message(before, u"m", {u"a", u"2", u""});
  model.Racine()->AddNoeuds(u"damaged")->setColCell(nullptr);
  EXPECT_EQ(complete(), FailureKind::ObjectNotSet);
  EXPECT_EQ(texts(first), (Texts{u"a", u"2", u""}));
}

TEST_F(CompletingModels, ACellThatIsNothingFailsWhenTheNodesBeforeItAreRead) {
  const CellRef before = model.Racine()->AddNoeuds(u"before");
  const CellRef first = message(before, u"m", {u"a", u"", u""});
  message(before, u"m", {u"a", u"2", u""});
  const CellRef damaged = model.Racine()->AddNoeuds(u"damaged");
  damaged->ColCell()->Add(nullptr);
  model.Racine()->ColCell()->Add(nullptr);
  EXPECT_EQ(complete(), FailureKind::ObjectNotSet);
  EXPECT_EQ(texts(first), (Texts{u"a", u"2", u""}));
}

TEST_F(CompletingModels, ManyEntriesOfOneTextAreCompletedInTime) {
  CellRef last;
  for (int i = 0; i < 100000; ++i) {
    last = add({u"a", u"", u""});
  }
  add({u"a", u"2", u""});
  complete();
  EXPECT_EQ(texts(last), (Texts{u"a", u"2", u""}));
}

class KnownTexts : public CompletingModels {
 protected:
  KnownTexts() { Global_Util::setNbLangues(6); }
};

TEST_F(KnownTexts, OfAnUnknownTextAreTheTextAlone) {
  add({u"a", u"2", u"3", u"4", u"5", u"6"});
  EXPECT_EQ(texts(*model.GetTraductionsConnues(u"b")), (Texts{u"b", u"", u"", u"", u"", u""}));
}

TEST_F(KnownTexts, AreTheFirstOnesFoundInAnyLetters) {
  add({u"a", u"", u"3", u"", u"", u""});
  control(model.Racine(), u"c", {entry(u"n", {u"A", u"2", u"x", u"", u"5", u""})});
  EXPECT_EQ(texts(*model.GetTraductionsConnues(u"a")), (Texts{u"a", u"2", u"3", u"", u"5", u""}));
}

TEST_F(KnownTexts, KeepTheTextAsItWasAskedFor) {
  add({u"a", u"2", u"", u"", u"", u""});
  EXPECT_EQ(texts(*model.GetTraductionsConnues(u"A"))[0], u"A");
}

TEST_F(KnownTexts, AreSixWithFewerLanguagesAndThenTheLastLanguageGoesToTheEnd) {
  Global_Util::setNbLangues(3);
  add({u"a", u"2", u"3", u"4"});
  EXPECT_EQ(texts(*model.GetTraductionsConnues(u"a")), (Texts{u"a", u"2", u"", u"", u"", u"3"}));
}

TEST_F(KnownTexts, WithMoreLanguagesFailBeyondTheSixth) {
  Global_Util::setNbLangues(8);
  add({u"a", u"", u"", u"", u"", u"", u"", u"8"});
  EXPECT_EQ(texts(*model.GetTraductionsConnues(u"b")).size(), 6U);
  EXPECT_EQ(failureOf([&] { model.GetTraductionsConnues(u"a"); }), FailureKind::InvalidIndex);
}

TEST_F(KnownTexts, ChangeNothing) {
  const CellRef gap = add({u"a", u"", u"", u"", u"", u""});
  add({u"a", u"2", u"", u"", u"", u""});
  model.GetTraductionsConnues(u"a");
  EXPECT_EQ(texts(gap)[1], u"");
}

TEST_F(KnownTexts, AnEmptyListFails) {
  add({});
  EXPECT_EQ(failureOf([&] { model.GetTraductionsConnues(u"a"); }), FailureKind::InvalidIndex);
}

TEST_F(KnownTexts, AListThatIsNoneFails) {
  add({})->Traduction()->setColTraduction(nullptr);
  EXPECT_EQ(failureOf([&] { model.GetTraductionsConnues(u"a"); }), FailureKind::ObjectNotSet);
}

TEST_F(KnownTexts, AShortEntryFailsAtAGap) {
  add({u"a", u"2"});
  EXPECT_EQ(failureOf([&] { model.GetTraductionsConnues(u"a"); }), FailureKind::InvalidIndex);
}

}  // namespace
}  // namespace kob::test
