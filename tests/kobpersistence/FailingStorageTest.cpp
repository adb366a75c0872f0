// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FailingCalls.h"
#include "ServiceTest.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cerrno>

namespace kob::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// An old file, and a new model that is saved in its place through calls that fail.
class FailingStorageTest : public ServiceTest {
 public:
  FailingStorageTest() {
    KOBModeleTraduction old;
    grow(old, "Ancien message\n  . \"Ancien\"\n");
    EXPECT_TRUE(old.Save(name("m.trad")));
    old_ = bytesOf(path("m.trad"));
    // Some buffers full.
    for (int i = 0; i < 3'000; ++i) {
      message(model.Racine(), u"Message" + decimal(i), {u"Un texte qui remplit le fichier " + decimal(i)});
    }
    EXPECT_TRUE(model.Save(name("new.trad")));
    new_ = bytesOf(path("new.trad"));
    std::filesystem::remove(path("new.trad"));
  }

  /// Saves with the calls failing so; whether the calls were enough in number for that.
  bool saveWith(int FailingCalls::*when, int call, int error) {
    putBytes(path("m.trad"), old_);
    FailingService service;
    service.calls.*when = call;
    service.calls.error = error;
    boxes.notices.clear();
    const bool isSaved = model.Save(name("m.trad"));
    const FileBytes now = bytesOf(path("m.trad"));
    EXPECT_TRUE(now == old_ || now == new_) << "call " << call << ": neither the old file nor the new one";
    EXPECT_EQ(isSaved, boxes.notices.empty());
    if (isSaved) {
      EXPECT_EQ(now, new_) << "call " << call;
    }
    return service.calls.count >= call;
  }

  void expectNoLitterAfterTheNextSave(int call) {
    EXPECT_TRUE(model.Save(name("m.trad"))) << "after call " << call << ": " << lastNotice();
    EXPECT_THAT(files(), ElementsAre("m.trad")) << "after call " << call;
    EXPECT_EQ(bytesOf(path("m.trad")), new_);
  }

  KOBModeleTraduction model;

 protected:
  FileBytes old_;
  FileBytes new_;
};

TEST_F(FailingStorageTest, WhicheverCallFailsTheOldFileOrTheNewOneIsThere) {
  int calls = 1;
  for (; saveWith(&FailingCalls::failAt, calls, EIO); ++calls) {
    expectNoLitterAfterTheNextSave(calls);
  }
  EXPECT_GT(calls, 15);
}

TEST_F(FailingStorageTest, AtWhicheverCallItDiesTheOldFileOrTheNewOneIsThere) {
  int calls = 1;
  for (; saveWith(&FailingCalls::dieAt, calls, EIO); ++calls) {
    expectNoLitterAfterTheNextSave(calls);
  }
  EXPECT_GT(calls, 15);
}

TEST_F(FailingStorageTest, WhicheverCallFindsTheDiskFullTheOldFileOrTheNewOneIsThere) {
  for (int call = 1; saveWith(&FailingCalls::failAt, call, ENOSPC); ++call) {
    expectNoLitterAfterTheNextSave(call);
  }
}

TEST_F(FailingStorageTest, AFailedSaveRemovesItsOwnFile) {
  for (int call = 1; saveWith(&FailingCalls::failAt, call, ENOSPC); ++call) {
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
  ASSERT_TRUE(saveWith(&FailingCalls::failAt, write, ENOSPC));
  EXPECT_EQ(lastNotice(), "Erreur de sauvegarde du modèle\r\nThe file \"" + path("m.trad").string() +
                              "\" cannot be written: the disk is full. Make room and try again.");
}

TEST_F(FailingStorageTest, AnUnknownErrorIsToldByItsNumber) {
  saveWith(&FailingCalls::failAt, 1, EPROTO);
  EXPECT_THAT(lastNotice(), HasSubstr("the system's error is number " + std::to_string(EPROTO) + "."));
}

TEST_F(FailingStorageTest, TheFileIsFlushedBeforeItTakesThePlaceAndTheFolderAfterwards) {
  FailingService service;
  ASSERT_TRUE(model.Save(name("m.trad")));
  std::vector<std::string> end = service.calls.made;
  end.erase(end.begin(), std::find(end.begin(), end.end(), "pwrite"));
  EXPECT_THAT(end, ElementsAre("pwrite", "fsync", "rename", "close", "open", "fsync", "close"));
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

TEST_F(FailingStorageTest, InterruptedCallsAreMadeAgain) {
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

TEST_F(FailingStorageTest, ALoadThatFailsAtAnyCallLeavesTheModel) {
  const FileBytes before = bytesOf(path("m.trad"));
  int call = 1;
  for (bool isOver = false; !isOver; ++call) {
    FailingService service;
    service.calls.failAt = call;
    service.calls.error = EIO;
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
