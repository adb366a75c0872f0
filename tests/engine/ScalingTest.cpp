// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EngineTest.h"

namespace kob::testing {
namespace {

class ScalingTest : public EngineTest {
 protected:
  ScalingTest() {
    given(R"(
      form FrmMain
        label Label1 left=1000 width=200
    )");
    givenModel(R"(
      FrmMain node
        Label1 control left=1 width=1
    )");
  }

  /// What `left` becomes when the factor of language 2 is this.
  std::string scaled(const Value& left, double factor) {
    at("Label1").answers(Property::Left, left);
    cell(u"FrmMain\\Label1")->ChangeLeft(factor, 2);
    form().calls().clear();
    applyTo("Label1", 2);
    return form().writes();
  }
  static std::string leftWritten(const std::string& value) {
    return "set Label1.tag = \"\"\nset Label1.left = " + value + "\n";
  }
  static std::string leftAlone() { return "set Label1.tag = \"\"\n"; }
};

TEST_F(ScalingTest, OneAndAHalfTimesAThousandIsFifteenHundred) {
  EXPECT_EQ(scaled(1000, 1.5), leftWritten("1500"));
}

TEST_F(ScalingTest, TheProductIsTruncated) {
  EXPECT_EQ(scaled(1001, 1.5), leftWritten("1501"));
}

TEST_F(ScalingTest, ANegativeProductIsTruncatedTowardZero) {
  EXPECT_EQ(scaled(-1001, 1.5), leftWritten("-1501"));
}

TEST_F(ScalingTest, AFactorOfOneLeavesItAlone) {
  EXPECT_EQ(scaled(1000.75, 1.0), leftAlone());
}

TEST_F(ScalingTest, AFactorOfZeroLeavesItAlone) {
  EXPECT_EQ(scaled(1000, 0), leftAlone());
}

TEST_F(ScalingTest, ANegativeFactorLeavesItAlone) {
  EXPECT_EQ(scaled(1000, -1), leftAlone());
  EXPECT_EQ(scaled(1000, -2.5), leftAlone());
}

TEST_F(ScalingTest, AFactorNearOneIsAFactor) {
  EXPECT_EQ(scaled(10000, 1.0001), leftWritten("10001"));
}

TEST_F(ScalingTest, TheCurrentValueMayBeAFraction) {
  EXPECT_EQ(scaled(2.5, 3), leftWritten("7"));
}

TEST_F(ScalingTest, TheCurrentValueMayBeAText) {
  EXPECT_EQ(scaled(u"100", 1.5), leftWritten("150"));
}

TEST_F(ScalingTest, ACurrentValueThatDoesNotConvertIsLeftAlone) {
  EXPECT_EQ(scaled(u"loin", 1.5), leftAlone());
  EXPECT_EQ(scaled(Value(), 1.5), leftAlone());
}

TEST_F(ScalingTest, AProductBeyond32BitsIsWrittenAsADouble) {
  EXPECT_EQ(scaled(2000000000, 1.5), leftWritten("3000000000"));
  EXPECT_EQ(scaled(-2000000000, 1.5), leftWritten("-3000000000"));
}

TEST_F(ScalingTest, TheLargestProductOf32BitsStaysAnInteger) {
  at("Label1").answers(Property::Left, 2147483647 / 3.0);
  cell(u"FrmMain\\Label1")->ChangeLeft(3, 2);
  applyTo("Label1", 2);
  EXPECT_EQ(at("Label1").held(Property::Left)->asLong(), 2147483647);
}

TEST_F(ScalingTest, AMissingLeftIsSkippedAndTheWidthStillScaled) {
  at("Label1").lacks(Property::Left);
  cell(u"FrmMain\\Label1")->ChangeLeft(2, 2);
  cell(u"FrmMain\\Label1")->ChangeWidth(2, 2);
  apply(2);
  EXPECT_EQ(at("Label1").held(Property::Width)->asLong(), 400);
}

TEST_F(ScalingTest, ApplyingTwiceScalesTwice) {
  cell(u"FrmMain\\Label1")->ChangeWidth(1.5, 2);
  apply(2);
  apply(2);
  EXPECT_EQ(at("Label1").held(Property::Width)->asLong(), 450);
}

TEST_F(ScalingTest, AnotherLanguageScalesWhatTheFirstLeft) {
  cell(u"FrmMain\\Label1")->ChangeWidth(1.5, 2);
  cell(u"FrmMain\\Label1")->ChangeWidth(0.5, 3);
  apply(2);
  apply(3);
  apply(1);
  EXPECT_EQ(at("Label1").held(Property::Width)->asLong(), 150);
}

TEST_F(ScalingTest, TheIndicatorsDoNotSwitchScalingOff) {
  cell(u"FrmMain\\Label1")->setm_width(-1);
  cell(u"FrmMain\\Label1")->ChangeWidth(1.5, 2);
  apply(2);
  EXPECT_EQ(at("Label1").held(Property::Width)->asLong(), 300);
}

}  // namespace
}  // namespace kob::testing
