// SPDX-FileCopyrightText: The KOBTraduction authors
// The library beside a reader in another language that was made from the page about the format.
#include "MemoryStorage.h"
#include "RecordText.h"
#include "TestFile.h"

#include <cstdio>
#include <memory>
#include <random>

namespace kob::test {
namespace {

class OtherReaderTest : public ServiceTest {
 public:
  /// What the other reader prints for these files, a line each.
  std::vector<std::string> otherReader(const std::vector<std::string>& names) const {
    std::string command(KOB_PYTHON " " KOB_OTHER_READER);
    for (const std::string& name : names) {
      command.append(" ").append(path(name).string());
    }
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> out(popen(command.c_str(), "r"), pclose);
    std::string text;
    for (int letter = std::fgetc(out.get()); letter != EOF; letter = std::fgetc(out.get())) {
      text += static_cast<char>(letter);
    }
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t end = text.find('\n', at);
      lines.push_back(text.substr(at, end - at));
      at = end + 1;
    }
    return lines;
  }

  void expectSame(KOBModeleTraduction& model) {
    ASSERT_TRUE(model.Save(name("m.trad"))) << lastNotice();
    const auto lines = otherReader({"m.trad"});
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines.front(), recordText(model));
  }

  /// How each file of the folder is taken by the library and by the other reader.
  void expectSameRefusals(const std::vector<std::string>& names) {
    const auto lines = otherReader(names);
    ASSERT_EQ(lines.size(), names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
      KOBModeleTraduction model;
      boxes.notices.clear();
      model.Load(name(names[i]));
      const bool isRefused = !boxes.notices.empty();
      const bool isByLanguages = isRefused && boxes.notices.back().find(u" languages are") != Text::npos;
      EXPECT_EQ(isRefused && !isByLanguages, lines[i].rfind("{\"refused\"", 0) == 0)
          << names[i] << ": " << lastNotice() << "\n"
          << lines[i];
    }
  }

  FileBytes smallFile() {
    KOBModeleTraduction model;
    grow(model, "C control left=1 width=-1 width[2]=1.5\n  .Caption \"Un\" 2=\"Ὄ\"\nM message\n  . \"A\"\n");
    const EntryRef shared = model.GetCell(u"M")->Traduction();
    message(model.Racine(), u"N", {})->setTraduction(shared);
    EXPECT_TRUE(model.Save(name("m.trad"))) << lastNotice();
    return bytesOf(path("m.trad"));
  }
};

TEST_F(OtherReaderTest, ANewModelIsTheSame) {
  KOBModeleTraduction model;
  expectSame(model);
}

TEST_F(OtherReaderTest, EveryKindOfValueIsTheSame) {
  KOBModeleTraduction model;
  grow(model,
       "F control context left=1 width=-1 width[2]=1.5 left[6]=-0.1\n  .Caption \"Un\" 2=\"Ὄνομα\"\n  .Tip "
       "\"\"\n"
       "N node alias=\"Noeud\"\n  M message\n    . \"x\" 2=\"x\" 3=\"x\" 4=\"x\"\n  V node\n");
  message(model.Racine(), u"\x7F\"\\\n\x01",
          {Text(1, u'\xD800'), Text(1, u'\xDC00'), u"😀", u"\xFF", u"\x100"});
  expectSame(model);
}

TEST_F(OtherReaderTest, LongTextsAndManyLanguagesAreTheSame) {
  KOBModeleTraduction model;
  model.setNbLangues(40);
  message(model.Racine(), Text(200, u'x'), {Text(70'000, u'é'), Text(20'000, u'Ὄ')});
  const CellRef cell = KOBCellTraduction::createControl();
  cell->setnom(u"C");
  append(model.Racine(), cell);
  expectSame(model);
}

TEST_F(OtherReaderTest, SharedObjectsAreNumberedAsThePageSays) {
  KOBModeleTraduction model;
  Global_Util::setNbLangues(1);
  const EntryRef shared = entry(u"", {u"S"});
  message(model.Racine(), u"A", {})->setTraduction(shared);
  message(model.Racine(), u"B", {})->setTraduction(shared);
  ASSERT_TRUE(model.Save(name("m.trad"))) << lastNotice();
  const auto lines = otherReader({"m.trad"});
  ASSERT_EQ(lines.size(), 1U);
  const std::string cell = R"({"class": "KOBTraduction.KOBCellTraduction", "version": 2, "values": [)";
  EXPECT_EQ(
      lines.front(),
      R"([{"class": "KOBTraduction.KOBModeleTraduction", "version": 1, "values": [["long", 1], )"
      R"(["object", 1]]}, )" +
          cell +
          R"(["string", "RACINE"], ["string", ""], ["long", 1], ["long", 2], ["object", 2], ["object", 3], )"
          R"(["long", 0], ["boolean", false]]}, )" +
          cell +
          R"(["string", "A"], ["string", ""], ["long", 2], ["long", 1], ["object", 4], ["boolean", false]]}, )" +
          cell +
          R"(["string", "B"], ["string", ""], ["long", 2], ["long", 1], ["object", 4], ["boolean", false]]}, )"
          R"({"class": "KOBTraduction.KOBTraductionObj", "version": 1, "values": [["string", ""], )"
          R"(["string", "S"]]}])");
}

TEST_F(OtherReaderTest, TheSameDamagedFilesAreRefused) {
  const FileBytes whole = smallFile();
  std::vector<std::string> names;
  for (std::size_t i = 0; i < whole.size(); i += 3) {
    FileBytes flipped = whole;
    flipped[i] ^= static_cast<std::uint8_t>(1U << (i % 8));
    putBytes(path("flip" + std::to_string(i)), flipped);
    names.push_back("flip" + std::to_string(i));
    putBytes(path("cut" + std::to_string(i)),
             {whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(i)});
    names.push_back("cut" + std::to_string(i));
  }
  expectSameRefusals(names);
}

TEST_F(OtherReaderTest, TheSameFilesAreRefusedWhenTheChecksumIsRight) {
  const FileBytes whole = smallFile();
  std::mt19937 random(1);
  std::vector<std::string> names;
  for (int i = 0; i < 600; ++i) {
    FileBytes bytes = whole;
    for (unsigned changes = random() % 3 + 1; changes > 0; --changes) {
      // Mostly in the records: the last fifth of the file.
      const std::size_t part = random() % 4 == 0 ? 8 : 234;
      bytes[part + random() % (bytes.size() - 8 - part)] = static_cast<std::uint8_t>(random() % 64);
    }
    putBytes(path(std::to_string(i)), sealed(bytes));
    names.push_back(std::to_string(i));
  }
  expectSameRefusals(names);
}

}  // namespace
}  // namespace kob::test
