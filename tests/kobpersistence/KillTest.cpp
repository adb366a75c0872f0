// SPDX-FileCopyrightText: The KOBTraduction authors
// Programs that are killed while they save.
#include "SavedModel.h"

#include <gmock/gmock.h>

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>
#include <thread>

namespace kob::test {
namespace {

using ::testing::ElementsAre;

using KillTest = ServiceTest;

constexpr int kills = 60;

/// A child that saves two models in turn until it is killed.
pid_t startSaving(const Text& file) {
  const pid_t child = fork();
  if (child == 0) {
    KOBModeleTraduction one;
    fill(one, u"un");
    KOBModeleTraduction other;
    fill(other, u"deux");
    for (;;) {
      if (!one.Save(file) || !other.Save(file)) {
        _exit(1);
      }
    }
  }
  return child;
}

TEST_F(KillTest, AfterEveryKillTheFileIsWholeAndTheNextSaveLeavesNoLitter) {
  std::mt19937 random(20'240'611);
  std::uniform_int_distribution<int> delays(20'000, 120'000);
  const Text file = name("m.trad");
  KOBModeleTraduction first;
  fill(first, u"un");
  ASSERT_TRUE(first.Save(file)) << lastNotice();
  int litter = 0;
  for (int i = 0; i < kills; ++i) {
    const pid_t child = startSaving(file);
    ASSERT_GT(child, 0);
    std::this_thread::sleep_for(std::chrono::microseconds(delays(random)));
    ASSERT_EQ(kill(child, SIGKILL), 0);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "kill " << i << ": a save failed by itself";
    litter += files().size() > 1 ? 1 : 0;
    KOBModeleTraduction loaded;
    ASSERT_TRUE(loaded.Load(file)) << "kill " << i << ": " << lastNotice();
    ASSERT_EQ(loaded.Racine()->ColCell()->Count(), messages) << "kill " << i;
    ASSERT_TRUE(loaded.Save(file)) << "kill " << i << ": " << lastNotice();
    ASSERT_THAT(files(), ElementsAre("m.trad")) << "kill " << i;
  }
  // Otherwise no kill came during a save, and nothing was tested.
  EXPECT_GT(litter, kills / 10);
  RecordProperty("killsDuringASave", litter);
}

}  // namespace
}  // namespace kob::test
