// SPDX-FileCopyrightText: The KOBTraduction authors
// The example of the README, as it stands there, on the form that it speaks of.
#include SNIPPET

#include <QApplication>
#include <QPushButton>

#include <cstdlib>
#include <iostream>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QWidget form;
  form.setObjectName("Commande");
  form.setWindowTitle("Commande");
  auto* const button = new QPushButton("&Valider", &form);
  button->setObjectName("BtnValider");
  button->setToolTip("Envoyer la commande");

  showInEnglish(form);

  const bool isEnglish =
      form.windowTitle() == "Order" && button->text() == "&Accept" && button->toolTip() == "Send the order";
  std::cout << (isEnglish ? "the README's form is in English\n" : "wrong text\n");
  return isEnglish ? EXIT_SUCCESS : EXIT_FAILURE;
}
