// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "NativeDesk.h"
#include "tests/doubles/RecordedMessages.h"
#include "tests/model/ModelVocabulary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

namespace kob::testing {

using namespace kob::test;

/// Six languages, a model with the top-level cell "App", and the editor's native windows.
class NativeEditorTest : public ::testing::Test, public ModelTestScope {
 protected:
  ~NativeEditorTest() override { EXPECT_EQ(messages.take(), "") << "shown, and not expected"; }

  /// Opens the editor, and lets a person act in it, step by step.
  void edit(std::int32_t mode, TextView path, NativeSteps steps) {
    desk.whenShown(DialogKind::Traduction, std::move(steps));
    model.Show(mode, path);
  }
  void edit(TextView path, NativeScript script) { edit(full, path, NativeSteps{std::move(script)}); }
  void edit(TextView path, NativeSteps steps) { edit(full, path, std::move(steps)); }

  static constexpr std::int32_t restricted = 1;
  static constexpr std::int32_t full = 0;

  KOBModeleTraduction model;
  CellRef app = model.Racine()->AddNoeuds(u"App");
  RecordedMessages messages;
  NativeDesk desk;
};

inline EntryRef caption(TextView reference, TextView second = {}) {
  return entry(u"Caption", {reference, second, {}, {}, {}, {}});
}

}  // namespace kob::testing
