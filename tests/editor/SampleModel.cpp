// SPDX-FileCopyrightText: The KOBTraduction authors
#include "SampleModel.h"

#include "tests/model/ModelVocabulary.h"

namespace kob::testing {

using namespace kob::test;

void fillSample(KOBModeleTraduction& model) {
  const CellRef there = model.GetCell(u"App");
  const CellRef app = there != nullptr ? there : model.Racine()->AddNoeuds(u"App");
  const CellRef client = app->AddNoeuds(u"FrmClient");
  const CellRef save =
      control(client, u"btnEnregistrer",
              {entry(u"Caption", {u"Enregistrer", u"Save", u"Opslaan", u"Speichern", u"Salva", u"Guardar"}),
               entry(u"ToolTip", {u"Enregistrer les modifications", u"Save the changes",
                                  u"De wijzigingen opslaan", u"", u"Salva le modifiche", u""})});
  save->setm_left(1);
  save->setm_width(1);
  save->ChangeWidth(1.25, 4);
  const CellRef city = control(
      client, u"lblVille", {entry(u"Caption", {u"Ville", u"City", u"Stad", u"Ort", u"Città", u"Ciudad"})});
  city->setContexte(true);
  control(client, u"lblArabe",
          {entry(u"Caption",
                 {u"Bienvenue", u"Welcome", u"ברוך הבא", u"أهلاً وسهلاً", u"欢迎", u"Ласкаво просимо"})});
  control(client, u"btnAnnuler",
          {entry(u"Caption", {u"Annuler", u"Cancel", u"Annuleren", u"Abbrechen", u"Annulla", u"Cancelar"})});
  app->AddNoeuds(u"FrmFacture");
  const CellRef messages = app->AddNoeuds(u"Messages");
  message(messages, u"Confirmation",
          {u"Les modifications ne sont pas enregistrées.\r\nVoulez-vous quitter ?",
           u"The changes are not saved.\r\nDo you want to leave?",
           u"De wijzigingen zijn niet opgeslagen.\r\nWilt u afsluiten?",
           u"Die Änderungen sind nicht gespeichert.\r\nMöchten Sie beenden?", u"", u""});
  message(messages, u"Total", {u"Total : %1", u"Total: %1", u"", u"", u"", u""})->setContexte(true);
  for (const TextView name : {u"FrmStock", u"FrmOptions", u"FrmImpression"}) {
    const CellRef form = app->AddNoeuds(name);
    for (const TextView part : {u"lblTitre", u"btnOK", u"btnFermer"}) {
      control(form, part, {entry(u"Caption", {part, u"", u"", u"", u"", u""})});
    }
  }
}

}  // namespace kob::testing
