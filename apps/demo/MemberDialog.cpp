// SPDX-FileCopyrightText: The KOBTraduction authors
#include "MemberDialog.h"

#include "FormParts.h"
#include "SampleData.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>

namespace kob::demo {

using namespace Qt::StringLiterals;

MemberDialog::MemberDialog(QWidget* parent) : QDialog(parent) {
  setObjectName(u"DlgAdherent"_s);
  setWindowTitle(u"Fiche d’adhérent"_s);
  auto* const cancel = part<QPushButton>("cmdAnnuler", u"Annuler"_s);
  auto* const save = part<QPushButton>("cmdValider", u"Valider"_s, u"Enregistrer la fiche et la fermer"_s);
  save->setDefault(true);
  auto* const remarks = part<QPlainTextEdit>("txtRemarques", u"Disponibilités, savoir-faire à partager…"_s);
  remarks->setFixedHeight(64);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(cancel);
  buttons->addWidget(save);
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(14, 14, 14, 14);
  rows->setSpacing(10);
  rows->addWidget(identity());
  rows->addWidget(contact());
  rows->addWidget(remarks);
  rows->addStretch(1);
  rows->addLayout(buttons);
  resize(460, 440);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(save, &QPushButton::clicked, this, &QDialog::accept);
}

QWidget* MemberDialog::identity() {
  auto* const box = part<QGroupBox>("grpIdentite", u"Identité"_s);
  auto* const rows = new QFormLayout(box);
  rows->setHorizontalSpacing(14);
  rows->addRow(part<QLabel>("lblNom", u"Nom"_s), name_ = part<QLineEdit>("txtNom"));
  rows->addRow(part<QLabel>("lblPrenom", u"Prénom"_s), firstName_ = part<QLineEdit>("txtPrenom"));
  rows->addRow(part<QLabel>("lblRue", u"Numéro et rue"_s), street_ = part<QLineEdit>("txtRue"));
  rows->addRow(part<QLabel>("lblVille", u"Code postal et ville"_s), town_ = part<QLineEdit>("txtVille"));
  return box;
}

QWidget* MemberDialog::contact() {
  auto* const box = part<QGroupBox>("grpContact", u"Contact"_s);
  auto* const rows = new QFormLayout(box);
  rows->setHorizontalSpacing(14);
  rows->addRow(part<QLabel>("lblTelephone", u"Téléphone"_s), phone_ = part<QLineEdit>("txtTelephone"));
  rows->addRow(part<QLabel>("lblCourriel", u"Courriel"_s), mail_ = part<QLineEdit>("txtCourriel"));
  rows->addRow(member<QCheckBox>("chkEnvoi", 0, u"Recevoir la lettre d’information"_s));
  rows->addRow(member<QCheckBox>("chkEnvoi", 1, u"Être prévenu des ateliers de réparation"_s));
  return box;
}

void MemberDialog::showMember(const Member& person) {
  name_->setText(person.name.section(u", "_s, 0, 0));
  firstName_->setText(person.name.section(u", "_s, 1));
  street_->setText(person.street);
  town_->setText(person.town);
  phone_->setText(person.phone);
  mail_->setText(person.mail);
}

void MemberDialog::clear() {
  for (QLineEdit* const field : {name_, firstName_, street_, town_, phone_, mail_}) {
    field->clear();
  }
}

}  // namespace kob::demo
