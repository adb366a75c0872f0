// SPDX-FileCopyrightText: The KOBTraduction authors
#include <gtest/gtest.h>
#include <kobtraduction/component/Global_Util.h>

#include <limits>
#include <thread>

namespace kob {
namespace {

template <class Action>
void onAFreshThread(Action action) {
  std::thread thread(action);
  thread.join();
}

TEST(LanguageCount, IsZeroOnAThreadWhereNothingHasSetIt) {
  onAFreshThread([] { EXPECT_EQ(Global_Util::NbLangues(), 0); });
}

TEST(LanguageCount, ReadsAsItWasSet) {
  onAFreshThread([] {
    Global_Util::setNbLangues(6);
    EXPECT_EQ(Global_Util::NbLangues(), 6);
    Global_Util::setNbLangues(2);
    EXPECT_EQ(Global_Util::NbLangues(), 2);
    Global_Util::setNbLangues(std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(Global_Util::NbLangues(), std::numeric_limits<std::int32_t>::min());
  });
}

TEST(LanguageCount, BelongsToOneThread) {
  onAFreshThread([] {
    Global_Util::setNbLangues(9);
    onAFreshThread([] {
      EXPECT_EQ(Global_Util::NbLangues(), 0);
      Global_Util::setNbLangues(3);
    });
    EXPECT_EQ(Global_Util::NbLangues(), 9);
  });
}

}  // namespace
}  // namespace kob
