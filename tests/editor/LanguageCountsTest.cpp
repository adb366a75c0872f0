// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EditorTest.h"

namespace kob::testing {

namespace {

/// Models with fewer, or more, than the six languages that the editor is made for: some of what it does then
/// fails, and Show ends by it.
using EditorLanguages = EditorTest;

TEST_F(EditorLanguages, WithFewerThePositionOfAControlEndsShow) {
  Global_Util::setNbLangues(3);
  control(app, u"c", {entry(u"Caption", {u"Oui", {}, {}})});
  EXPECT_EQ(failureOf([this] { model.Show(full, u"App\\c"); }), FailureKind::InvalidIndex);
}

TEST_F(EditorLanguages, WithFewerAControlThatIsNotPositionedIsShown) {
  Global_Util::setNbLangues(3);
  const CellRef cell = control(app, u"c", {entry(u"Caption", {u"Oui", {}, {}})});
  cell->setm_left(-1);
  cell->setm_width(-1);
  edit(u"App\\c", [](Person& person) { EXPECT_EQ(person.text(u"tbTradCtrl", 0), u"Oui"); });
}

TEST_F(EditorLanguages, WithFewerAControlIsShownInRestrictedMode) {
  Global_Util::setNbLangues(3);
  control(app, u"c", {entry(u"Caption", {u"Oui", {}, {}})});
  edit(restricted, u"App\\c", [](Person& person) { EXPECT_EQ(person.text(u"tbTradCtrl", 0), u"Oui"); });
}

TEST_F(EditorLanguages, WithFewerAClickCompletesWhatThereIs) {
  Global_Util::setNbLangues(3);
  const CellRef clicked = message(app, u"a", {u"Oui", {}, {}});
  message(app, u"b", {u"Oui", u"Yes", {}});
  edit(u"", [](Person& person) { person.clickTag(u"App\\a"); });
  EXPECT_THAT(texts(clicked), ElementsAre(u"Oui", u"Yes", u""));
}

TEST_F(EditorLanguages, WithMoreAClickOnACellEndsShow) {
  model.setNbLangues(7);
  message(app, u"a", {u"Oui", {}, {}, {}, {}, {}, {}});
  EXPECT_EQ(failureOf([this] { edit(u"", [](Person& person) { person.clickTag(u"App\\a"); }); }),
            FailureKind::InvalidIndex);
}

TEST_F(EditorLanguages, WithMoreACellCanBeOpenedOnAndTyped) {
  model.setNbLangues(7);
  const CellRef cell = message(app, u"a", {u"Oui", {}, {}, {}, {}, {}, u"seven"});
  edit(u"App\\a", [](Person& person) { person.type(u"tbTradMessage", 5, u"six"); });
  EXPECT_THAT(texts(cell), ElementsAre(u"Oui", u"", u"", u"", u"", u"six", u"seven"));
}

TEST_F(EditorLanguages, WithMoreAPlainCellCanBeClicked) {
  model.setNbLangues(7);
  app->AddNoeuds(u"Form");
  edit(u"", [](Person& person) {
    person.clickTag(u"App\\Form");
    EXPECT_EQ(person.text(u"tbNom"), u"Form");
  });
}

}  // namespace

}  // namespace kob::testing
