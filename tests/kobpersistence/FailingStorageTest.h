// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "FailingCalls.h"
#include "ServiceTest.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace kob::test {

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
    EXPECT_THAT(files(), ::testing::ElementsAre("m.trad")) << "after call " << call;
    EXPECT_EQ(bytesOf(path("m.trad")), new_);
  }

  KOBModeleTraduction model;

 protected:
  FileBytes old_;
  FileBytes new_;
};

}  // namespace kob::test
