// SPDX-FileCopyrightText: The KOBTraduction authors
#include "SaveLoad.h"

#include <kobtraduction/persistence/FileManager.h>

namespace kob::test {
namespace {

class Save : public SaveLoad {};

TEST_F(Save, AsksTheServiceWithModeOne) {
  EXPECT_TRUE(model.Save(u"a.trad"));
  EXPECT_EQ(service.takeCalls(), "save \"a.trad\" mode=1\n");
}

TEST_F(Save, MakesAFileManagerForEachCallAndReleasesIt) {
  model.Save(u"a");
  EXPECT_EQ(service.made, 1);
  EXPECT_EQ(service.alive, 0);
  model.Save(u"a");
  model.Load(u"a");
  EXPECT_EQ(service.made, 3);
  EXPECT_EQ(service.alive, 0);
}

TEST_F(Save, ReleasesTheFileManagerOfACallThatFailed) {
  service.before = [] { throw PersistFailure(u"no disk"); };
  model.Save(u"a");
  model.Load(u"a");
  EXPECT_EQ(service.made, 2);
  EXPECT_EQ(service.alive, 0);
  messages.take();
}

TEST_F(Save, BeginsWithTheModelAndKeepsEveryObject) {
  EXPECT_TRUE(model.Save(u"a"));
  const auto& file = service.files.at(u"a");
  // The model, the root, four cells below it and four entries.
  EXPECT_EQ(file.size(), 10U);
  EXPECT_EQ(file.front().progId, u"KOBTraduction.KOBModeleTraduction");
}

TEST_F(Save, NeverTouchesFichier) {
  EXPECT_TRUE(model.Save(u"a"));
  EXPECT_EQ(model.Fichier(), u"before.trad");
  failRecordsOf(u"KOBTraduction.KOBTraductionObj");
  EXPECT_FALSE(model.Save(u"a"));
  EXPECT_EQ(model.Fichier(), u"before.trad");
  service.before = [] { throw PersistFailure(u"no disk"); };
  EXPECT_FALSE(model.Save(u"a"));
  EXPECT_EQ(model.Fichier(), u"before.trad");
  messages.take();
}

TEST_F(Save, ChangesNothingInTheModel) {
  model.Save(u"a");
  EXPECT_EQ(printTree(*model.Racine()), tree);
  EXPECT_EQ(model.NbLangues(), 6);
}

TEST_F(Save, ForgetsAnEarlierFailure) {
  Global_Util::setPersistOk(false);
  EXPECT_TRUE(model.Save(u"a"));
  EXPECT_TRUE(Global_Util::PersistOk());
}

TEST_F(Save, SetsTheFlagBeforeItAsksTheService) {
  bool flag = false;
  service.before = [&] { flag = Global_Util::PersistOk(); };
  Global_Util::setPersistOk(false);
  model.Save(u"a");
  EXPECT_TRUE(flag);
}

TEST_F(Save, AFailedRecordReturnsFalseWithoutAMessage) {
  failRecordsOf(u"KOBTraduction.KOBTraductionObj");
  EXPECT_FALSE(model.Save(u"a"));
  EXPECT_FALSE(Global_Util::PersistOk());
  EXPECT_EQ(messages.take(), "");
}

TEST_F(Save, AFailedRecordDoesNotStopTheOthers) {
  failRecordsOf(u"KOBTraduction.KOBTraductionObj");
  model.Save(u"a");
  service.atValue = nullptr;
  EXPECT_FALSE(model.Load(u"a"));
  EXPECT_EQ(printTree(*model.Racine()), R"(FrmMain node control left=1 width=-1
  . ""
  Label1 control left=1 width=1 left[2]=1 width[3]=1.5
    . ""
    . ""
Achats node context
  Titre message alias="Le titre"
    . ""
)");
}

TEST_F(Save, AControlWithoutAFactorForALanguageReturnsFalseWithoutAMessage) {
  model.GetCell(u"FrmMain\\Label1")->ColWidth()->Remove(6);
  EXPECT_FALSE(model.Save(u"a"));
  model.GetCell(u"FrmMain\\Label1")->ColWidth()->Add(Factor());
  EXPECT_TRUE(model.Save(u"a"));
  model.GetCell(u"FrmMain\\Label1")->ColLeft()->Remove(1);
  EXPECT_FALSE(model.Save(u"a"));
  EXPECT_EQ(messages.take(), "");
}

TEST_F(Save, AFailureOfTheServiceShowsItsDescription) {
  service.before = [] { throw PersistFailure(u"Le disque est plein: é"); };
  EXPECT_FALSE(model.Save(u"a"));
  EXPECT_EQ(messages.take(),
            R"(notice "Erreur de sauvegarde du modèle\r\nLe disque est plein: é" title="KOBCN" critical)"
            "\n");
}

}  // namespace
}  // namespace kob::test
