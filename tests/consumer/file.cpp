// SPDX-FileCopyrightText: The KOBTraduction authors
// A program without any toolkit that keeps its messages in a translation file.
#include <kobpersistence/KOBPersistence.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <cstdlib>
#include <iostream>

int main() {
  kob::usePersistence();
  kob::KOBModeleTraduction saved;
  saved.Racine()->AddNoeuds(u"Messages")->AddMessage(u"Adieu", u"Au revoir");
  kob::KOBModeleTraduction loaded;
  const bool isRight = saved.Save(u"consumer.trad") && loaded.Load(u"consumer.trad") &&
                       loaded.GetTraduction(u"Messages\\Adieu", 1) == u"Au revoir";
  std::cout << (isRight ? "the message is found in the file\n" : "wrong text\n");
  return isRight ? EXIT_SUCCESS : EXIT_FAILURE;
}
