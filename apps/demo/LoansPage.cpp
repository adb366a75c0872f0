// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LoansPage.h"

#include "FormParts.h"
#include "Icons.h"
#include "Messages.h"
#include "Tables.h"

#include <QHBoxLayout>
#include <QPushButton>

#include <algorithm>

namespace kob::demo {

using namespace Qt::StringLiterals;

namespace {

enum Column { ToolName, Borrower, Lent, Due, Late, Columns };

constexpr const char* dateFormat = "dd/MM/yyyy";

}  // namespace

LoansPage::LoansPage(const std::vector<Tool>& tools) : tools_(tools) {
  setObjectName(u"pagePrets"_s);
  table_ = rowTable("tabPrets", Columns, ToolName);
  auto* const page = new QVBoxLayout(this);
  page->setContentsMargins(12, 12, 12, 12);
  page->setSpacing(10);
  page->addWidget(table_, 1);
  page->addWidget(lateBox());
}

QWidget* LoansPage::lateBox() {
  auto* const box = part<QGroupBox>("grpRetards", u"Retards"_s);
  auto* const advice = part<QLabel>(
      "lblRetards",
      u"Un outil gardé trop longtemps prive un voisin de son chantier. Le premier rappel part trois jours après la date prévue, le second une semaine plus tard."_s);
  advice->setWordWrap(true);
  auto* const remind =
      part<QPushButton>("cmdRappel", u"Envoyer un rappel"_s, u"Écrire à l’emprunteur de la ligne choisie"_s);
  auto* const extend = part<QPushButton>("cmdProlonger", u"Prolonger d’une semaine"_s,
                                         u"Possible si personne n’a réservé l’outil"_s);
  extend->setIcon(icon(Drawing::Extend));
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(remind);
  buttons->addWidget(extend);
  auto* const rows = new QVBoxLayout(box);
  rows->addWidget(advice);
  rows->addLayout(buttons);
  connect(remind, &QPushButton::clicked, this, [this] { emit reminderRequested(chosenTool()); });
  connect(extend, &QPushButton::clicked, this, [this] { emit extensionRequested(chosenTool()); });
  return box;
}

void LoansPage::showMessages(const Messages& messages) {
  rows_.clear();
  for (std::size_t i = 0; i < tools_.size(); ++i) {
    if (tools_[i].isLent()) {
      rows_.push_back(static_cast<int>(i));
    }
  }
  std::sort(rows_.begin(), rows_.end(), [this](int a, int b) {
    return tools_[static_cast<std::size_t>(a)].due < tools_[static_cast<std::size_t>(b)].due;
  });
  table_->setHorizontalHeaderLabels({messages("ColOutil"), messages("ColEmprunteur"), messages("ColSortie"),
                                     messages("ColRetour"), messages("ColRetard")});
  table_->setRowCount(static_cast<int>(rows_.size()));
  for (int row = 0; row < table_->rowCount(); ++row) {
    const Tool& tool = tools_[static_cast<std::size_t>(rows_[static_cast<std::size_t>(row)])];
    const qint64 late = tool.due.daysTo(today());
    setRow(*table_, row,
           {tool.name, tool.borrower, tool.lent.toString(QLatin1String(dateFormat)),
            tool.due.toString(QLatin1String(dateFormat)),
            late > 0 ? messages("RetardJours").arg(late) : QString()});
    table_->item(row, Late)->setForeground(QColor(176, 58, 30));
  }
  if (table_->currentRow() < 0 && table_->rowCount() > 0) {
    table_->selectRow(0);
  }
}

int LoansPage::chosenTool() const {
  const int row = table_->currentRow();
  return row < 0 ? -1 : rows_[static_cast<std::size_t>(row)];
}

}  // namespace kob::demo
