// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForms.h"

#include <QAction>
#include <QMenuBar>

namespace kob::qt::live {

QLabel* addLabel(QWidget& parent, const char* name, const char* text) {
  auto* const label = add<QLabel>(parent, name);
  label->setText(QString::fromUtf8(text));
  return label;
}

QPushButton* addButton(QWidget& parent, const char* name, const char* text, const char* toolTip) {
  auto* const button = add<QPushButton>(parent, name);
  button->setText(QString::fromUtf8(text));
  button->setToolTip(QString::fromUtf8(toolTip));
  return button;
}

QGroupBox* addFrame(QWidget& parent, const char* name, const char* title) {
  auto* const frame = add<QGroupBox>(parent, name);
  frame->setTitle(QString::fromUtf8(title));
  return frame;
}

ClientDialog::ClientDialog()
    : lblNom(addLabel(*this, "lblNom", "Nom")),
      cadre(addFrame(*this, "cadre", "Adresse")),
      lblRue(addLabel(*cadre, "lblRue", "Rue")),
      btnOk(addButton(*this, "btnOk", "OK", "Valide")) {
  setObjectName(QStringLiteral("FrmClients"));
  setWindowTitle(QStringLiteral("Clients"));
  resize(400, 300);
  lblNom->setGeometry(10, 10, 100, 20);
  cadre->setGeometry(10, 40, 300, 200);
  lblRue->setGeometry(20, 30, 80, 20);
  btnOk->setGeometry(301, 260, 75, 30);
}

MainForm::MainForm()
    : barre(add<QToolBar>(*this, "barre")),
      btnOuvrir(add<QToolButton>(*barre, "btnOuvrir")),
      mnuFichier(menuBar()->addMenu(QStringLiteral("Fichier"))) {
  setObjectName(QStringLiteral("FenPrincipale"));
  setWindowTitle(QStringLiteral("Principale"));
  addToolBar(barre);
  btnOuvrir->setText(QStringLiteral("Ouvrir"));
  btnOuvrir->setToolTip(QStringLiteral("Ouvre un dossier"));
  auto* const menu = new QMenu(btnOuvrir);
  actRecent = menu->addAction(QStringLiteral("Récents"));
  actRecent->setObjectName(QStringLiteral("actRecent"));
  actNouveau = menu->addAction(QStringLiteral("Nouveau"));
  actNouveau->setObjectName(QStringLiteral("actNouveau"));
  btnOuvrir->setMenu(menu);
  barre->addWidget(btnOuvrir);
  mnuFichier->setObjectName(QStringLiteral("mnuFichier"));
  actQuitter = mnuFichier->addAction(QStringLiteral("Quitter"));
  actQuitter->setObjectName(QStringLiteral("actQuitter"));
}

TabDialog::TabDialog() : onglets(add<QTabWidget>(*this, "onglets")) {
  setObjectName(QStringLiteral("FrmOnglets"));
  setWindowTitle(QStringLiteral("Onglets"));
  resize(400, 300);
  onglets->setGeometry(10, 10, 380, 280);
  const QString titles[] = {QStringLiteral("Un"), QStringLiteral("Deux"), QStringLiteral("Trois")};
  for (const QString& title : titles) {
    auto* const page = new QWidget;
    page->setObjectName(QStringLiteral("page") + title);
    onglets->addTab(page, title);
  }
  lblPage = addLabel(*onglets->widget(0), "lblPage", "Page");
}

std::string printTexts(const QWidget& form) {
  QString out = form.windowTitle() + u'\n';
  for (const QObject* object : form.findChildren<QObject*>()) {
    out += object->objectName();
    for (const char* const property : {"text", "title", "windowTitle", "toolTip", "placeholderText"}) {
      out += u'|' + object->property(property).toString();
    }
    if (const auto* const tabs = qobject_cast<const QTabWidget*>(object)) {
      for (int i = 0; i < tabs->count(); ++i) {
        out += u'|' + tabs->tabText(i);
      }
    }
    out += u'\n';
  }
  return out.toStdString();
}

}  // namespace kob::qt::live
