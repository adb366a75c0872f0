// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativeEditorTest.h"

#include <vector>

namespace kob::testing {
namespace {

/// Keys as the window's own message loop meets them.
class NativeKeys : public NativeEditorTest {
 protected:
  NativeKeys() {
    control(app, u"a", {caption(u"Un", u"One"), entry(u"ToolTip", {u"Deux", u"", u"", u"", u"", u""})});
    control(app, u"b", {caption(u"Trois", u"Three")});
  }

  /// A step that presses a key.
  static NativeScript pressing(WPARAM key, std::initializer_list<int> modifiers = {}) {
    return [key, held = std::vector<int>(modifiers)](NativePerson& person) { person.key(key, held); };
  }
};

NativeScript expectingFocus(TextView name, int index = -1) {
  return [name, index](NativePerson& person) { EXPECT_EQ(GetFocus(), person.control(name, index)); };
}

TEST_F(NativeKeys, TheTreeHasTheFocusAtFirst) {
  edit(u"", expectingFocus(u"TV"));
}

TEST_F(NativeKeys, ControlAndANumberGoesToTheTextOfThatLanguage) {
  edit(u"App\\a", NativeSteps{pressing('3', {VK_CONTROL}), expectingFocus(u"tbTradCtrl", 2)});
}

TEST_F(NativeKeys, F6GoesFromTheTreeToTheTextsAndBack) {
  edit(u"App\\a", NativeSteps{pressing(VK_F6), expectingFocus(u"tbTradCtrl", 1), pressing(VK_F6),
                              expectingFocus(u"TV")});
}

TEST_F(NativeKeys, ControlPageDownReachesTheNextCellOutOfAText) {
  edit(u"App\\a",
       NativeSteps{pressing('2', {VK_CONTROL}), pressing(VK_NEXT, {VK_CONTROL}),
                   [](NativePerson& person) {
                     EXPECT_EQ(person.tree().tag(person.selectedNode()), u"App\\b");
                     EXPECT_EQ(person.shownText(u"tbTradCtrl", 1), L"Three");
                   },
                   pressing(VK_PRIOR, {VK_CONTROL}),
                   [](NativePerson& person) { EXPECT_EQ(person.shownText(u"tbTradCtrl", 1), L"One"); }});
}

TEST_F(NativeKeys, TabGoesOnFromATextInReadingOrder) {
  edit(u"App\\a", NativeSteps{pressing('2', {VK_CONTROL}), pressing(VK_TAB), expectingFocus(u"sldLeft", 1),
                              pressing(VK_TAB), expectingFocus(u"bl1", 1), pressing(VK_TAB, {VK_SHIFT}),
                              expectingFocus(u"sldLeft", 1)});
}

TEST_F(NativeKeys, TabGoesOverTheSplitterFromTheTree) {
  edit(u"App\\a", NativeSteps{pressing(VK_TAB), pressing(VK_TAB), expectingFocus(u"bAdd")});
}

TEST_F(NativeKeys, TheArrowsOfTheTreeReachItsCells) {
  edit(u"App\\a", NativeSteps{pressing(VK_DOWN),
                              [](NativePerson& person) { EXPECT_EQ(person.shownText(u"tbNom"), L"b"); }});
}

TEST_F(NativeKeys, NothingIsSelectedByTheFocusAlone) {
  edit(u"", NativeSteps{[](NativePerson& person) { EXPECT_EQ(person.selectedNode(), 0); }, pressing(VK_DOWN),
                        [](NativePerson& person) { EXPECT_EQ(person.selectedNode(), 1); }});
}

TEST_F(NativeKeys, TheArrowsOfTheNamesShowTheirTexts) {
  edit(u"App\\a",
       NativeSteps{[](NativePerson& person) { person.focus(u"LstNomTrad"); }, pressing(VK_DOWN),
                   [](NativePerson& person) { EXPECT_EQ(person.shownText(u"tbTradCtrl", 0), L"Deux"); }});
}

TEST_F(NativeKeys, EscapeNeverClosesTheEditor) {
  edit(u"App\\a", NativeSteps{pressing(VK_ESCAPE), pressing('2', {VK_CONTROL}), pressing(VK_ESCAPE),
                              [](NativePerson& person) { EXPECT_TRUE(person.window.isShown()); }});
}

TEST_F(NativeKeys, ControlWClosesTheEditor) {
  bool isReached = false;
  edit(u"App\\a", NativeSteps{pressing('W', {VK_CONTROL}), [&](NativePerson&) { isReached = true; }});
  EXPECT_FALSE(isReached);
}

TEST_F(NativeKeys, InsertInTheTreeAddsACellAndReturnIsOk) {
  desk.whenShown(DialogKind::AddNoeud, NativeSteps{[](NativePerson& person) {
                                                     EXPECT_EQ(GetFocus(), person.control(u"tbNom"));
                                                     person.typeLetters(u"tbNom", -1, u"neu");
                                                   },
                                                   pressing(VK_RETURN)});
  edit(u"App\\b", NativeSteps{pressing(VK_INSERT), [](NativePerson&) {}});
  EXPECT_NE(model.GetCell(u"App\\b\\neu"), nullptr);
}

TEST_F(NativeKeys, EscapeIsAnnuler) {
  desk.whenShown(DialogKind::AddNoeud,
                 NativeSteps{[](NativePerson& person) { person.type(u"tbNom", u"neu"); }, pressing(VK_ESCAPE),
                             [](NativePerson&) { FAIL(); }});
  edit(u"App\\b", NativeSteps{pressing(VK_INSERT), [](NativePerson&) {}});
  EXPECT_EQ(model.GetCell(u"App\\b\\neu"), nullptr);
}

TEST_F(NativeKeys, DeleteInTheTreeAsks) {
  messages.answer(true);
  edit(u"App\\b", NativeSteps{pressing(VK_DELETE), [](NativePerson&) {}});
  EXPECT_EQ(model.GetCell(u"App\\b"), nullptr);
  EXPECT_EQ(messages.take(), "question \"Voulez Supprimer ce noeuds ainsi que ses fils?\" -> Yes\n");
}

TEST_F(NativeKeys, ControlFSearchesAndReturnShowsAHit) {
  desk.whenShown(
      DialogKind::Recherche,
      NativeSteps{[](NativePerson& person) { person.typeLetters(u"tbSearchString", -1, u"troi"); },
                  pressing(VK_RETURN),
                  [](NativePerson& person) {
                    EXPECT_EQ(person.lines(u"List1"), std::vector<Text>{u"b"});
                    person.focus(u"List1");
                  },
                  pressing(VK_DOWN), [](NativePerson& person) { EXPECT_TRUE(person.window.isShown()); },
                  pressing(VK_RETURN)});
  edit(u"", NativeSteps{pressing('F', {VK_CONTROL}), [](NativePerson& person) {
                          EXPECT_EQ(person.tree().tag(person.selectedNode()), u"App\\b");
                          EXPECT_NE(person.shownText(u"lbStatus"), L"");
                        }});
}

TEST_F(NativeKeys, EscapeClosesTheSearch) {
  desk.whenShown(DialogKind::Recherche, NativeSteps{pressing(VK_ESCAPE)});
  edit(u"", NativeSteps{pressing('F', {VK_CONTROL}),
                        [](NativePerson& person) { EXPECT_TRUE(IsWindowEnabled(person.window.handle())); }});
}

}  // namespace
}  // namespace kob::testing
