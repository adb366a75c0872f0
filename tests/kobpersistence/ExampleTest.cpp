// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ServiceTest.h"

#include <cctype>
#include <fstream>
#include <sstream>

namespace kob::test {
namespace {

using ExampleTest = ServiceTest;

/// The bytes of the listing in a page: lines of an offset, two blanks, bytes, two blanks, a remark.
FileBytes listed(const std::filesystem::path& page) {
  FileBytes bytes;
  std::ifstream in(page);
  for (std::string line; std::getline(in, line);) {
    if (line.size() < 6 || line.substr(4, 2) != "  " || line.find_first_not_of("0123456789abcdef") != 4) {
      continue;
    }
    EXPECT_EQ(std::stoul(line.substr(0, 4), nullptr, 16), bytes.size()) << line;
    std::istringstream words(line.substr(6, line.find("  ", 6) - 6));
    for (std::string word; words >> word;) {
      bytes.push_back(static_cast<std::uint8_t>(std::stoul(word, nullptr, 16)));
    }
  }
  return bytes;
}

TEST_F(ExampleTest, TheExampleOfTheFormatsPageIsWhatIsWritten) {
  KOBModeleTraduction model;
  grow(model, "Salut message\n  . \"Bonjour\" 2=\"Hello\"\n");
  ASSERT_TRUE(model.Save(name("m.trad"))) << lastNotice();
  EXPECT_EQ(listed(KOB_FORMAT_PAGE), bytesOf(path("m.trad")));
}

TEST_F(ExampleTest, TheExampleOfTheFormatsPageIsRead) {
  putBytes(path("m.trad"), listed(KOB_FORMAT_PAGE));
  KOBModeleTraduction model;
  ASSERT_TRUE(model.Load(name("m.trad"))) << lastNotice();
  EXPECT_EQ(printed(model), "Salut message\n  . \"Bonjour\" 2=\"Hello\"\n");
}

}  // namespace
}  // namespace kob::test
