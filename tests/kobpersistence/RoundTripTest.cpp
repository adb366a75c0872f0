// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ServiceTest.h"

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

TEST_F(RoundTripTest, NothingIsLeftBesideTheFile) {
  KOBModeleTraduction saved;
  ASSERT_TRUE(saved.Save(name("m.trad"))) << lastNotice();
  EXPECT_EQ(files(), std::vector<std::string>{"m.trad"});
}

}  // namespace
}  // namespace kob::test
