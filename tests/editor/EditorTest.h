// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "tests/doubles/Person.h"
#include "tests/doubles/RecordedMessages.h"
#include "tests/model/ModelVocabulary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

/// The words in which the cases of the editor are told: a model, and a person who opens the editor on it.
namespace kob::testing {

using namespace kob::test;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

inline constexpr std::int32_t restricted = 1;
inline constexpr std::int32_t full = 0;

/// Six languages, message boxes that are noted, and a model with the top-level cell "App". What the boxes
/// showed is taken by the test.
class EditorTest : public ::testing::Test, public ModelTestScope {
 protected:
  ~EditorTest() override { EXPECT_EQ(messages.take(), "") << "shown, and not expected"; }

  /// Opens the editor, and lets the person act in it.
  void edit(std::int32_t mode, TextView path, Script script) {
    widgets.whenShown(DialogKind::Traduction, std::move(script));
    model.Show(mode, path);
  }
  void edit(TextView path, Script script) { edit(full, path, std::move(script)); }
  /// The same for what a person does in the next window of another kind.
  void answer(DialogKind kind, Script script) { widgets.whenShown(kind, std::move(script)); }

  KOBModeleTraduction model;
  CellRef app = model.Racine()->AddNoeuds(u"App");
  RecordedMessages messages;
  ScriptedWidgetSet widgets;
};

/// An entry's texts, and those of a control's entry by number from 1.
inline Texts textsOfEntry(const CellRef& control, std::int32_t number) {
  return texts(*control->ColTraduction()->Item(number)->ColTraduction());
}
/// The names of a control's entries.
inline Texts entryNames(const CellRef& control) {
  Texts all;
  for (const EntryRef& one : *control->ColTraduction()) {
    all.emplace_back(one->nom());
  }
  return all;
}
/// "Caption" with six texts.
inline EntryRef caption(TextView reference, TextView second = {}) {
  return entry(u"Caption", {reference, second, {}, {}, {}, {}});
}

}  // namespace kob::testing
