// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LoanDialog.h"

#include "FormParts.h"
#include "Icons.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QPushButton>
#include <QRadioButton>

namespace kob::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* dateFormat = "dd/MM/yyyy";
constexpr int durationDays[] = {2, 7, 30};

template <class Widget>
Widget* at(const QRect& place, Widget* widget) {
  widget->setGeometry(place);
  return widget;
}

}  // namespace

LoanDialog::LoanDialog(const SampleData& sample, QWidget* parent) : QDialog(parent), tools_(sample.tools) {
  setObjectName(u"DlgPret"_s);
  setWindowTitle(u"Nouveau prêt"_s);
  resize(430, 436);
  at({16, 12, 398, 36},
     part<QLabel>("lblIntro", u"Choisissez l’adhérent et l’outil, puis convenez de la date de retour."_s, {},
                  this))
      ->setWordWrap(true);
  makeFields(sample);
  makeDuration();
  makeButtons();
}

void LoanDialog::makeFields(const SampleData& sample) {
  constexpr int labelLeft = 16;
  constexpr int labelWidth = 102;
  constexpr int fieldLeft = 126;
  constexpr int fieldWidth = 288;
  const QRect label(labelLeft, 60, labelWidth, 28);
  const QRect field(fieldLeft, 60, fieldWidth, 28);
  at(label, part<QLabel>("lblAdherent", u"Adhérent"_s, {}, this));
  // A field without a text of its own is recorded because of its tool tip, and only what is recorded can be
  // moved.
  members_ = at(field, part<QComboBox>("cboAdherent", this));
  members_->setToolTip(u"La personne qui emporte l’outil"_s);
  for (const Member& person : sample.members) {
    members_->addItem(person.name);
  }
  at(label.translated(0, 36), part<QLabel>("lblOutil", u"Outil"_s, {}, this));
  toolBox_ = at(field.translated(0, 36), part<QComboBox>("cboOutil", this));
  toolBox_->setToolTip(u"Numéro d’inventaire et nom de l’outil"_s);
  for (const Tool& tool : tools_) {
    toolBox_->addItem(tool.number + u" – "_s + tool.name);
  }
  at(label.translated(0, 72), part<QLabel>("lblSortie", u"Sorti le"_s, {}, this));
  lent_ = at(QRect(fieldLeft, 132, 120, 28), part<QDateEdit>("datSortie", this));
  at(label.translated(0, 108), part<QLabel>("lblRetour", u"À rendre le"_s, {}, this));
  due_ = at(QRect(fieldLeft, 168, 120, 28), part<QDateEdit>("datRetour", this));
  lent_->setToolTip(u"Le jour où l’outil quitte l’atelier"_s);
  due_->setToolTip(u"Suit la durée choisie plus bas"_s);
  for (QDateEdit* const date : {lent_, due_}) {
    date->setDisplayFormat(QLatin1String(dateFormat));
    date->setCalendarPopup(true);
    date->setDate(today());
  }
  at(label.translated(0, 144),
     part<QLabel>("lblCaution", u"Caution versée"_s, u"Rendue au retour de l’outil en bon état"_s, this));
  deposit_ =
      at(QRect(fieldLeft, 204, 140, 28), part<QLineEdit>("txtCaution", u"Montant en euros"_s, {}, this));
  at(label.translated(0, 180), part<QLabel>("lblEtat", u"État au départ"_s, {}, this));
  at(field.translated(0, 180), part<QLineEdit>("txtEtat", u"Rayures, pièces manquantes…"_s,
                                               u"Ce qui ne sera pas reproché au retour"_s, this));
}

void LoanDialog::makeDuration() {
  auto* const box = at({16, 282, 398, 62}, part<QGroupBox>("grpDuree", u"Durée du prêt"_s, {}, this));
  durations_ = new QButtonGroup(this);
  const QString names[] = {u"Week-end"_s, u"Une semaine"_s, u"Un mois"_s};
  const QRect places[] = {{14, 28, 104, 24}, {140, 28, 116, 24}, {286, 28, 84, 24}};
  for (int i = 0; i < 3; ++i) {
    durations_->addButton(at(places[i], member<QRadioButton>("optDuree", i, names[i], box)), i);
  }
  connect(durations_, &QButtonGroup::idClicked, this, &LoanDialog::chooseDuration);
  at({16, 352, 300, 24}, part<QCheckBox>("chkRappel", u"Rappeler la date à l’emprunteur la veille"_s,
                                         u"Par un courriel, si l’adhérent en a donné un"_s, this))
      ->setChecked(true);
}

void LoanDialog::makeButtons() {
  auto* const print =
      at({16, 390, 136, 30}, part<QPushButton>("cmdFiche", u"Imprimer la fiche"_s,
                                               u"Un exemplaire à signer, un à emporter"_s, this));
  auto* const cancel = at({218, 390, 94, 30}, part<QPushButton>("cmdAnnuler", u"Annuler"_s, {}, this));
  auto* const save = at({318, 390, 96, 30}, part<QPushButton>("cmdEnregistrer", u"Enregistrer"_s, {}, this));
  print->setAutoDefault(false);
  save->setDefault(true);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(save, &QPushButton::clicked, this, &QDialog::accept);
}

void LoanDialog::chooseTool(int tool) {
  toolBox_->setCurrentIndex(tool);
  if (tool >= 0) {
    deposit_->setText(QString::number(tools_[static_cast<std::size_t>(tool)].deposit));
  }
}

void LoanDialog::chooseDuration(int duration) {
  durations_->button(duration)->setChecked(true);
  lent_->setDate(today());
  due_->setDate(today().addDays(durationDays[duration]));
}

int LoanDialog::tool() const {
  return toolBox_->currentIndex();
}

QString LoanDialog::borrower() const {
  const QString name = members_->currentText();
  return name.section(u", "_s, 1) + u' ' + name.section(u", "_s, 0, 0);
}

QDate LoanDialog::due() const {
  return due_->date();
}

}  // namespace kob::demo
