// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/KOBPersistence.h>
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <string>

/// kob_three_languages FILE: writes a translation file of three languages, which no verb makes, with the
/// message "Message", in French and in English.
int main(int argc, char* argv[]) {
  if (argc != 2) {
    return 2;
  }
  kob::usePersistence();
  kob::KOBModeleTraduction model;
  // Creating the model raised it to six.
  kob::Global_Util::setNbLangues(3);
  const auto cell = model.Racine()->AddMessage(u"Message", u"Oui");
  cell->Traduction()->ChangeTraduction(u"Yes", 2);
  const std::string file = argv[1];
  return model.Save(kob::Text(file.begin(), file.end())) ? 0 : 1;
}
