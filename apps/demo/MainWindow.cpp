// SPDX-FileCopyrightText: The KOBTraduction authors
#include "MainWindow.h"

#include "FormParts.h"
#include "Icons.h"
#include "Languages.h"
#include "LoansPage.h"
#include "MembersPage.h"
#include "Messages.h"
#include "ToolsPage.h"

#include <QActionGroup>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kob::demo {

using namespace Qt::StringLiterals;

MainWindow::MainWindow(const SampleData& sample) : data_(sample) {
  setObjectName(u"FrmPrincipale"_s);
  setWindowTitle(u"Outilthèque – gestion des prêts"_s);
  resize(1000, 620);
  makePages(sample);
  makeFileMenu();
  makeLoanMenu();
  makeToolBar();
  makeViewMenu();
  makeLanguageMenu();
  auto* const help = part<QMenu>("mnuAide", this);
  help->setTitle(u"A&ide"_s);
  menuBar()->addMenu(help);
  command(help, "mnuAPropos", u"À &propos de l’Outilthèque"_s, &MainWindow::aboutRequested);
  makeStatus();
  connect(tools_, &ToolsPage::lendRequested, this, [this] { emit lendRequested(1); });
  connect(tools_, &ToolsPage::returnRequested, this, &MainWindow::returnRequested);
}

QAction* MainWindow::command(QWidget* menu, const char* name, const QString& text,
                             void (MainWindow::*signal)(), const QString& toolTip) {
  auto* const action = new QAction(text, this);
  action->setObjectName(QLatin1String(name));
  if (!toolTip.isEmpty()) {
    action->setToolTip(toolTip);
  }
  menu->addAction(action);
  connect(action, &QAction::triggered, this, [this, signal] { emit(this->*signal)(); });
  return action;
}

void MainWindow::makePages(const SampleData& sample) {
  tabs_ = part<QTabWidget>("ongPrincipal");
  tools_ = new ToolsPage(sample.tools);
  members_ = new MembersPage(sample.members);
  loans_ = new LoansPage(sample.tools);
  tabs_->addTab(tools_, u"Outils"_s);
  tabs_->addTab(members_, u"Adhérents"_s);
  tabs_->addTab(loans_, u"Prêts en cours"_s);
  auto* const centre = part<QWidget>("zoneCentrale");
  auto* const rows = new QVBoxLayout(centre);
  rows->setContentsMargins(10, 10, 10, 4);
  rows->addWidget(tabs_);
  setCentralWidget(centre);
}

void MainWindow::makeFileMenu() {
  auto* const menu = part<QMenu>("mnuFichier", this);
  menu->setTitle(u"&Fichier"_s);
  menuBar()->addMenu(menu);
  command(menu, "mnuNouvelAdherent", u"&Nouvel adhérent…"_s, &MainWindow::memberRequested)
      ->setShortcut(QKeySequence(u"Ctrl+N"_s));
  command(menu, "mnuImprimerListe", u"&Imprimer la liste des outils"_s, &MainWindow::printRequested)
      ->setShortcut(QKeySequence(u"Ctrl+P"_s));
  menu->addSeparator();
  auto* const quit = new QAction(u"&Quitter"_s, this);
  quit->setObjectName(u"mnuQuitter"_s);
  quit->setShortcut(QKeySequence(u"Ctrl+Q"_s));
  menu->addAction(quit);
  connect(quit, &QAction::triggered, this, &QWidget::close);
}

void MainWindow::makeLoanMenu() {
  auto* const menu = part<QMenu>("mnuPrets", this);
  menu->setTitle(u"&Prêts"_s);
  menuBar()->addMenu(menu);
  auto* const lend = new QAction(u"&Prêter un outil…"_s, this);
  lend->setObjectName(u"mnuPreter"_s);
  menu->addAction(lend);
  connect(lend, &QAction::triggered, this, [this] { emit lendRequested(1); });
  command(menu, "mnuRetour", u"&Retour"_s, &MainWindow::returnRequested,
          u"Enregistrer le retour de l’outil choisi"_s)
      ->setIcon(icon(Drawing::Return));
  command(menu, "mnuProlonger", u"Pr&olonger"_s, &MainWindow::extensionRequested,
          u"Ajouter une semaine au prêt de l’outil choisi"_s)
      ->setIcon(icon(Drawing::Extend));
  menu->addSeparator();
  command(menu, "mnuRelancer", u"Relancer les re&tardataires"_s, &MainWindow::remindersRequested);
}

void MainWindow::makeViewMenu() {
  auto* const menu = part<QMenu>("mnuAffichage", this);
  menu->setTitle(u"&Affichage"_s);
  menuBar()->addMenu(menu);
  auto* const available = new QAction(u"Outils &disponibles seulement"_s, this);
  available->setObjectName(u"mnuDisponibles"_s);
  auto* const shown = new QAction(u"&Barre d’outils"_s, this);
  shown->setObjectName(u"mnuBarre"_s);
  for (QAction* const action : {available, shown}) {
    action->setCheckable(true);
    menu->addAction(action);
  }
  shown->setChecked(true);
  connect(available, &QAction::toggled, tools_, &ToolsPage::setAvailableOnly);
  connect(shown, &QAction::toggled, bar_, &QWidget::setVisible);
  menu->addSeparator();
  command(menu, "mnuActualiser", u"A&ctualiser"_s, &MainWindow::refreshRequested)
      ->setShortcut(QKeySequence(u"F5"_s));
  command(menu, "mnuTraduire", u"&Traduire…"_s, &MainWindow::translationRequested)
      ->setShortcut(QKeySequence(u"Ctrl+E"_s));
}

void MainWindow::makeLanguageMenu() {
  auto* const menu = part<QMenu>("mnuLangue", this);
  menu->setTitle(u"&Langue"_s);
  menuBar()->addMenu(menu);
  languageActions_ = new QActionGroup(this);
  for (const Language& language : languages) {
    auto* const action = new QAction(QString::fromUtf16(language.ownName), this);
    action->setObjectName(u"mnuLangueChoix"_s);
    action->setProperty("Index", language.number);
    // Everyone finds the own language under its own name.
    setTag(*action, notTranslated);
    action->setCheckable(true);
    action->setData(language.number);
    languageActions_->addAction(action);
    menu->addAction(action);
  }
  connect(languageActions_, &QActionGroup::triggered, this,
          [this](const QAction* action) { emit languageChosen(action->data().toInt()); });
}

void MainWindow::makeToolBar() {
  bar_ = part<QToolBar>("tbPrincipale", this);
  bar_->setWindowTitle(u"Barre d’outils"_s);
  bar_->setMovable(false);
  bar_->setContentsMargins(6, 3, 6, 3);
  bar_->layout()->setSpacing(6);
  bar_->setIconSize({20, 20});
  bar_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  addToolBar(bar_);

  const auto button = [this](const char* name, const QString& text, const QString& toolTip, Drawing drawing,
                             QMenu* menu) {
    auto* const made = part<QToolButton>(name, text, toolTip);
    made->setIcon(icon(drawing));
    made->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    made->setPopupMode(QToolButton::MenuButtonPopup);
    menu->setParent(made, menu->windowFlags());
    made->setMenu(menu);
    bar_->addWidget(made);
    return made;
  };
  const auto entry = [](QMenu* menu, const char* name, const QString& text) {
    auto* const action = new QAction(text, menu);
    action->setObjectName(QLatin1String(name));
    menu->addAction(action);
    return action;
  };

  auto* const lendMenu = part<QMenu>("mnuDurees");
  const QString durations[] = {u"Pour un &week-end"_s, u"Pour une &semaine"_s,
                               u"Pour un &chantier (un mois)"_s};
  const char* const durationNames[] = {"PretWeekEnd", "PretSemaine", "PretChantier"};
  for (int i = 0; i < 3; ++i) {
    connect(entry(lendMenu, durationNames[i], durations[i]), &QAction::triggered, this,
            [this, i] { emit lendRequested(i); });
  }
  connect(button("btnPreter", u"Prêter"_s, u"Prêter l’outil choisi"_s, Drawing::Lend, lendMenu),
          &QToolButton::clicked, this, [this] { emit lendRequested(1); });
  bar_->addAction(findChild<QAction*>(u"mnuRetour"_s));
  bar_->addAction(findChild<QAction*>(u"mnuProlonger"_s));
  bar_->addSeparator();
  auto* const printMenu = part<QMenu>("mnuImpressions");
  const QString prints[] = {u"&Liste des outils"_s, u"&Fiche de prêt"_s, u"É&tiquettes d’inventaire"_s};
  const char* const printNames[] = {"ImprimerListe", "ImprimerFiche", "ImprimerEtiquettes"};
  for (int i = 0; i < 3; ++i) {
    connect(entry(printMenu, printNames[i], prints[i]), &QAction::triggered, this,
            &MainWindow::printRequested);
  }
  connect(
      button("btnImprimer", u"Imprimer"_s, u"Imprimer une liste ou une fiche"_s, Drawing::Print, printMenu),
      &QToolButton::clicked, this, &MainWindow::printRequested);
}

// Once a marked control was met, its mark holds for the tab captions that are recorded later; so the marked
// ones stand behind the tabs.
void MainWindow::makeStatus() {
  statusBar()->setObjectName(u"etat"_s);
  summary_ = dataLabel("lblResume");
  summary_->setIndent(8);
  statusBar()->addWidget(summary_, 1);
  // The tool tip is a place on the disk.
  auto* const backup = part<QLabel>("lblSauvegarde", u"Sauvegarde à jour"_s, u"sauvegardes/2024-05-15.zip"_s);
  setTag(*backup, "[C]");
  statusBar()->addPermanentWidget(backup);
  // The caption is a name.
  auto* const association =
      part<QLabel>("lblAssociation", u"L’Établi du canal"_s, u"Ouvert le mercredi soir et le samedi matin"_s);
  setTag(*association, "[T]");
  association->setIndent(16);
  QFont bold = association->font();
  bold.setBold(true);
  association->setFont(bold);
  statusBar()->addPermanentWidget(association);
}

void MainWindow::showMessages(const Messages& messages) {
  tools_->showMessages(messages);
  members_->showMessages(messages);
  loans_->showMessages(messages);
  const auto out =
      std::count_if(data_.tools.begin(), data_.tools.end(), [](const Tool& tool) { return tool.isLent(); });
  summary_->setText(messages("Resume").arg(data_.tools.size()).arg(out));
}

void MainWindow::checkLanguage(std::int32_t number) {
  languageActions_->actions().at(number - 1)->setChecked(true);
}

void MainWindow::showPage(int page) {
  tabs_->setCurrentIndex(page);
}

void MainWindow::tell(const QString& message) {
  statusBar()->showMessage(message, 6000);
}

}  // namespace kob::demo
