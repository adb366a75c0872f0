// SPDX-FileCopyrightText: The KOBTraduction authors
#include <gtest/gtest.h>
#include <kobtraduction/base/Failure.h>

#include <exception>
#include <set>
#include <string>

namespace kob {
namespace {

constexpr FailureKind everyKind[] = {FailureKind::InvalidCall, FailureKind::InvalidIndex,
                                     FailureKind::TypeMismatch, FailureKind::ObjectNotSet,
                                     FailureKind::PropertyMissing};

TEST(Failure, KindsCarryThePublishedRunTimeErrorNumbers) {
  EXPECT_EQ(static_cast<int>(FailureKind::InvalidCall), 5);
  EXPECT_EQ(static_cast<int>(FailureKind::InvalidIndex), 9);
  EXPECT_EQ(static_cast<int>(FailureKind::TypeMismatch), 13);
  EXPECT_EQ(static_cast<int>(FailureKind::ObjectNotSet), 91);
  EXPECT_EQ(static_cast<int>(FailureKind::PropertyMissing), 438);
}

TEST(Failure, RemembersItsKind) {
  for (const FailureKind kind : everyKind) {
    EXPECT_EQ(Failure(kind).kind(), kind);
  }
}

TEST(Failure, DescribesEachKindInItsOwnWords) {
  std::set<std::string> descriptions;
  for (const FailureKind kind : everyKind) {
    descriptions.insert(Failure(kind).what());
  }
  EXPECT_EQ(descriptions.size(), 5U);
  EXPECT_EQ(descriptions.count(""), 0U);
}

TEST(Failure, IsCaughtAsAStandardExceptionAcrossTheLibrarysBorder) {
  EXPECT_THROW(throw Failure(FailureKind::TypeMismatch), std::exception);
}

TEST(Failure, ACopyTellsTheSame) {
  const Failure original(FailureKind::ObjectNotSet);
  // The copy is the subject. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
  const Failure copy(original);
  EXPECT_EQ(copy.kind(), original.kind());
  EXPECT_STREQ(copy.what(), original.what());
}

}  // namespace
}  // namespace kob
