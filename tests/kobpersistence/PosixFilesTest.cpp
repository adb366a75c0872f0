// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Child.h"
#include "FailingCalls.h"
#include "FilesTest.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <iostream>

namespace kob::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class PosixFilesTest : public FilesTest {
 public:
  static mode_t mode(const fs::path& file) {
    struct stat status = {};
    EXPECT_EQ(stat(file.c_str(), &status), 0);
    return status.st_mode & 07777;
  }
};

TEST_F(PosixFilesTest, ASymbolicLinkIsFollowedAndStays) {
  fs::create_directory(path("folder"));
  putBytes(path("folder/real.trad"), {1});
  fs::create_symlink("folder/real.trad", path("m.trad"));
  EXPECT_TRUE(model.Save(name("m.trad"))) << lastNotice();
  EXPECT_EQ(fs::read_symlink(path("m.trad")), "folder/real.trad");
  EXPECT_EQ(bytesOf(path("folder/real.trad")), new_);
  EXPECT_THAT(files(), ElementsAre("folder", "m.trad"));
}

TEST_F(PosixFilesTest, LinksToLinksAreFollowed) {
  fs::create_directory(path("folder"));
  fs::create_symlink(path("folder/second"), path("first"));
  fs::create_symlink("../third", path("folder/second"));
  EXPECT_TRUE(model.Save(name("first"))) << lastNotice();
  EXPECT_EQ(bytesOf(path("third")), new_);
  EXPECT_TRUE(fs::is_symlink(path("first")) && fs::is_symlink(path("folder/second")));
}

TEST_F(PosixFilesTest, LinksInACircleAreRefused) {
  fs::create_symlink("b", path("a"));
  fs::create_symlink("a", path("b"));
  expectRefused("a", "its symbolic links lead in a circle");
}

TEST_F(PosixFilesTest, PermissionsAreKept) {
  for (const mode_t permissions : {0600, 0640, 0666, 0755}) {
    putBytes(path("m.trad"), {1});
    ASSERT_EQ(chmod(path("m.trad").c_str(), permissions), 0);
    EXPECT_TRUE(model.Save(name("m.trad"))) << lastNotice();
    EXPECT_EQ(mode(path("m.trad")), permissions);
  }
}

TEST_F(PosixFilesTest, ANewFileHasThePermissionsThatTheUserWants) {
  const mode_t before = umask(027);
  EXPECT_TRUE(model.Save(name("m.trad"))) << lastNotice();
  umask(before);
  EXPECT_EQ(mode(path("m.trad")), mode_t(0640));
}

TEST_F(PosixFilesTest, TheOwnerIsKeptWhereThatIsPermitted) {
  putBytes(path("m.trad"), {1});
  if (chown(path("m.trad").c_str(), 65534, 65534) != 0) {
    GTEST_SKIP() << "only root can give a file away";
  }
  EXPECT_TRUE(model.Save(name("m.trad"))) << lastNotice();
  struct stat status = {};
  ASSERT_EQ(stat(path("m.trad").c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, 65534U);
  EXPECT_EQ(status.st_gid, 65534U);
}

TEST_F(PosixFilesTest, AnotherOwnersFileThatMayBeWrittenIsSaved) {
  ASSERT_EQ(chmod(path(".").c_str(), 0777), 0);
  putBytes(path("m.trad"), {1});
  ASSERT_EQ(chmod(path("m.trad").c_str(), 0666), 0);
  EXPECT_TRUE(asOrdinaryUser([&] { return model.Save(name("m.trad")); }));
  EXPECT_EQ(bytesOf(path("m.trad")), new_);
  EXPECT_EQ(mode(path("m.trad")), mode_t(0666));
}

/// Whether an ordinary user's call fails with this in the box.
template <class Call>
bool fails(const PosixFilesTest& test, Call call, std::string_view what) {
  return asOrdinaryUser([&] {
    const bool isRefused = !call() && test.lastNotice().find(what) != std::string::npos;
    if (!isRefused) {
      std::cerr << test.lastNotice() << "\n";
    }
    return isRefused;
  });
}

TEST_F(PosixFilesTest, AReadOnlyFolderLeavesTheOldFile) {
  putBytes(path("m.trad"), {1});
  ASSERT_EQ(chmod(path("m.trad").c_str(), 0666), 0);
  ASSERT_EQ(chmod(path(".").c_str(), 0555), 0);
  EXPECT_TRUE(fails(
      *this, [&] { return model.Save(name("m.trad")); }, "cannot be written: this is not permitted"));
  EXPECT_EQ(bytesOf(path("m.trad")), FileBytes{1});
  EXPECT_THAT(files(), ElementsAre("m.trad"));
  ASSERT_EQ(chmod(path(".").c_str(), 0755), 0);
}

TEST_F(PosixFilesTest, AReadOnlyFileIsNotReplaced) {
  putBytes(path("m.trad"), {1});
  ASSERT_EQ(chmod(path("m.trad").c_str(), 0444), 0);
  ASSERT_EQ(chmod(path(".").c_str(), 0777), 0);
  EXPECT_TRUE(fails(
      *this, [&] { return model.Save(name("m.trad")); }, "cannot be written: this is not permitted"));
  EXPECT_EQ(bytesOf(path("m.trad")), FileBytes{1});
  EXPECT_THAT(files(), ElementsAre("m.trad"));
}

TEST_F(PosixFilesTest, AFileThatMayNotBeReadIsRefused) {
  ASSERT_TRUE(model.Save(name("m.trad")));
  ASSERT_EQ(chmod(path("m.trad").c_str(), 0), 0);
  ASSERT_EQ(chmod(path(".").c_str(), 0755), 0);
  EXPECT_TRUE(fails(
      *this, [&] { return model.Load(name("m.trad")); }, "cannot be opened: this is not permitted"));
}

TEST_F(PosixFilesTest, AFolderThatMayBeWrittenButNotListedIsEnough) {
  ASSERT_EQ(chmod(path(".").c_str(), 0333), 0);
  EXPECT_TRUE(asOrdinaryUser([&] { return model.Save(name("m.trad")); }));
  ASSERT_EQ(chmod(path(".").c_str(), 0755), 0);
  EXPECT_EQ(bytesOf(path("m.trad")), new_);
}

TEST_F(PosixFilesTest, AFileSizeLimitLeavesTheOldFileAndNoLitter) {
  putBytes(path("m.trad"), {1});
  for (int i = 0; i < 1'000; ++i) {
    message(model.Racine(), u"Message" + decimal(i), {u"Un texte"});
  }
  EXPECT_TRUE(inChild([&] {
    // Writing beyond the limit ends a process unless it says otherwise.
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit = {8'192, 8'192};
    return setrlimit(RLIMIT_FSIZE, &limit) == 0 && !model.Save(name("m.trad")) &&
           lastNotice().find("larger than files may be here") != std::string::npos;
  }));
  EXPECT_EQ(bytesOf(path("m.trad")), FileBytes{1});
  EXPECT_THAT(files(), ElementsAre("m.trad"));
}

TEST_F(PosixFilesTest, AFullDeviceIsNoFileToSaveTo) {
  EXPECT_FALSE(model.Save(u"/dev/full"));
  EXPECT_THAT(lastNotice(), HasSubstr("\"/dev/full\" is no ordinary file, so it cannot be written."));
}

TEST_F(PosixFilesTest, ALinkInThePlaceOfTheNewFileIsNotFollowed) {
  putBytes(path("other"), {1});
  fs::create_symlink("other", path(".m.trad.kobtmp"));
  EXPECT_TRUE(model.Save(name("m.trad"))) << lastNotice();
  EXPECT_EQ(bytesOf(path("other")), FileBytes{1});
  EXPECT_THAT(files(), ElementsAre("m.trad", "other"));
}

TEST_F(PosixFilesTest, ASaveWaitsForAnotherOneAndGivesUpAtLast) {
  const int other = open(path(".m.trad.kobtmp").c_str(), O_CREAT | O_WRONLY, 0600);
  ASSERT_EQ(flock(other, LOCK_EX), 0);
  FailingService service;
  EXPECT_FALSE(model.Save(name("m.trad")));
  EXPECT_EQ(service.calls.pauses, 500);
  EXPECT_THAT(lastNotice(), HasSubstr("is being saved by another program. Try again once that has ended."));
  close(other);
  EXPECT_THAT(files(), ElementsAre(".m.trad.kobtmp"));
  EXPECT_TRUE(model.Save(name("m.trad"))) << lastNotice();
  EXPECT_THAT(files(), ElementsAre("m.trad"));
}

TEST_F(PosixFilesTest, APipeIsNoFileToSaveTo) {
  ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
  expectRefused("pipe", "\" is no ordinary file, so it cannot be written.");
}

TEST_F(PosixFilesTest, APipeIsNoFileToLoadAndKeepsNobodyWaiting) {
  ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
  EXPECT_FALSE(model.Load(name("pipe")));
  EXPECT_THAT(lastNotice(), HasSubstr("\" is no ordinary file. Choose a file."));
}

TEST_F(PosixFilesTest, ABackslashIsALetterOfAName) {
  EXPECT_TRUE(model.Save(name("a\\b.trad"))) << lastNotice();
  EXPECT_TRUE(model.Load(name("a\\b.trad"))) << lastNotice();
  EXPECT_THAT(files(), ElementsAre("a\\b.trad"));
}

TEST_F(PosixFilesTest, AFileBelowAFileIsRefused) {
  putBytes(path("file"), {1});
  expectRefused("file/m.trad", "a part of its path is no folder");
}

}  // namespace
}  // namespace kob::test
