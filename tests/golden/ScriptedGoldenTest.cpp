// SPDX-FileCopyrightText: The KOBTraduction authors
#include "GoldenCase.h"

#include <gtest/gtest.h>
#include <tests/doubles/ScriptedForm.h>
#include <tests/doubles/Utf8.h>

#include <algorithm>
#include <stdexcept>

namespace kob::testing {
namespace {

bool isUpdating = false;

class ScriptedCaseHost final : public CaseHost {
 public:
  explicit ScriptedCaseHost(std::string_view formText) : form_(formText) {}

  HostRef form() override { return form_.form(); }
  HostRef control(const std::string& id) override { return form_.ref(id); }
  void set(const std::string& id, const std::string& key, const Value& value) override {
    const std::optional<Property> property = propertyByName(fromUtf8(key));
    if (!property) {
      throw std::runtime_error("no property: " + key);
    }
    form_[id].answers(*property, value);
  }
  std::string print() const override { return form_.print(); }

 private:
  ScriptedForm form_;
};

class ScriptedGoldenTest : public ::testing::TestWithParam<std::string> {};

TEST_P(ScriptedGoldenTest, Case) {
  const auto makeHost = [](std::string_view text) { return std::make_unique<ScriptedCaseHost>(text); };
  const std::string failure = runGoldenCase(GetParam(), makeHost, isUpdating);
  EXPECT_TRUE(failure.empty()) << failure;
}

INSTANTIATE_TEST_SUITE_P(Golden, ScriptedGoldenTest, ::testing::ValuesIn(goldenCases("scripted")),
                         [](const auto& param) {
                           std::string name = param.param;
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

}  // namespace
}  // namespace kob::testing

int main(int count, char** arguments) {
  kob::testing::isUpdating = kob::testing::takeUpdateFlag(count, arguments);
  ::testing::InitGoogleTest(&count, arguments);
  return RUN_ALL_TESTS();
}
