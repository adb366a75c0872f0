// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

#include <tests/doubles/Lines.h>

namespace kob::testing {
namespace {

/// What a form costs, counted in calls of the host: that number does not depend on the machine.
class LinearityTest : public EngineTest {
 protected:
  void givenForm(int controls, int depth) {
    std::string text = "form FrmMain\n";
    std::string indent = "  ";
    for (int level = 0; level < depth; ++level) {
      text.append(indent).append("frame Level").append(std::to_string(level)).append("\n");
      indent += "  ";
    }
    for (int i = 0; i < controls; ++i) {
      const std::string number = std::to_string(i);
      text.append(indent).append("label L").append(number).append(" Caption=\"").append(number);
      text.append("\" ToolTipText=\"t\" tag=\"[C]\"\n");
    }
    given(text);
  }
  std::size_t callsOfHarvest() {
    form().calls().clear();
    harvest();
    return form().calls().size();
  }
  std::size_t callsOfApply() {
    form().calls().clear();
    apply(1);
    return form().calls().size();
  }
};

TEST_F(LinearityTest, ApplyingCostsTheSameCallsForEveryControl) {
  givenForm(100, 1);
  harvest();
  const std::size_t hundred = callsOfApply();
  givenForm(1100, 1);
  harvest();
  EXPECT_EQ((callsOfApply() - hundred) % 1000, 0U);
  EXPECT_LE((callsOfApply() - hundred) / 1000, 14U);
}

TEST_F(LinearityTest, HarvestingCostsTheSameCallsForEveryControl) {
  givenForm(100, 1);
  const std::size_t hundred = callsOfHarvest();
  givenForm(1100, 1);
  const std::size_t more = callsOfHarvest() - hundred;
  EXPECT_EQ(more % 1000, 0U);
  EXPECT_LE(more / 1000, 16U);
}

TEST_F(LinearityTest, TheContainersOfAControlAreReadOncePerCallWhenApplying) {
  givenForm(500, 10);
  apply(1);
  EXPECT_LE(form().callsOn("Level0").size(), 40U * 30U) << form().callsOn("Level0");
}

TEST_F(LinearityTest, DepthDoesNotMultiplyTheCostOfApplying) {
  givenForm(500, 1);
  const std::size_t flat = callsOfApply();
  givenForm(500, 40);
  EXPECT_LE(callsOfApply(), flat + 40 * 80);
}

}  // namespace
}  // namespace kob::testing
