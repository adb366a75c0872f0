// SPDX-FileCopyrightText: The KOBTraduction authors
#include "SaveLoad.h"

#include <kobtraduction/persistence/FileManager.h>
#include <memory>
#include <thread>

namespace kob::test {
namespace {

class WithoutService : public SaveLoad {
 protected:
  WithoutService() { setPersistenceService(nullptr); }
};

TEST_F(WithoutService, SaveSaysSo) {
  EXPECT_FALSE(model.Save(u"a"));
  const std::string shown = messages.take();
  EXPECT_EQ(
      shown.find("notice \"Erreur de sauvegarde du modèle\\r\\nThis program has no persistence service"), 0U)
      << shown;
  EXPECT_NE(shown.find("title=\"KOBCN\" critical\n"), std::string::npos) << shown;
}

TEST_F(WithoutService, LoadSaysSoAndChangesNothing) {
  EXPECT_FALSE(model.Load(u"a"));
  EXPECT_EQ(messages.take().find("notice \"Erreur de chargement du modèle\\r\\nThis program has no"), 0U);
  EXPECT_EQ(model.Fichier(), u"before.trad");
  EXPECT_EQ(printTree(*model.Racine()), tree);
}

TEST_F(SaveLoad, AServiceThatCannotMakeAFileManagerIsAFailure) {
  service.make = []() -> std::unique_ptr<FileManager> { throw PersistFailure(u"not installed"); };
  EXPECT_FALSE(model.Save(u"a"));
  EXPECT_EQ(messages.take(),
            R"(notice "Erreur de sauvegarde du modèle\r\nnot installed" title="KOBCN" critical)"
            "\n");
}

TEST_F(SaveLoad, AServiceThatMakesNothingIsAFailure) {
  service.make = []() -> std::unique_ptr<FileManager> { return nullptr; };
  EXPECT_FALSE(model.Load(u"a"));
  EXPECT_NE(messages.take().find("Erreur de chargement du modèle"), std::string::npos);
}

TEST_F(SaveLoad, PluggingInReturnsTheServiceBefore) {
  const MakeFileManager before = persistenceService();
  const MakeFileManager other = []() -> std::unique_ptr<FileManager> { return nullptr; };
  EXPECT_EQ(setPersistenceService(other), before);
  EXPECT_EQ(persistenceService(), other);
  EXPECT_EQ(setPersistenceService(before), other);
}

TEST_F(SaveLoad, AServiceIsThereForAllThreads) {
  const MakeFileManager here = persistenceService();
  std::thread([here] { EXPECT_EQ(persistenceService(), here); }).join();
}

TEST_F(SaveLoad, TheFlagBelongsToOneThread) {
  std::thread([] {
    ScriptedService own;
    KOBModeleTraduction another;
    own.atValue = [](const IKOBVBPersistStream&) { throw PersistFailure(u"this record fails"); };
    EXPECT_FALSE(another.Save(u"a"));
    EXPECT_FALSE(Global_Util::PersistOk());
  }).join();
  EXPECT_TRUE(Global_Util::PersistOk());
  EXPECT_TRUE(model.Save(u"a"));
}

TEST_F(SaveLoad, AFailureOnAnotherThreadDuringASaveDoesNotDisturbIt) {
  service.before = [] {
    std::thread([] {
      Global_Util::setPersistOk(false);
      Global_Util::setNbLangues(1);
    }).join();
  };
  EXPECT_TRUE(model.Save(u"a"));
  EXPECT_TRUE(model.Load(u"a"));
  EXPECT_EQ(printTree(*model.Racine()), tree);
}

}  // namespace
}  // namespace kob::test
