// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <gtest/gtest.h>
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <vector>

/// The words in which the cases of the model are told.
namespace kob::test {

using Texts = std::vector<Text>;
using Factors = std::vector<double>;
using CellRef = std::shared_ptr<KOBCellTraduction>;
using EntryRef = std::shared_ptr<KOBTraductionObj>;

/// Keeps what the component shows; a question is answered No.
class RecordingBoxes final : public MessageBoxes {
 public:
  void notice(TextView text, TextView title, MessageIcon icon) override;
  bool question(TextView text, TextView title, MessageIcon icon) override;

  Texts notices;
  Texts titles;
  int questions = 0;
};

/// Six languages on the thread, and message boxes that are kept; both are put back afterwards.
class ModelTestScope {
 public:
  ModelTestScope();
  ~ModelTestScope();
  ModelTestScope(const ModelTestScope&) = delete;
  ModelTestScope& operator=(const ModelTestScope&) = delete;

  RecordingBoxes boxes;

 private:
  std::int32_t languagesBefore_;
  MessageBoxes* boxesBefore_;
};

class ModelTest : public ::testing::Test, public ModelTestScope {};

/// The kind of failure that leaves an action; empty when it succeeds.
template <class Action>
std::optional<FailureKind> failureOf(Action&& action) {
  try {
    action();
  } catch (const Failure& failure) {
    return failure.kind();
  }
  return std::nullopt;
}

/// A list of these texts, and an entry holding such a list.
std::shared_ptr<TextList> textList(std::initializer_list<TextView> texts);
EntryRef entry(TextView name, std::initializer_list<TextView> texts);

/// A message cell / a control cell with these entries, at the end of the parent's list and named so.
CellRef message(const CellRef& parent, TextView name, std::initializer_list<TextView> texts);
CellRef control(const CellRef& parent, TextView name, std::initializer_list<EntryRef> entries);
/// The cell at the end of the parent's list, which it gets when it has none.
void append(const CellRef& parent, const CellRef& child);
CellRef named(TextView name);

Texts texts(const TextList& list);
Texts texts(const CellRef& messageCell);
Factors factors(const FactorList& list);
/// The children's names; "(nothing)" for an item that is nothing.
Texts names(const CellRef& node);

}  // namespace kob::test
