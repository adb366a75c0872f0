// SPDX-FileCopyrightText: The KOBTraduction authors
#include "SaveLoad.h"

#include <kobtraduction/persistence/FileManager.h>
#include <new>
#include <stdexcept>

namespace kob::test {
namespace {

class Load : public SaveLoad {};

TEST_F(Load, AFailureOfTheServiceShowsItsDescription) {
  service.before = [] { throw PersistFailure(u"Le fichier est abîmé"); };
  EXPECT_FALSE(model.Load(u"a"));
  EXPECT_EQ(messages.take(),
            R"(notice "Erreur de chargement du modèle\r\nLe fichier est abîmé" title="KOBCN" critical)"
            "\n");
}

TEST_F(Load, AnEmptyDescriptionLeavesTheSecondLineEmpty) {
  service.before = [] { throw PersistFailure(u""); };
  EXPECT_FALSE(model.Load(u"a"));
  EXPECT_EQ(messages.take(), R"(notice "Erreur de chargement du modèle\r\n" title="KOBCN" critical)"
                             "\n");
}

TEST_F(Load, OtherFailuresOfTheServiceShowTheirDescriptionToo) {
  service.before = [] { throw std::runtime_error("no such device"); };
  EXPECT_FALSE(model.Load(u"a"));
  EXPECT_EQ(messages.take(),
            R"(notice "Erreur de chargement du modèle\r\nno such device" title="KOBCN" critical)"
            "\n");
  service.before = [] { throw std::bad_alloc(); };
  EXPECT_FALSE(model.Save(u"a"));
  EXPECT_NE(messages.take(), "");
}

TEST_F(Load, WhatIsNotAsciiInTheDescriptionOfAnotherFailureIsMarked) {
  service.before = [] { throw std::runtime_error("caf\xE9 closed"); };
  EXPECT_FALSE(model.Load(u"a"));
  EXPECT_NE(messages.take().find("caf\uFFFD closed"), std::string::npos);
}

TEST_F(Load, AFailureThatDescribesNothingIsShownAndStaysInside) {
  service.before = [] { throw 5; };
  EXPECT_NO_THROW(EXPECT_FALSE(model.Load(u"a")));
  EXPECT_NE(messages.take().find("Erreur de chargement du modèle"), std::string::npos);
  EXPECT_NO_THROW(EXPECT_FALSE(model.Save(u"a")));
  EXPECT_NE(messages.take().find("Erreur de sauvegarde du modèle"), std::string::npos);
}

TEST_F(Load, AFileThatDoesNotExistChangesNothing) {
  EXPECT_FALSE(model.Load(u"nowhere.trad"));
  EXPECT_EQ(
      messages.take(),
      R"(notice "Erreur de chargement du modèle\r\nthere is no file of that name" title="KOBCN" critical)"
      "\n");
  EXPECT_EQ(model.Fichier(), u"before.trad");
  EXPECT_EQ(printTree(*model.Racine()), tree);
}

TEST_F(Load, AnUnknownClassIsAFailureOfTheService) {
  model.Save(u"a");
  service.files[u"a"].back().progId = u"Some.Class";
  EXPECT_FALSE(model.Load(u"a"));
  EXPECT_NE(messages.take().find("unknown class Some.Class"), std::string::npos);
  EXPECT_EQ(model.Fichier(), u"before.trad");
}

TEST_F(Load, GivesBackWhatWasSaved) {
  model.Save(u"a");
  KOBModeleTraduction other;
  EXPECT_TRUE(other.Load(u"a"));
  EXPECT_EQ(printTree(*other.Racine()), tree);
  EXPECT_EQ(other.Racine()->nom(), u"RACINE");
}

TEST_F(Load, AsksTheServiceForTheFile) {
  model.Save(u"a.trad");
  service.takeCalls();
  model.Load(u"a.trad");
  EXPECT_EQ(service.takeCalls(), "load \"a.trad\"\n");
}

TEST_F(Load, SetsFichier) {
  model.Save(u"a.trad");
  EXPECT_TRUE(model.Load(u"a.trad"));
  EXPECT_EQ(model.Fichier(), u"a.trad");
}

TEST_F(Load, SetsFichierAlsoWhenARecordFailed) {
  model.Save(u"a.trad");
  failRecordsOf(u"KOBTraduction.KOBTraductionObj");
  EXPECT_FALSE(model.Load(u"a.trad"));
  EXPECT_EQ(model.Fichier(), u"a.trad");
}

TEST_F(Load, LeavesFichierWhenTheServiceFailed) {
  model.Save(u"a.trad");
  service.before = [] { throw PersistFailure(u"no disk"); };
  EXPECT_FALSE(model.Load(u"a.trad"));
  EXPECT_EQ(model.Fichier(), u"before.trad");
  messages.take();
}

TEST_F(Load, FichierItselfMayBeTheArgument) {
  model.Save(u"before.trad");
  EXPECT_TRUE(model.Load(model.Fichier()));
  EXPECT_EQ(model.Fichier(), u"before.trad");
}

TEST_F(Load, ForgetsAnEarlierFailure) {
  model.Save(u"a");
  Global_Util::setPersistOk(false);
  EXPECT_TRUE(model.Load(u"a"));
}

TEST_F(Load, AFailedRecordReturnsFalseWithoutAMessage) {
  model.Save(u"a");
  failRecordsOf(u"KOBTraduction.KOBTraductionObj");
  EXPECT_FALSE(model.Load(u"a"));
  EXPECT_EQ(messages.take(), "");
}

TEST_F(Load, ARecordThatFailsBelowAnotherKeepsWhatItReadAndItsParentGoesOn) {
  model.Save(u"a");
  int values = 0;
  service.atValue = [&](const IKOBVBPersistStream& object) {
    // Of each entry, the name and two texts can be read.
    values = object.getProgID() == u"KOBTraduction.KOBTraductionObj" ? values + 1 : 0;
    if (values > 3) {
      values = 0;
      throw PersistFailure(u"this record fails");
    }
  };
  EXPECT_FALSE(model.Load(u"a"));
  EXPECT_EQ(printTree(*model.Racine()), R"(FrmMain node control left=1 width=-1
  .Caption "Accueil" 2="Home" texts=2
  Label1 control left=1 width=1 left[2]=1 width[3]=1.5
    .Caption "Nom" texts=2
    .ToolTip "Votre nom" texts=2
Achats node context
  Titre message alias="Le titre"
    . "Bonjour" texts=2
)");
}

TEST_F(Load, AModelWhoseOwnRecordFailsKeepsItsTree) {
  model.Save(u"a");
  service.files[u"a"].front().record.values.pop_back();
  EXPECT_FALSE(model.Load(u"a"));
  EXPECT_EQ(printTree(*model.Racine()), tree);
  EXPECT_EQ(model.Fichier(), u"a");
}

TEST_F(Load, TheLanguageCountOfTheFileHoldsForTheWholeThread) {
  KOBModeleTraduction other;
  Global_Util::setNbLangues(3);
  model.Save(u"three");
  Global_Util::setNbLangues(5);
  EXPECT_TRUE(model.Load(u"three"));
  EXPECT_EQ(model.NbLangues(), 3);
  EXPECT_EQ(other.NbLangues(), 3);
}

TEST_F(Load, CellsAndEntriesAreReadWithTheCountOfTheFile) {
  model.Save(u"six");
  Global_Util::setNbLangues(2);
  EXPECT_TRUE(model.Load(u"six"));
  EXPECT_EQ(model.NbLangues(), 6);
  EXPECT_EQ(printTree(*model.Racine()), tree) << "which says so when a list has another length";
}

TEST_F(Load, AnEntryThatStandsTwiceComesBackAsOne) {
  const CellRef label = model.GetCell(u"FrmMain\\Label1");
  label->ColTraduction()->Add(label->ColTraduction()->Item(1));
  model.Save(u"a");
  EXPECT_TRUE(model.Load(u"a"));
  const auto& entries = *model.GetCell(u"FrmMain\\Label1")->ColTraduction();
  EXPECT_EQ(entries.Item(3), entries.Item(1));
}

}  // namespace
}  // namespace kob::test
