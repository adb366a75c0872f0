// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForm.h"

#include <gtest/gtest.h>
#include <tests/golden/GoldenCase.h>
#include <QApplication>

#include <algorithm>

namespace kob::testing {
namespace {

bool isUpdating = false;

class LiveCaseHost final : public CaseHost {
 public:
  explicit LiveCaseHost(std::string_view formText) : form_(formText) {}

  HostRef form() override { return form_.form(); }
  HostRef control(const std::string& id) override { return form_.control(id); }
  void set(const std::string& id, const std::string& key, const Value& value) override {
    form_.set(id, key, value);
  }
  std::string print() const override { return form_.print(); }

 private:
  LiveForm form_;
};

class LiveGoldenTest : public ::testing::TestWithParam<std::string> {};

TEST_P(LiveGoldenTest, Case) {
  const auto makeHost = [](std::string_view text) { return std::make_unique<LiveCaseHost>(text); };
  const std::string failure = runGoldenCase(GetParam(), makeHost, isUpdating);
  EXPECT_TRUE(failure.empty()) << failure;
}

INSTANTIATE_TEST_SUITE_P(Golden, LiveGoldenTest, ::testing::ValuesIn(goldenCases("live")),
                         [](const auto& param) {
                           std::string name = param.param;
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

}  // namespace
}  // namespace kob::testing

int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  kob::testing::isUpdating = kob::testing::takeUpdateFlag(count, arguments);
  ::testing::InitGoogleTest(&count, arguments);
  const QApplication application(count, arguments);
  return RUN_ALL_TESTS();
}
