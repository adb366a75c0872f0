// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FilesTest.h"

#include <cstdint>
#include <system_error>
#include <thread>
#include <vector>

namespace kob::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST_F(FilesTest, LitterOfAKilledSaveIsRemoved) {
  putBytes(path(".m.trad.kobtmp"), {1, 2, 3});
  EXPECT_TRUE(model.Save(name("m.trad"))) << lastNotice();
  EXPECT_THAT(files(), ElementsAre("m.trad"));
}

TEST_F(FilesTest, AFolderInThePlaceOfTheNewFileIsNamed) {
  fs::create_directory(path(".m.trad.kobtmp"));
  expectRefused("m.trad", ".m.trad.kobtmp\" cannot be removed");
}

TEST_F(FilesTest, SavesAtTheSameTimeDoNotMix) {
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

TEST_F(FilesTest, AFolderIsNoFileToSaveTo) {
  fs::create_directory(path("m.trad"));
  expectRefused("m.trad", "\" is a folder, so it cannot be written. Choose another name.");
}

TEST_F(FilesTest, AFolderIsNoFileToLoad) {
  EXPECT_FALSE(model.Load(name(".")));
  EXPECT_THAT(lastNotice(), HasSubstr("\" is a folder. Choose a file."));
}

TEST_F(FilesTest, AFileOfMoreThanFourGigabytesIsRefusedUnread) {
  putBytes(path("m.trad"), {1});
  std::error_code error;
  fs::resize_file(path("m.trad"), std::uintmax_t(1) << 33, error);
  if (error) {
    GTEST_SKIP() << "no such large file here";
  }
  EXPECT_FALSE(model.Load(name("m.trad")));
  EXPECT_THAT(lastNotice(), HasSubstr("The file is larger than 4 GB, which is the most that can be loaded."));
}

TEST_F(FilesTest, AnyNameThatAFileCanHaveWillDo) {
  for (const Text& own : {Text(u"é Ὄ 😀.trad"), Text(250, u'n'), Text(120, u'é')}) {
    EXPECT_TRUE(model.Save(name("") + own)) << lastNotice();
    EXPECT_TRUE(model.Load(name("") + own)) << lastNotice();
    EXPECT_THAT(files(), ElementsAre(toUtf8(own)));
    fs::remove(path(toUtf8(own)));
  }
}

TEST_F(FilesTest, ANameThatIsTooLongIsCalledSo) {
  const std::string own(256, 'n');
  expectRefused(own, "its name is too long. Choose a shorter one.");
}

TEST_F(FilesTest, ANameWithinTheFolderOfTheProgramWillDo) {
  const fs::path before = fs::current_path();
  fs::current_path(path("."));
  EXPECT_TRUE(model.Save(u"m.trad")) << lastNotice();
  EXPECT_TRUE(model.Load(u"m.trad")) << lastNotice();
  fs::current_path(before);
  EXPECT_THAT(files(), ElementsAre("m.trad"));
}

/// Names that no file can have.
void expectNoName(FilesTest& test, TextView name, std::string_view what) {
  EXPECT_FALSE(test.model.Save(name));
  EXPECT_THAT(test.lastNotice(), HasSubstr(std::string(what)));
  EXPECT_FALSE(test.model.Load(name));
  EXPECT_THAT(test.lastNotice(), HasSubstr(std::string(what)));
  EXPECT_THAT(test.files(), IsEmpty());
}

TEST_F(FilesTest, NoNameIsRefused) {
  expectNoName(*this, u"", "The file has no name. Give it one.");
}

TEST_F(FilesTest, ANameWithANulIsRefused) {
  expectNoName(*this, name("m.trad") + Text(u"\0.bak", 5), "is no name that a file can have");
}

TEST_F(FilesTest, ANameWithHalfALetterIsRefused) {
  expectNoName(*this, name("m") + Text(1, u'\xD800') + u"x", "is no name that a file can have");
  expectNoName(*this, name("m") + Text(1, u'\xDC00'), "is no name that a file can have");
}

}  // namespace
}  // namespace kob::test
