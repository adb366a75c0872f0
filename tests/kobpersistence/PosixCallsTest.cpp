// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FailingStorageTest.h"

#include <algorithm>
#include <cerrno>
#include <memory>
#include <utility>
#include <vector>

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

/// Notes which parts the system was asked to begin with.
class BegunParts final : public persistence::PosixCalls {
 public:
  void beginSync(int /*file*/, off_t offset, std::size_t size) override { parts.emplace_back(offset, size); }

  std::vector<std::pair<off_t, std::size_t>> parts;
};

class BeginningTest : public ServiceTest {
 protected:
  BegunParts calls;
  std::unique_ptr<persistence::Storage> storage = persistence::makePosixStorage(calls);
  std::vector<persistence::Byte> megabyte = std::vector<persistence::Byte>(1 << 20);
};

TEST_F(BeginningTest, TheDiskBeginsWhileALargeFileIsBeingWritten) {
  const auto file = storage->createBeside(name("large"));
  for (int written = 0; written < 5; ++written) {
    file->write(megabyte.data(), megabyte.size());
  }
  EXPECT_THAT(calls.parts, ElementsAre(std::pair(0, 2U << 20), std::pair(2 << 20, 2U << 20)));
}

TEST_F(BeginningTest, AFileThatStartsOverBeginsAnew) {
  const auto file = storage->createBeside(name("large"));
  for (int written = 0; written < 3; ++written) {
    file->write(megabyte.data(), megabyte.size());
  }
  file->startOver();
  calls.parts.clear();
  file->write(megabyte.data(), megabyte.size());
  EXPECT_THAT(calls.parts, ElementsAre());
  file->write(megabyte.data(), megabyte.size());
  EXPECT_THAT(calls.parts, ElementsAre(std::pair(0, 2U << 20)));
}

}  // namespace
}  // namespace kob::test
