// SPDX-FileCopyrightText: The KOBTraduction authors
// A small form in two languages, by the switcher.
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraductionqt/KOBTraductionQt.h>
#include <kobtraductionqt/LanguageSwitcher.h>
#include <kobtraductionqt/QtMessageBoxes.h>

#include <QApplication>
#include <QLabel>

#include <cstdlib>
#include <iostream>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const kob::qt::QtMessageBoxes boxes;

  QWidget form;
  form.setObjectName("Accueil");
  form.setWindowTitle("Accueil");
  auto* const label = new QLabel("Bonjour", &form);
  label->setObjectName("Salut");

  kob::KOBModeleTraduction model;
  model.UpdateWithForm(kob::qt::hostForm(&form));
  model.GetCell(u"Accueil\\Salut")->ColTraduction()->Item(1)->ChangeTraduction(u"Good morning", 2);

  kob::qt::LanguageSwitcher switcher(model);
  switcher.addForm(&form);
  switcher.setLanguage(2);
  const bool isEnglish = label->text() == "Good morning" && form.windowTitle() == "Accueil";
  switcher.setLanguage(1);
  const bool isFrench = label->text() == "Bonjour";

  std::cout << (isEnglish && isFrench ? "the form changes its language\n" : "wrong text\n");
  return isEnglish && isFrench ? EXIT_SUCCESS : EXIT_FAILURE;
}
