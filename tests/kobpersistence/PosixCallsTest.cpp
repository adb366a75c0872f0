// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FailingStorageTest.h"

#include <algorithm>
#include <cerrno>

namespace kob::test {
namespace {

using ::testing::ElementsAre;

using PosixCallsTest = FailingStorageTest;

TEST_F(PosixCallsTest, TheFileIsFlushedBeforeItTakesThePlaceAndTheFolderAfterwards) {
  FailingService service;
  ASSERT_TRUE(model.Save(name("m.trad")));
  std::vector<std::string> end = service.calls.made;
  end.erase(end.begin(), std::find(end.begin(), end.end(), "pwrite"));
  EXPECT_THAT(end, ElementsAre("pwrite", "fsync", "rename", "close", "open", "fsync", "close"));
}

TEST_F(PosixCallsTest, InterruptedCallsAreMadeAgain) {
  FailingService service;
  ASSERT_TRUE(model.Save(name("m.trad")));
  const std::vector<std::string> made = service.calls.made;
  for (std::size_t i = 0; i < made.size(); ++i) {
    if (made[i] == "open" || made[i] == "write" || made[i] == "pwrite" || made[i] == "fsync" ||
        made[i] == "flock") {
      saveWith(&FailingCalls::failAt, static_cast<int>(i) + 1, EINTR);
      EXPECT_EQ(lastNotice(), "") << made[i];
    }
  }
}

}  // namespace
}  // namespace kob::test
