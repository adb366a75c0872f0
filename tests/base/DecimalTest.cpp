// SPDX-FileCopyrightText: The KOBTraduction authors
#include <gtest/gtest.h>
#include <kobtraduction/base/Text.h>

#include <cstdint>
#include <limits>

namespace kob {
namespace {

TEST(Decimal, ZeroIsOneDigit) {
  EXPECT_EQ(decimal(0), u"0");
}

TEST(Decimal, HasNoLeadingZerosAndNoBlanks) {
  EXPECT_EQ(decimal(7), u"7");
  EXPECT_EQ(decimal(10), u"10");
  EXPECT_EQ(decimal(4512212), u"4512212");
}

TEST(Decimal, NegativeNumbersCarryAMinus) {
  EXPECT_EQ(decimal(-1), u"-1");
  EXPECT_EQ(decimal(-100), u"-100");
}

TEST(Decimal, ReachesBothEndsOfTheRange) {
  EXPECT_EQ(decimal(std::numeric_limits<std::int32_t>::min()), u"-2147483648");
  EXPECT_EQ(decimal(std::numeric_limits<std::int64_t>::max()), u"9223372036854775807");
  EXPECT_EQ(decimal(std::numeric_limits<std::int64_t>::min()), u"-9223372036854775808");
}

}  // namespace
}  // namespace kob
