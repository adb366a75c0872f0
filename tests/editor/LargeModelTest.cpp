// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EditorTest.h"
#include "tests/model/SmallStack.h"

namespace kob::testing {

namespace {

/// Models of the size and depth that a walk which is not linear, or recurses, does not survive in its time.
using EditorLargeModel = EditorTest;

/// A hundred forms with controls of two translation names each, 100 000 cells in all.
void fill(const CellRef& module) {
  for (int form = 0; form < 100; ++form) {
    const CellRef cell = module->AddNoeuds(u"Form" + decimal(form));
    for (int i = 0; i < 999; ++i) {
      const Text number = decimal(form * 1000 + i);
      control(cell, u"control" + number,
              {caption(u"text " + number), entry(u"ToolTip", {u"tip " + number, {}, {}, {}, {}, {}})});
    }
  }
}

TEST_F(EditorLargeModel, AHundredThousandCellsAreOpenedClickedSearchedAndEdited) {
  fill(app);
  answer(DialogKind::Recherche, [](Person& person) {
    person.type(u"tbSearchString", u"tip 99998");
    person.press(u"bNewSearch");
    person.clickLine(u"List1", 0);
  });
  edit(u"App\\Form50", [](Person& person) {
    EXPECT_EQ(person.tree().count(), 100001);
    EXPECT_EQ(person.selectedTag(), u"App\\Form50");
    for (int i = 0; i < 20; ++i) {
      person.clickTag(u"App\\Form99\\control99" + decimal(100 + i));
      person.type(u"tbTradCtrl", 1, u"x");
    }
    person.chooseMenu(u"m_Search");
    EXPECT_EQ(person.selectedTag(), u"App\\Form99\\control99998");
    person.press(u"bAdd");
  });
}

TEST_F(EditorLargeModel, AControlWithManyNamesIsCompletedInOneWalk) {
  fill(app);
  const CellRef cell = control(app, u"many", {});
  for (int i = 0; i < 2000; ++i) {
    cell->ColTraduction()->Add(caption(u"TEXT " + decimal(i)));
  }
  message(app, u"known", {u"text 1999", u"found", {}, {}, {}, {}});
  edit(u"", [](Person& person) { person.clickTag(u"App\\many"); });
  EXPECT_EQ(textsOfEntry(cell, 2000)[1], u"found");
}

TEST_F(EditorLargeModel, ADeepTreeIsShownWithoutADeepStack) {
  CellRef cell = app;
  for (int i = 0; i < 5000; ++i) {
    cell = cell->AddNoeuds(u"c");
  }
  onSmallStack([this] {
    // Toolkits belong to their threads.
    ScriptedWidgetSet here;
    here.whenShown(DialogKind::Traduction, [](Person& person) { EXPECT_EQ(person.tree().count(), 5001); });
    model.Show(full);
    EXPECT_THAT(here.shown, ElementsAre(DialogKind::Traduction));
  });
}

}  // namespace

}  // namespace kob::testing
