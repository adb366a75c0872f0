// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "PersistenceTest.h"
#include "tests/doubles/ScriptedService.h"
#include "tests/doubles/TreeText.h"

namespace kob::test {

using ::kob::testing::printTree;
using ::kob::testing::ScriptedService;

/// A service whose files live in memory, and a model that has something to lose.
class SaveLoad : public PersistenceTest {
 protected:
  SaveLoad() {
    kob::testing::growTree(model.Racine(), tree);
    model.setFichier(u"before.trad");
  }

  /// Makes the records of one class fail at their first value.
  void failRecordsOf(TextView progId) {
    service.atValue = [id = Text(progId)](const IKOBVBPersistStream& object) {
      if (object.getProgID() == id) {
        throw PersistFailure(u"this record fails");
      }
    };
  }

  static constexpr const char* tree = R"(FrmMain node control left=1 width=-1
  .Caption "Accueil" 2="Home"
  Label1 control left=1 width=1 left[2]=1 width[3]=1.5
    .Caption "Nom"
    .ToolTip "Votre nom" 6="Su nombre"
Achats node context
  Titre message alias="Le titre"
    . "Bonjour" 3="Goedendag"
)";

  ScriptedService service;
  KOBModeleTraduction model;
};

}  // namespace kob::test
