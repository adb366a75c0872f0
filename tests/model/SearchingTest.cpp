// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

namespace kob::test {
namespace {

class SearchingModels : public ModelTest {
 protected:
  Texts found(TextView text) {
    CellResults results;
    model.SearchString(text, &results);
    return namesOf(results);
  }
  Texts untranslated(std::int32_t langue) {
    CellResults results;
    model.SearchNonTraduit(langue, &results);
    return namesOf(results);
  }
  static Texts namesOf(const CellResults& results) {
    Texts all;
    for (const CellRef& cell : results) {
      all.emplace_back(cell->nom());
    }
    return all;
  }

  KOBModeleTraduction model;
};

TEST_F(SearchingModels, FindsAPieceOfAMessageInAnyLetters) {
  message(model.Racine(), u"m", {u"Fichier"});
  message(model.Racine(), u"n", {u"Edition"});
  EXPECT_EQ(found(u"CHIER"), Texts{u"m"});
}

TEST_F(SearchingModels, FindsAccentedLettersInAnyCase) {
  message(model.Racine(), u"m", {u"déjà vu"});
  EXPECT_EQ(found(u"DÉJÀ"), Texts{u"m"});
  EXPECT_EQ(found(u"DEJA"), Texts{});
}

TEST_F(SearchingModels, FindsATextAtItsVeryEndAndTheWholeOfIt) {
  message(model.Racine(), u"m", {u"Fichier"});
  EXPECT_EQ(found(u"r"), Texts{u"m"});
  EXPECT_EQ(found(u"fichier"), Texts{u"m"});
  EXPECT_EQ(found(u"fichiers"), Texts{});
}

TEST_F(SearchingModels, FindsATextBehindAnUnfinishedBeginningOfIt) {
  message(model.Racine(), u"m", {u"ababac"});
  EXPECT_EQ(found(u"ABAC"), Texts{u"m"});
}

TEST_F(SearchingModels, FindsAControlOnceHoweverManyOfItsEntriesMatch) {
  control(model.Racine(), u"c", {entry(u"Caption", {u"Ouvrir"}), entry(u"ToolTip", {u"Ouvrir un fichier"})});
  EXPECT_EQ(found(u"ouvrir"), Texts{u"c"});
}

TEST_F(SearchingModels, FindsAControlByItsLastEntry) {
  control(model.Racine(), u"c", {entry(u"Caption", {u"x"}), entry(u"ToolTip", {u"Ouvrir"})});
  EXPECT_EQ(found(u"ouvrir"), Texts{u"c"});
}

TEST_F(SearchingModels, OtherLanguagesAreNotSearched) {
  message(model.Racine(), u"m", {u"Fichier", u"File"});
  EXPECT_EQ(found(u"file"), Texts{});
}

TEST_F(SearchingModels, AnEmptyTextIsInEveryReferenceThatIsNotEmpty) {
  message(model.Racine(), u"m", {u"a"});
  message(model.Racine(), u"n", {u""});
  EXPECT_EQ(found(u""), Texts{u"m"});
}

TEST_F(SearchingModels, GoesThroughACellBeforeItsChildrenAndThroughThemInOrder) {
  const CellRef form = message(model.Racine(), u"z", {u"text"});
  message(form, u"y", {u"text"});
  message(form, u"a", {u"text"});
  message(model.Racine(), u"b", {u"text"});
  EXPECT_EQ(found(u"text"), (Texts{u"z", u"y", u"a", u"b"}));
}

TEST_F(SearchingModels, GoesThroughTheRootToo) {
  model.Racine()->setTypeFeuille(1);
  model.Racine()->Traduction()->ChangeTraduction(u"text", 1);
  EXPECT_EQ(found(u"text"), Texts{u"RACINE"});
}

TEST_F(SearchingModels, FromACellGoesThroughWhatIsBelowItOnly) {
  const CellRef form = message(model.Racine(), u"f", {u"text"});
  message(model.Racine(), u"g", {u"text"});
  CellResults results;
  form->SearchString(u"text", results);
  EXPECT_EQ(namesOf(results), Texts{u"f"});
}

TEST_F(SearchingModels, KeepsWhatTheResultsHeld) {
  message(model.Racine(), u"m", {u"text"});
  CellResults results;
  results.Add(model.Racine());
  model.SearchString(u"text", &results);
  EXPECT_EQ(namesOf(results), (Texts{u"RACINE", u"m"}));
}

TEST_F(SearchingModels, IntoNoResultsDoesNothing) {
  message(model.Racine(), u"m", {});
  EXPECT_EQ(failureOf([&] { model.SearchString(u"text", nullptr); }), std::nullopt);
  EXPECT_EQ(failureOf([&] { model.SearchNonTraduit(2, nullptr); }), std::nullopt);
}

TEST_F(SearchingModels, TheResultsKeepTheirCells) {
  message(model.Racine(), u"m", {u"text"});
  CellResults results;
  model.SearchString(u"text", &results);
  model.Racine()->setColCell(nullptr);
  EXPECT_EQ(namesOf(results), Texts{u"m"});
}

TEST_F(SearchingModels, ACellThatTwoParentsHoldIsFoundTwice) {
  const CellRef shared = message(model.Racine()->AddNoeuds(u"f"), u"m", {u"text"});
  model.Racine()->AddNoeuds(u"g")->ColCell()->Add(shared);
  EXPECT_EQ(found(u"text"), (Texts{u"m", u"m"}));
}

TEST_F(SearchingModels, AnEmptyListFailsAndWhatWasFoundBeforeStays) {
  message(model.Racine(), u"m", {u"text"});
  message(model.Racine(), u"n", {});
  CellResults results;
  EXPECT_EQ(failureOf([&] { model.SearchString(u"text", &results); }), FailureKind::InvalidIndex);
  EXPECT_EQ(namesOf(results), Texts{u"m"});
}

TEST_F(SearchingModels, AListThatIsNoneFails) {
  message(model.Racine(), u"m", {})->Traduction()->setColTraduction(nullptr);
  EXPECT_EQ(failureOf([&] { found(u"text"); }), FailureKind::ObjectNotSet);
}

TEST_F(SearchingModels, BehindAMatchTheEntriesOfItsCellAreNotRead) {
  control(model.Racine(), u"c", {entry(u"n", {u"text"}), entry(u"o", {})});
  EXPECT_EQ(found(u"text"), Texts{u"c"});
}

TEST_F(SearchingModels, ForGapsFindsMessagesWithoutATextInTheLanguage) {
  message(model.Racine(), u"m", {u"a", u"b", u"", u"d", u"", u""});
  message(model.Racine(), u"n", {u"a", u"b", u"c", u"", u"", u""});
  EXPECT_EQ(untranslated(4), Texts{u"n"});
  EXPECT_EQ(untranslated(3), Texts{u"m"});
  EXPECT_EQ(untranslated(2), Texts{});
}

TEST_F(SearchingModels, ForGapsFindsAControlOnceWhenAnyEntryHasOne) {
  control(model.Racine(), u"c",
          {entry(u"Caption", {u"a", u"b"}), entry(u"ToolTip", {u"a", u""}), entry(u"x", {u"a", u""})});
  EXPECT_EQ(untranslated(2), Texts{u"c"});
}

TEST_F(SearchingModels, ForGapsFindsEntriesThatHaveNoReferenceText) {
  message(model.Racine(), u"m", {u"", u""});
  EXPECT_EQ(untranslated(2), Texts{u"m"});
}

TEST_F(SearchingModels, ForGapsPassesOverAControlWithoutEntries) {
  control(model.Racine(), u"c", {});
  EXPECT_EQ(untranslated(2), Texts{});
}

TEST_F(SearchingModels, ForGapsInALanguageThatAListLacksFails) {
  message(model.Racine(), u"m", {u"a", u""});
  message(model.Racine(), u"n", {u"a"});
  CellResults results;
  EXPECT_EQ(failureOf([&] { model.SearchNonTraduit(2, &results); }), FailureKind::InvalidIndex);
  EXPECT_EQ(namesOf(results), Texts{u"m"});
  EXPECT_EQ(failureOf([&] { untranslated(0); }), FailureKind::InvalidIndex);
}

}  // namespace
}  // namespace kob::test
