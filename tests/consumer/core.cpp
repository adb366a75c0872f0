// SPDX-FileCopyrightText: The KOBTraduction authors
// A program without any toolkit: its own messages in two languages.
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <cstdlib>
#include <iostream>

int main() {
  kob::KOBModeleTraduction model;
  const auto messages = model.Racine()->AddNoeuds(u"Messages");
  const auto farewell = messages->AddMessage(u"Adieu", u"Au revoir");
  const auto& texts = farewell->Traduction()->ColTraduction();
  texts->Remove(2);
  texts->Add(u"Goodbye", 2);

  const bool isRight = model.GetTraduction(u"messages\\ADIEU", 1) == u"Au revoir" &&
                       model.GetTraduction(u"Messages\\Adieu", 2) == u"Goodbye" &&
                       model.GetTraduction(u"Messages\\Adieu", 3) == u"Au revoir";
  std::cout << (isRight ? "the message is found in its language\n" : "wrong text\n");
  return isRight ? EXIT_SUCCESS : EXIT_FAILURE;
}
