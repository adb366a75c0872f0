// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelVocabulary.h"

namespace kob::test {
namespace {

class ReadingATranslation : public ModelTest {
 protected:
  KOBModeleTraduction model;
};

TEST_F(ReadingATranslation, AnswersTheTextOfAMessageInTheLanguage) {
  message(model.Racine(), u"m", {u"Bonjour", u"Hello", u"", u"Hallo", u"", u""});
  EXPECT_EQ(model.GetTraduction(u"m", 1), u"Bonjour");
  EXPECT_EQ(model.GetTraduction(u"m", 2), u"Hello");
  EXPECT_EQ(model.GetTraduction(u"\\M", 4), u"Hallo");
}

TEST_F(ReadingATranslation, FallsBackToTheReferenceTextWhenTheLanguageHasNone) {
  message(model.Racine(), u"m", {u"Bonjour", u"Hello", u"", u"Hallo", u"", u""});
  EXPECT_EQ(model.GetTraduction(u"m", 3), u"Bonjour");
}

TEST_F(ReadingATranslation, IsEmptyWhenTheReferenceTextIsEmptyToo) {
  message(model.Racine(), u"m", {u"", u"", u""});
  EXPECT_EQ(model.GetTraduction(u"m", 2), u"");
}

TEST_F(ReadingATranslation, IsEmptyForAControlCellWhateverNameIsGiven) {
  control(model.Racine(), u"ctl", {entry(u"Caption", {u"Texte", u"Text"})});
  EXPECT_EQ(model.GetTraduction(u"ctl", 1), u"");
  EXPECT_EQ(model.GetTraduction(u"ctl", 1, u"Caption"), u"");
  EXPECT_EQ(model.GetTraduction(u"ctl", 2, u"CAPTION"), u"");
}

TEST_F(ReadingATranslation, IsEmptyForACellWithoutTranslations) {
  model.Racine()->AddNoeuds(u"n");
  EXPECT_EQ(model.GetTraduction(u"n", 1), u"");
  EXPECT_EQ(model.GetTraduction(u"", 1), u"");
}

TEST_F(ReadingATranslation, IsEmptyForAnUnknownPath) {
  EXPECT_EQ(model.GetTraduction(u"nowhere", 1), u"");
  EXPECT_EQ(model.GetTraduction(u"nowhere\\else", 99), u"");
}

TEST_F(ReadingATranslation, IgnoresTheNameForAMessage) {
  message(model.Racine(), u"m", {u"Bonjour", u"Hello"});
  EXPECT_EQ(model.GetTraduction(u"m", 2, u"Caption"), u"Hello");
}

TEST_F(ReadingATranslation, ALanguageOutsideTheListIsAnInvalidIndexAndChangesNothing) {
  const CellRef cell = model.Racine()->AddMessage(u"m", u"Bonjour");
  for (const std::int32_t langue : {0, 7, -1}) {
    EXPECT_EQ(failureOf([&] { static_cast<void>(model.GetTraduction(u"m", langue)); }),
              FailureKind::InvalidIndex);
  }
  EXPECT_EQ(texts(cell), (Texts{u"Bonjour", u"", u"", u"", u"", u""}));
}

TEST_F(ReadingATranslation, ALanguageOutsideTheListDoesNotMatterWhereNoTextIsRead) {
  control(model.Racine(), u"ctl", {});
  EXPECT_EQ(model.GetTraduction(u"ctl", 99), u"");
}

TEST_F(ReadingATranslation, TheListDecidesWhichLanguagesThereAreAndNotTheCount) {
  model.Racine()->AddMessage(u"m", u"Bonjour");
  model.setNbLangues(8);
  EXPECT_EQ(model.GetTraduction(u"m", 9), u"Bonjour");
  message(model.Racine(), u"short", {u"Un", u"One"});
  EXPECT_EQ(failureOf([&] { static_cast<void>(model.GetTraduction(u"short", 3)); }),
            FailureKind::InvalidIndex);
}

TEST_F(ReadingATranslation, AMessageThatLostItsEntryFails) {
  model.Racine()->AddMessage(u"m", u"Bonjour")->setTraduction(nullptr);
  EXPECT_EQ(failureOf([&] { static_cast<void>(model.GetTraduction(u"m", 1)); }), FailureKind::ObjectNotSet);
}

TEST_F(ReadingATranslation, AnEntryThatLostItsTextsFails) {
  model.Racine()->AddMessage(u"m", u"Bonjour")->Traduction()->setColTraduction(nullptr);
  EXPECT_EQ(failureOf([&] { static_cast<void>(model.GetTraduction(u"m", 1)); }), FailureKind::ObjectNotSet);
}

TEST_F(ReadingATranslation, ANodeCanHoldAMessageToo) {
  const CellRef cell = model.Racine()->AddMessage(u"m", u"Bonjour");
  cell->AddNoeuds(u"below");
  EXPECT_EQ(model.GetTraduction(u"m", 1), u"Bonjour");
}

}  // namespace
}  // namespace kob::test
