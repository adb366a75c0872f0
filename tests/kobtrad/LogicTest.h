// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <gmock/gmock.h>
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <tests/doubles/TreeText.h>

#include <string_view>

namespace kob::command {

/// A model written down as text, on a thread of three languages.
class LogicTest : public ::testing::Test {
 protected:
  // The count falls only where a file is read; creating the model raised it to six.
  LogicTest() { Global_Util::setNbLangues(3); }
  ~LogicTest() override { Global_Util::setNbLangues(languagesBefore_); }

  void given(std::string_view tree) { kob::testing::growTree(model.Racine(), tree); }
  KOBCellTraduction& cell(TextView path) { return *model.GetCell(path); }

 private:
  std::int32_t languagesBefore_ = Global_Util::NbLangues();

 protected:
  KOBModeleTraduction model;
};

}  // namespace kob::command
