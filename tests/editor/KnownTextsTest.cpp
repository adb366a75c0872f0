// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EditorTest.h"

#include <kobtraduction/editor/KnownTexts.h>

#include <functional>

namespace kob::testing {

namespace {

/// "Oui" is known from the message "b", until something is changed.
class EditorKnownTexts : public EditorTest {
 protected:
  /// What is known of "Oui" after the change is what the model says; whether that is nothing any more.
  void expectGoneAfter(const std::function<void()>& change) {
    KnownTexts known(model);
    ASSERT_EQ(known.of(u"Oui")->Item(2), u"Yes");
    change();
    EXPECT_EQ(known.of(u"Oui")->Item(2), u"");
    EXPECT_EQ(model.GetTraductionsConnues(u"Oui")->Item(2), u"");
  }

  CellRef form = app->AddNoeuds(u"Form");
  CellRef cell = message(form, u"b", {u"Oui", u"Yes", {}, {}, {}, {}});
};

TEST_F(EditorKnownTexts, GoWithARemovedCell) {
  expectGoneAfter([this] { form->ColCell()->Remove(1); });
}

TEST_F(EditorKnownTexts, GoWithOtherChildren) {
  const auto other = std::make_shared<CellList>();
  expectGoneAfter([&] { form->setColCell(other); });
}

TEST_F(EditorKnownTexts, GoWhenANodeBecomesALeaf) {
  expectGoneAfter([this] { form->setTypeCell(2); });
}

// What replaces something is made before: making it tells of changes of its own.

TEST_F(EditorKnownTexts, GoWithAnotherKind) {
  cell->setTypeFeuille(0);
  const CellRef other = control(form, u"c", {caption(u"Oui", u"Yes")});
  const std::shared_ptr<EntryList> kept = other->ColTraduction();
  expectGoneAfter([&] { other->setTypeFeuille(0); });
}

TEST_F(EditorKnownTexts, GoWithAnotherMessage) {
  const EntryRef other = entry({}, {u"Non", u"No", {}, {}, {}, {}});
  expectGoneAfter([&] { cell->setTraduction(other); });
}

TEST_F(EditorKnownTexts, GoWithOtherTexts) {
  const std::shared_ptr<TextList> other = textList({u"Non", u"No", u"", u"", u"", u""});
  expectGoneAfter([&] { cell->Traduction()->setColTraduction(other); });
}

TEST_F(EditorKnownTexts, GoWithOtherEntries) {
  cell->setTypeFeuille(0);
  const CellRef control = kob::test::control(form, u"c", {caption(u"Oui", u"Yes")});
  const auto other = std::make_shared<EntryList>();
  expectGoneAfter([&] { control->setColTraduction(other); });
}

TEST_F(EditorKnownTexts, GoWithARemovedEntry) {
  cell->setTypeFeuille(0);
  const CellRef control = kob::test::control(form, u"c", {caption(u"Oui", u"Yes")});
  const std::shared_ptr<EntryList> entries = control->ColTraduction();
  const EntryRef kept = entries->Item(1);
  expectGoneAfter([&] { entries->Remove(1); });
}

TEST_F(EditorKnownTexts, GoWithAMovedList) {
  expectGoneAfter([this] {
    TextList moved(std::move(*cell->Traduction()->ColTraduction()));
    *cell->Traduction()->ColTraduction() = TextList(6);
    EXPECT_EQ(moved.Item(1), u"Oui");
  });
}

TEST_F(EditorKnownTexts, ComeWithAnAddedCell) {
  KnownTexts known(model);
  ASSERT_EQ(known.of(u"Non")->Item(2), u"");
  message(form, u"c", {u"Non", u"No", {}, {}, {}, {}});
  EXPECT_EQ(known.of(u"non")->Item(2), u"No");
}

TEST_F(EditorKnownTexts, ComeWithOtherTextsInThePlaceOfAListThatAHostKeeps) {
  const EntryRef entry = form->AddMessage(u"c", u"Un")->Traduction();
  const std::shared_ptr<TextList> kept = entry->ColTraduction();
  const std::shared_ptr<TextList> other = textList({u"Non", u"No", u"", u"", u"", u""});
  KnownTexts known(model);
  ASSERT_EQ(known.of(u"Non")->Item(2), u"");
  entry->setColTraduction(other);
  EXPECT_EQ(known.of(u"Non")->Item(2), u"No");
}

TEST_F(EditorKnownTexts, ComeWithOtherEntriesInThePlaceOfAListThatAHostKeeps) {
  std::int32_t error = 0;
  const CellRef control = form->AddCtrl(u"c", {}, u"Un", 1, 1, error, {}, {});
  const std::shared_ptr<EntryList> kept = control->ColTraduction();
  const auto other = std::make_shared<EntryList>();
  other->Add(caption(u"Non", u"No"));
  KnownTexts known(model);
  ASSERT_EQ(known.of(u"Non")->Item(2), u"");
  control->setColTraduction(other);
  EXPECT_EQ(known.of(u"Non")->Item(2), u"No");
}

TEST_F(EditorKnownTexts, ComeWithTheReferenceTextThatARemovedOneUncovers) {
  const CellRef other = message(form, u"c", {u"Un", u"Deux", u"Trois", {}, {}, {}});
  const std::shared_ptr<TextList> texts = other->Traduction()->ColTraduction();
  // As many as there are languages, also without one.
  texts->Add({});
  KnownTexts known(model);
  ASSERT_EQ(known.of(u"Deux")->Item(2), u"");
  texts->Remove(1);
  EXPECT_EQ(known.of(u"Deux")->Item(2), u"Trois");
}

TEST_F(EditorKnownTexts, StayWhenANameOrATranslationChanges) {
  KnownTexts known(model);
  ASSERT_EQ(known.of(u"Oui")->Item(2), u"Yes");
  cell->setnom(u"renamed");
  cell->Traduction()->ChangeTraduction(u"Aye", 2);
  EXPECT_EQ(known.of(u"Oui")->Item(2), u"Aye");
}

}  // namespace

}  // namespace kob::testing
