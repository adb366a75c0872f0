// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LogicTest.h"

#include <SixLanguages.h>
#include <Verb.h>

namespace kob::command {
namespace {

using ::testing::HasSubstr;

class SixLanguagesTest : public LogicTest {};

TEST_F(SixLanguagesTest, fewer_languages_become_six_and_the_person_is_told) {
  const auto cell = model.Racine()->AddNoeuds(u"Message");
  cell->setTypeFeuille(1);
  EXPECT_THAT(makeSixLanguages(model, "app.trad"), HasSubstr("app.trad has fewer languages"));
  EXPECT_EQ(model.NbLangues(), 6);
  EXPECT_EQ(model.GetTraduction(u"Message", 6), u"");
}

TEST_F(SixLanguagesTest, six_stay_six_without_a_word) {
  model.setNbLangues(6);
  EXPECT_EQ(makeSixLanguages(model, "app.trad"), "");
  EXPECT_EQ(model.NbLangues(), 6);
}

TEST_F(SixLanguagesTest, more_than_six_are_refused) {
  model.setNbLangues(7);
  EXPECT_THROW(makeSixLanguages(model, "app.trad"), UsageError);
  EXPECT_EQ(model.NbLangues(), 7);
}

}  // namespace
}  // namespace kob::command
