// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "GoldenCase.h"

#include <kobtraduction/model/KOBModeleTraduction.h>
#include <tests/doubles/Lines.h>
#include <tests/doubles/RecordedMessages.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace kob::testing {

/// A model and a form, and the operations of a case performed on them one by one.
class CaseRun {
 public:
  CaseRun(CaseHost& host, std::string_view treeText);
  CaseRun(const CaseRun&) = delete;
  CaseRun& operator=(const CaseRun&) = delete;
  ~CaseRun();

  /// Throws std::runtime_error for a line that is no operation.
  void perform(const Line& line);

  std::string tree() const;
  /// What was shown and what operations returned, a line each, up to now.
  std::string messages();

 private:
  class Arguments;

  bool performOnForm(const std::string& operation, const Arguments& arguments);
  bool performOnModel(const std::string& operation, const Arguments& arguments);
  void note(const Line& line, const std::string& result);
  KOBCellTraduction& cell(const Arguments& arguments) const;

  CaseHost& host_;
  std::int32_t languagesBefore_;
  RecordedMessages boxes_;
  std::string notes_;
  KOBModeleTraduction model_;
};

}  // namespace kob::testing
