// SPDX-FileCopyrightText: The KOBTraduction authors
#include <gtest/gtest.h>
#include <kobtraduction/component/Global_Util.h>

#include <string>
#include <thread>

namespace kob {
namespace {

class CountingBoxes final : public MessageBoxes {
 public:
  void notice(TextView, TextView, MessageIcon) override { ++notices; }
  bool question(TextView, TextView, MessageIcon) override {
    ++questions;
    return true;
  }

  int notices = 0;
  int questions = 0;
};

/// Puts the thread back to the default boxes, whatever a case did.
class MessageBoxesTest : public ::testing::Test {
 protected:
  ~MessageBoxesTest() override { Global_Util::setMessageBoxes(nullptr); }
};

TEST_F(MessageBoxesTest, WithoutABindingANoticeGoesToStandardError) {
  ::testing::internal::CaptureStderr();
  Global_Util::messageBoxes().notice(u"ERREUR 451");
  const std::string shown = ::testing::internal::GetCapturedStderr();
  EXPECT_NE(shown.find("ERREUR 451"), std::string::npos) << shown;
}

TEST_F(MessageBoxesTest, TheDefaultNoticeWritesAccentsAsUtf8) {
  ::testing::internal::CaptureStderr();
  Global_Util::messageBoxes().notice(u"Ce noeud existe déja");
  const std::string shown = ::testing::internal::GetCapturedStderr();
  EXPECT_NE(shown.find("existe d\xC3\xA9ja"), std::string::npos) << shown;
}

TEST_F(MessageBoxesTest, TheDefaultNoticeSurvivesTextsThatAreNoValidUtf16) {
  ::testing::internal::CaptureStderr();
  Global_Util::messageBoxes().notice(Text{u'a', char16_t{0xD800}, u'b', char16_t{0xDC00}});
  Global_Util::messageBoxes().notice(Text{char16_t{0xD83D}, char16_t{0xDE00}, u'|', char16_t{0xD83D}});
  const std::string shown = ::testing::internal::GetCapturedStderr();
  EXPECT_NE(shown.find("\xF0\x9F\x98\x80|"), std::string::npos) << shown;
}

TEST_F(MessageBoxesTest, WithoutABindingAQuestionIsAnsweredNo) {
  ::testing::internal::CaptureStderr();
  EXPECT_FALSE(Global_Util::messageBoxes().question(u"Voulez vous le modifier?"));
  ::testing::internal::GetCapturedStderr();
}

TEST_F(MessageBoxesTest, BoxesThatAreSetAreAsked) {
  CountingBoxes boxes;
  Global_Util::setMessageBoxes(&boxes);
  EXPECT_EQ(&Global_Util::messageBoxes(), &boxes);
  Global_Util::messageBoxes().notice(u"a");
  EXPECT_TRUE(Global_Util::messageBoxes().question(u"b"));
  EXPECT_EQ(boxes.notices, 1);
  EXPECT_EQ(boxes.questions, 1);
  Global_Util::setMessageBoxes(nullptr);
}

TEST_F(MessageBoxesTest, SettingReturnsThePreviousBoxesAndNullForTheDefault) {
  CountingBoxes first;
  CountingBoxes second;
  EXPECT_EQ(Global_Util::setMessageBoxes(&first), nullptr);
  EXPECT_EQ(Global_Util::setMessageBoxes(&second), &first);
  EXPECT_EQ(Global_Util::setMessageBoxes(nullptr), &second);
  EXPECT_EQ(Global_Util::setMessageBoxes(nullptr), nullptr);
}

TEST_F(MessageBoxesTest, NullBringsTheDefaultBack) {
  CountingBoxes boxes;
  MessageBoxes* const standard = &Global_Util::messageBoxes();
  Global_Util::setMessageBoxes(&boxes);
  Global_Util::setMessageBoxes(nullptr);
  EXPECT_EQ(&Global_Util::messageBoxes(), standard);
  ::testing::internal::CaptureStderr();
  EXPECT_FALSE(Global_Util::messageBoxes().question(u"?"));
  ::testing::internal::GetCapturedStderr();
  EXPECT_EQ(boxes.questions, 0);
}

TEST_F(MessageBoxesTest, BelongToOneThread) {
  CountingBoxes boxes;
  Global_Util::setMessageBoxes(&boxes);
  std::thread thread([&] {
    EXPECT_NE(&Global_Util::messageBoxes(), &boxes);
    EXPECT_EQ(Global_Util::setMessageBoxes(nullptr), nullptr);
  });
  thread.join();
  EXPECT_EQ(&Global_Util::messageBoxes(), &boxes);
  Global_Util::setMessageBoxes(nullptr);
}

}  // namespace
}  // namespace kob
