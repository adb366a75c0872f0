// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "ServiceTest.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace kob::test {

/// A model and the files of a real folder, with all that can stand in its way.
class FilesTest : public ServiceTest {
 public:
  FilesTest() {
    grow(model, "Nouveau message\n  . \"Nouveau\"\n");
    EXPECT_TRUE(model.Save(name("new")));
    new_ = bytesOf(path("new"));
    std::filesystem::remove(path("new"));
  }

  /// Saving must be refused with this in the box, and the folder stays as it is.
  void expectRefused(std::string_view file, std::string_view what) {
    const auto before = files();
    EXPECT_FALSE(model.Save(name(file)));
    EXPECT_THAT(lastNotice(), ::testing::HasSubstr(std::string(what)));
    EXPECT_EQ(files(), before);
  }

  KOBModeleTraduction model;
  FileBytes new_;
};

}  // namespace kob::test
