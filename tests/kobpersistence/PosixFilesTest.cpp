// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Child.h"
#include "FailingCalls.h"
#include "ServiceTest.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <iostream>
#include <thread>

namespace kob::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// A model and the files of a real folder, with all that can stand in its way.
class PosixFilesTest : public ServiceTest {
 public:
  PosixFilesTest() {
    grow(model, "Nouveau message\n  . \"Nouveau\"\n");
    EXPECT_TRUE(model.Save(name("new")));
    new_ = bytesOf(path("new"));
    fs::remove(path("new"));
  }

  static mode_t mode(const fs::path& file) {
    struct stat status = {};
    EXPECT_EQ(stat(file.c_str(), &status), 0);
    return status.st_mode & 07777;
  }

  /// Saving must be refused with this in the box, and the folder stays as it is.
  void expectRefused(std::string_view file, std::string_view what) {
    const auto before = files();
    EXPECT_FALSE(model.Save(name(file)));
    EXPECT_THAT(lastNotice(), HasSubstr(std::string(what)));
    EXPECT_EQ(files(), before);
  }

  KOBModeleTraduction model;
  FileBytes new_;
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

TEST_F(PosixFilesTest, LitterOfAKilledSaveIsRemoved) {
  putBytes(path(".m.trad.kobtmp"), {1, 2, 3});
  EXPECT_TRUE(model.Save(name("m.trad"))) << lastNotice();
  EXPECT_THAT(files(), ElementsAre("m.trad"));
}

TEST_F(PosixFilesTest, ALinkInThePlaceOfTheNewFileIsNotFollowed) {
  putBytes(path("other"), {1});
  fs::create_symlink("other", path(".m.trad.kobtmp"));
  EXPECT_TRUE(model.Save(name("m.trad"))) << lastNotice();
  EXPECT_EQ(bytesOf(path("other")), FileBytes{1});
  EXPECT_THAT(files(), ElementsAre("m.trad", "other"));
}

TEST_F(PosixFilesTest, AFolderInThePlaceOfTheNewFileIsNamed) {
  fs::create_directory(path(".m.trad.kobtmp"));
  expectRefused("m.trad", ".m.trad.kobtmp\" cannot be removed");
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

TEST_F(PosixFilesTest, SavesAtTheSameTimeDoNotMix) {
  const Text file = name("m.trad");
  std::vector<FileBytes> whole(3);
  std::vector<std::thread> savers;
  for (std::size_t i = 0; i < whole.size(); ++i) {
    savers.emplace_back([&, i] {
      KOBModeleTraduction own;
      for (int k = 0; k < 2'000; ++k) {
        message(own.Racine(), decimal(k), {Text(i + 1, u'x') + decimal(k)});
      }
      for (int k = 0; k < 10; ++k) {
        EXPECT_TRUE(own.Save(file));
      }
      EXPECT_TRUE(own.Save(name("alone" + std::to_string(i))));
      whole[i] = bytesOf(path("alone" + std::to_string(i)));
    });
  }
  for (std::thread& saver : savers) {
    saver.join();
  }
  EXPECT_THAT(whole, ::testing::Contains(bytesOf(path("m.trad"))));
  EXPECT_THAT(files(), ElementsAre("alone0", "alone1", "alone2", "m.trad"));
}

TEST_F(PosixFilesTest, AFolderIsNoFileToSaveTo) {
  fs::create_directory(path("m.trad"));
  expectRefused("m.trad", "\" is a folder, so it cannot be written. Choose another name.");
}

TEST_F(PosixFilesTest, AFolderIsNoFileToLoad) {
  EXPECT_FALSE(model.Load(name(".")));
  EXPECT_THAT(lastNotice(), HasSubstr("\" is a folder. Choose a file."));
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

TEST_F(PosixFilesTest, AFileOfMoreThanFourGigabytesIsRefusedUnread) {
  putBytes(path("m.trad"), {1});
  if (truncate(path("m.trad").c_str(), off_t(1) << 33) != 0) {
    GTEST_SKIP() << "no such large file here";
  }
  EXPECT_FALSE(model.Load(name("m.trad")));
  EXPECT_THAT(lastNotice(), HasSubstr("The file is larger than 4 GB, which is the most that can be loaded."));
}

TEST_F(PosixFilesTest, AFileBelowAFileIsRefused) {
  putBytes(path("file"), {1});
  expectRefused("file/m.trad", "a part of its path is no folder");
}

TEST_F(PosixFilesTest, AnyNameThatAFileCanHaveWillDo) {
  for (const Text& own : {Text(u"é Ὄ 😀 \\.trad"), Text(250, u'n'), Text(120, u'é')}) {
    EXPECT_TRUE(model.Save(name("") + own)) << lastNotice();
    EXPECT_TRUE(model.Load(name("") + own)) << lastNotice();
    EXPECT_THAT(files(), ElementsAre(toUtf8(own)));
    fs::remove(path(toUtf8(own)));
  }
}

TEST_F(PosixFilesTest, ANameThatIsTooLongIsCalledSo) {
  const std::string own(256, 'n');
  expectRefused(own, "its name is too long. Choose a shorter one.");
}

TEST_F(PosixFilesTest, ANameWithinTheFolderOfTheProgramWillDo) {
  const fs::path before = fs::current_path();
  fs::current_path(path("."));
  EXPECT_TRUE(model.Save(u"m.trad")) << lastNotice();
  EXPECT_TRUE(model.Load(u"m.trad")) << lastNotice();
  fs::current_path(before);
  EXPECT_THAT(files(), ElementsAre("m.trad"));
}

/// Names that no file can have.
void expectNoName(PosixFilesTest& test, TextView name, std::string_view what) {
  EXPECT_FALSE(test.model.Save(name));
  EXPECT_THAT(test.lastNotice(), HasSubstr(std::string(what)));
  EXPECT_FALSE(test.model.Load(name));
  EXPECT_THAT(test.lastNotice(), HasSubstr(std::string(what)));
  EXPECT_THAT(test.files(), IsEmpty());
}

TEST_F(PosixFilesTest, NoNameIsRefused) {
  expectNoName(*this, u"", "The file has no name. Give it one.");
}

TEST_F(PosixFilesTest, ANameWithANulIsRefused) {
  expectNoName(*this, name("m.trad") + Text(u"\0.bak", 5), "is no name that a file can have");
}

TEST_F(PosixFilesTest, ANameWithHalfALetterIsRefused) {
  expectNoName(*this, name("m") + Text(1, u'\xD800') + u"x", "is no name that a file can have");
  expectNoName(*this, name("m") + Text(1, u'\xDC00'), "is no name that a file can have");
}

}  // namespace
}  // namespace kob::test
