// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <gtest/gtest.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <tests/doubles/RecordedMessages.h>
#include <tests/doubles/ScriptedForm.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace kob::testing {

/// The words in which the cases of the engine are told: given a form and a model as texts, harvest or apply,
/// and compare the whole tree, form and list of messages. Messages that a case does not expect fail it.
class EngineTest : public ::testing::Test {
 protected:
  EngineTest();
  ~EngineTest() override;
  void TearDown() override;

  /// The form, and cells of the model (added below the root), as texts.
  void given(std::string_view formText);
  void givenModel(std::string_view treeText);

  ScriptedForm& form() { return *form_; }
  ScriptedObject& at(std::string_view id) { return form()[id]; }
  HostRef ref(std::string_view id) { return form().ref(id); }
  /// The record that a gathered button or entry of these properties would be.
  static HostRef record(TextView name, const HostRef& container);
  std::shared_ptr<KOBCellTraduction> cell(TextView path) const { return model.GetCell(path); }

  void harvest() { model.UpdateWithForm(form().form()); }
  void harvestVisible() { model.UpdateWithForm(form().form(), u"", true); }
  void harvestIn(std::string_view container) {
    model.UpdateWithForm(form().form(), u"", false, ref(container));
  }
  void harvestControl(std::string_view id, TextView module = {}) { model.UpdateWithCtrl(ref(id), module); }
  void apply(std::int32_t langue) { model.TraduitDialog(form().form(), langue); }
  void applyVisible(std::int32_t langue) { model.TraduitDialog(form().form(), langue, u"", true); }
  void applyIn(std::string_view container, std::int32_t langue) {
    model.TraduitDialog(form().form(), langue, u"", false, ref(container));
  }
  void applyTo(std::string_view id, std::int32_t langue, TextView module = {}) {
    model.TraduitControle(ref(id), langue, module);
  }
  /// The path of an object, in UTF-8.
  std::string pathOf(std::string_view id, TextView module = {});

  std::string printed() const;

  /// Whether the whole tree, the whole form, the messages since the last look, are these.
  ::testing::AssertionResult treeIs(std::string_view expected) const;
  ::testing::AssertionResult formIs(std::string_view expected) const;
  ::testing::AssertionResult messagesAre(std::string_view expected);
  ::testing::AssertionResult writesAre(std::string_view expected);

  RecordedMessages messages;

 private:
  std::int32_t languagesBefore_;
  std::unique_ptr<ScriptedForm> form_;

 protected:
  KOBModeleTraduction model;
};

}  // namespace kob::testing
