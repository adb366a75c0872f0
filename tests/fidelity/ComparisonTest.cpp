// SPDX-FileCopyrightText: The KOBTraduction authors
#include "TestFiles.h"

#include <Comparison.h>

#include <gmock/gmock.h>

namespace kob::fidelity {
namespace {

std::vector<FormText> one(const QString& value, TextKind kind = TextKind::Caption, bool isDerived = false) {
  return {{"QLabel:a", "text", kind, value, isDerived, nullptr}};
}

TEST(Comparison, a_text_that_both_translate_alike_is_equal) {
  const Comparison result = compare(one("Name"), one("Nom"), one("Nom"));
  EXPECT_EQ(result.changed, 1);
  EXPECT_TRUE(result.differences.empty());
}

TEST(Comparison, a_text_that_the_component_left_alone_differs) {
  const Comparison result = compare(one("Name"), one("Nom"), one("Name"));
  EXPECT_EQ(result.changed, 1);
  ASSERT_EQ(result.differences.size(), 1U);
  EXPECT_EQ(result.differences[0].expected, "Nom");
  EXPECT_EQ(result.differences[0].actual, "Name");
}

TEST(Comparison, a_text_that_only_the_component_changed_differs) {
  const Comparison result = compare(one("Name"), one("Name"), one("Nom"));
  EXPECT_EQ(result.changed, 0);
  EXPECT_EQ(result.differences.size(), 1U);
}

TEST(Comparison, a_text_that_nobody_changed_does_not_count) {
  const Comparison result = compare(one("Name"), one("Name"), one("Name"));
  EXPECT_EQ(result.changed, 0);
  EXPECT_TRUE(result.differences.empty());
}

TEST(Comparison, kinds_that_are_not_managed_count_in_their_own_column) {
  const Comparison result =
      compare(one("A", TextKind::StatusTips), one("B", TextKind::StatusTips), one("A", TextKind::StatusTips));
  EXPECT_EQ(result.changed, 0);
  EXPECT_EQ(result.changedByKind[static_cast<std::size_t>(TextKind::StatusTips)], 1);
  EXPECT_TRUE(result.differences.empty());
}

TEST(Comparison, a_text_that_is_not_managed_must_be_left_alone) {
  const Comparison result =
      compare(one("A", TextKind::StatusTips), one("A", TextKind::StatusTips), one("B", TextKind::StatusTips));
  EXPECT_EQ(result.differences.size(), 1U);
}

TEST(Comparison, a_derived_tool_tip_counts_and_must_follow_alike) {
  const auto tip = [](const QString& value) { return one(value, TextKind::ToolTip, true); };
  const Comparison alike = compare(tip("Open"), tip("Ouvrir"), tip("Ouvrir"));
  EXPECT_EQ(alike.changed, 1);
  EXPECT_EQ(alike.changedDerived, 1);
  EXPECT_TRUE(alike.differences.empty());
  EXPECT_EQ(compare(tip("Open"), tip("Ouvrir"), tip("Open")).differences.size(), 1U);
}

TEST(Comparison, an_object_that_is_missing_on_one_side_differs) {
  EXPECT_EQ(compare(one("Name"), {}, one("Name")).differences.size(), 1U);
  EXPECT_EQ(compare(one("Name"), one("Nom"), {}).differences.size(), 1U);
  EXPECT_EQ(compare({}, one("Nom"), {}).differences.size(), 1U);
}

}  // namespace
}  // namespace kob::fidelity
