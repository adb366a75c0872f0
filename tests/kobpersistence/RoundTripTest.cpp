// SPDX-FileCopyrightText: The KOBTraduction authors
#include "MemoryStorage.h"
#include "ServiceTest.h"

#include <string>

namespace kob::test {
namespace {

using RoundTripTest = ServiceTest;

constexpr std::string_view someTree = R"(FrmMain control context left=1 width=1
  .Caption "Accueil" 2="Home"
  .ToolTip ""
Label1 control left=-1 width=1 left[6]=0.25 width[2]=1.5
  .Caption "Nom" 3="Ὄνομα"
Achats node
  Titre message alias="Le titre"
    . "Bonjour" 2="Bonjour" 4="Bonjour"
  Vide node
)";

TEST_F(RoundTripTest, AModelComesBackAsItWasSaved) {
  KOBModeleTraduction saved;
  grow(saved, someTree);
  ASSERT_TRUE(saved.Save(name("m.trad"))) << lastNotice();
  KOBModeleTraduction loaded;
  ASSERT_TRUE(loaded.Load(name("m.trad"))) << lastNotice();
  EXPECT_EQ(printed(loaded), printed(saved));
  EXPECT_EQ(printed(loaded), someTree);
}

TEST_F(RoundTripTest, ANewModelComesBackAsARootWithoutChildren) {
  KOBModeleTraduction saved;
  ASSERT_TRUE(saved.Save(name("m.trad"))) << lastNotice();
  KOBModeleTraduction loaded;
  grow(loaded, someTree);
  ASSERT_TRUE(loaded.Load(name("m.trad"))) << lastNotice();
  EXPECT_EQ(loaded.Racine()->nom(), u"RACINE");
  EXPECT_EQ(loaded.Racine()->ColCell()->Count(), 0);
}

TEST_F(RoundTripTest, AFileOfAnyLengthAroundWhatIsWrittenTogetherComesBack) {
  constexpr std::size_t together = 256 * 1024;
  constexpr std::size_t around = 48;
  const MemoryService service;
  // A unit more is a byte more.
  const auto sizeWith = [&service](const Text& text) {
    KOBModeleTraduction saved;
    saved.Racine()->AddMessage(u"m", text);
    saved.Save(u"m");
    return service.storage.files.at(u"m").size();
  };
  const std::size_t beside = sizeWith(Text(together, u'x')) - together;
  for (std::size_t size = together - around; size < together + around; ++size) {
    const Text text(size - beside, u'x');
    ASSERT_EQ(sizeWith(text), size);
    KOBModeleTraduction loaded;
    ASSERT_TRUE(loaded.Load(u"m")) << size << ": " << lastNotice();
    ASSERT_TRUE(loaded.GetTraduction(u"m", 1, u"") == text) << size;
  }
}

// More than is loaded in large pages.
TEST_F(RoundTripTest, AVeryLargeFileComesBack) {
  constexpr std::int32_t messages = 72;
  constexpr std::size_t units = 1'000'000;
  const MemoryService service;
  const auto textOf = [](std::int32_t message) {
    Text text(units, u'a');
    text[static_cast<std::size_t>(message)] = u'b';
    return text;
  };
  const auto nameOf = [](std::int32_t message) {
    const std::string digits = std::to_string(message);
    return Text(digits.begin(), digits.end());
  };
  {
    KOBModeleTraduction saved;
    for (std::int32_t message = 0; message < messages; ++message) {
      saved.Racine()->AddMessage(nameOf(message), textOf(message));
    }
    ASSERT_TRUE(saved.Save(u"m")) << lastNotice();
  }
  ASSERT_GT(service.storage.files.at(u"m").size(), std::size_t{64} << 20);
  KOBModeleTraduction loaded;
  ASSERT_TRUE(loaded.Load(u"m")) << lastNotice();
  ASSERT_EQ(loaded.Racine()->ColCell()->Count(), messages);
  for (std::int32_t message = 0; message < messages; ++message) {
    ASSERT_TRUE(loaded.GetTraduction(nameOf(message), 1, u"") == textOf(message)) << message;
  }
}

TEST_F(RoundTripTest, NothingIsLeftBesideTheFile) {
  KOBModeleTraduction saved;
  ASSERT_TRUE(saved.Save(name("m.trad"))) << lastNotice();
  EXPECT_EQ(files(), std::vector<std::string>{"m.trad"});
}

}  // namespace
}  // namespace kob::test
