// SPDX-FileCopyrightText: The KOBTraduction authors
#include "MembersPage.h"

#include "FormParts.h"
#include "Icons.h"
#include "Messages.h"
#include "Tables.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>

namespace kob::demo {

using namespace Qt::StringLiterals;

namespace {

enum Column { Number, Name, Street, Phone, FeeState, Columns };

}  // namespace

MembersPage::MembersPage(const std::vector<Member>& members) : members_(members) {
  setObjectName(u"pageAdherents"_s);
  table_ = rowTable("tabAdherents", Columns, Street);
  table_->setRowCount(static_cast<int>(members.size()));
  auto* const page = new QHBoxLayout(this);
  page->setContentsMargins(12, 12, 12, 12);
  page->setSpacing(14);
  page->addWidget(table_, 1);
  page->addWidget(sheet());
  connect(table_, &QTableWidget::itemSelectionChanged, this, &MembersPage::showSheet);
}

QWidget* MembersPage::sheet() {
  auto* const box = part<QGroupBox>("grpAdherent", u"Adhérent"_s);
  box->setFixedWidth(300);
  name_ = dataLabel("lblNomAdherent");
  QFont bold = name_->font();
  bold.setPixelSize(16);
  bold.setBold(true);
  name_->setFont(bold);

  auto* const frame = part<QFrame>("fraCotisation");
  frame->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  auto* const rows = new QVBoxLayout(frame);
  rows->addWidget(
      part<QLabel>("lblCotisation", u"Cotisation annuelle"_s, u"Quinze euros, à régler en janvier"_s));
  const QString states[] = {u"À jour"_s, u"À renouveler"_s, u"Offerte (bénévole)"_s};
  for (int i = 0; i < 3; ++i) {
    fees_.push_back(member<QRadioButton>("optCotisation", i, states[i]));
    rows->addWidget(fees_.back());
  }

  auto* const advice = part<QLabel>(
      "lblConseil",
      u"Sans cotisation à jour, un adhérent peut rendre un outil, mais ne peut pas en emprunter un autre."_s);
  advice->setWordWrap(true);
  auto* const create = part<QPushButton>("cmdNouvelAdherent", u"Nouvel adhérent…"_s,
                                         u"Inscrire une personne et encaisser sa cotisation"_s);
  create->setIcon(icon(Drawing::Member));
  auto* const edit = part<QPushButton>("cmdFicheAdherent", u"Modifier la fiche…"_s);

  auto* const column = new QVBoxLayout(box);
  column->setSpacing(10);
  column->addWidget(name_);
  column->addWidget(frame);
  column->addWidget(advice);
  column->addStretch(1);
  column->addWidget(edit);
  column->addWidget(create);
  connect(create, &QPushButton::clicked, this, [this] { emit sheetRequested(-1); });
  connect(edit, &QPushButton::clicked, this, [this] { emit sheetRequested(chosenMember()); });
  return box;
}

void MembersPage::showMessages(const Messages& messages) {
  table_->setHorizontalHeaderLabels({messages("ColNumero"), messages("ColNom"), messages("ColAdresse"),
                                     messages("ColTelephone"), messages("ColCotisation")});
  for (int row = 0; row < table_->rowCount(); ++row) {
    const Member& person = members_[static_cast<std::size_t>(row)];
    const QByteArray fee = "Cotisation" + QByteArray::number(static_cast<int>(person.fee));
    setRow(*table_, row,
           {person.number, person.name, person.street, person.phone, messages(fee.constData())});
  }
}

void MembersPage::chooseMember(int row) {
  table_->selectRow(row);
}

int MembersPage::chosenMember() const {
  return table_->currentRow();
}

void MembersPage::showSheet() {
  const int row = chosenMember();
  if (row < 0) {
    return;
  }
  const Member& person = members_[static_cast<std::size_t>(row)];
  name_->setText(person.name.section(u", "_s, 1) + u' ' + person.name.section(u", "_s, 0, 0));
  fees_[static_cast<std::size_t>(person.fee)]->setChecked(true);
}

}  // namespace kob::demo
