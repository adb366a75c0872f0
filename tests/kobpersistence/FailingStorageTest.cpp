// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FailingStorageTest.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace kob::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST_F(FailingStorageTest, WhicheverCallFailsTheOldFileOrTheNewOneIsThere) {
  int calls = 1;
  for (; saveWith(&FailingCalls::failAt, calls, FailingCalls::diskFailed); ++calls) {
    expectNoLitterAfterTheNextSave(calls);
  }
  EXPECT_GT(calls, 15);
}

TEST_F(FailingStorageTest, AtWhicheverCallItDiesTheOldFileOrTheNewOneIsThere) {
  int calls = 1;
  for (; saveWith(&FailingCalls::dieAt, calls, FailingCalls::diskFailed); ++calls) {
    expectNoLitterAfterTheNextSave(calls);
  }
  EXPECT_GT(calls, 15);
}

TEST_F(FailingStorageTest, WhicheverCallFindsTheDiskFullTheOldFileOrTheNewOneIsThere) {
  for (int call = 1; saveWith(&FailingCalls::failAt, call, FailingCalls::diskFull); ++call) {
    expectNoLitterAfterTheNextSave(call);
  }
}

TEST_F(FailingStorageTest, AFailedSaveRemovesItsOwnFile) {
  for (int call = 1; saveWith(&FailingCalls::failAt, call, FailingCalls::diskFull); ++call) {
    if (!boxes.notices.empty()) {
      EXPECT_THAT(files(), ElementsAre("m.trad")) << "call " << call;
    }
  }
}

TEST_F(FailingStorageTest, AFullDiskIsCalledSo) {
  FailingService service;
  ASSERT_TRUE(model.Save(name("m.trad")));
  const auto& made = service.calls.made;
  const auto write = static_cast<int>(std::find(made.begin(), made.end(), "write") - made.begin()) + 1;
  ASSERT_TRUE(saveWith(&FailingCalls::failAt, write, FailingCalls::diskFull));
  EXPECT_EQ(lastNotice(), "Erreur de sauvegarde du modèle\r\nThe file \"" + path("m.trad").string() +
                              "\" cannot be written: the disk is full. Make room and try again.");
}

TEST_F(FailingStorageTest, AnUnknownErrorIsToldByItsNumber) {
  saveWith(&FailingCalls::failAt, 1, FailingCalls::strange);
  EXPECT_THAT(lastNotice(),
              HasSubstr("the system's error is number " + std::to_string(FailingCalls::strange) + "."));
}

TEST_F(FailingStorageTest, WritesThatTakeOnlyAPartAreContinued) {
  FailingService service;
  service.calls.mostAtOnce = 1'000;
  EXPECT_TRUE(model.Save(name("m.trad"))) << lastNotice();
  EXPECT_EQ(bytesOf(path("m.trad")), new_);
}

TEST_F(FailingStorageTest, ReadsThatGiveOnlyAPartAreContinued) {
  ASSERT_TRUE(model.Save(name("m.trad")));
  FailingService service;
  service.calls.mostAtOnce = 1'000;
  KOBModeleTraduction loaded;
  EXPECT_TRUE(loaded.Load(name("m.trad"))) << lastNotice();
  ASSERT_TRUE(loaded.Save(name("m.trad")));
  EXPECT_EQ(bytesOf(path("m.trad")), new_);
}

TEST_F(FailingStorageTest, ALoadThatFailsAtAnyCallLeavesTheModel) {
  const FileBytes before = bytesOf(path("m.trad"));
  int call = 1;
  for (bool isOver = false; !isOver; ++call) {
    FailingService service;
    service.calls.failAt = call;
    service.calls.error = FailingCalls::diskFailed;
    KOBModeleTraduction loaded;
    const CellRef root = loaded.Racine();
    const bool isLoaded = loaded.Load(name("m.trad"));
    isOver = service.calls.count < call;
    EXPECT_EQ(loaded.Racine() == root, !isLoaded);
  }
  EXPECT_GT(call, 3);
  EXPECT_EQ(bytesOf(path("m.trad")), before);
}

TEST_F(FailingStorageTest, AFileThatShrinksWhileItIsReadIsRefused) {
  FailingService service;
  service.calls.mostAtOnce = 0;
  KOBModeleTraduction loaded;
  EXPECT_FALSE(loaded.Load(name("m.trad")));
  EXPECT_THAT(lastNotice(), HasSubstr("The file is empty."));
}

}  // namespace
}  // namespace kob::test
