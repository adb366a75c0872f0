// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QHeaderView>
#include <QStringList>
#include <QTableWidget>

namespace kob::demo {

/// A list of rows to choose from; the column `wide` takes the room that the others leave.
inline QTableWidget* rowTable(const char* name, int columns, int wide) {
  auto* const table = new QTableWidget(0, columns);
  table->setObjectName(QLatin1String(name));
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setSelectionMode(QAbstractItemView::SingleSelection);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setAlternatingRowColors(true);
  table->setShowGrid(false);
  table->verticalHeader()->hide();
  table->verticalHeader()->setDefaultSectionSize(27);
  table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table->horizontalHeader()->setSectionResizeMode(wide, QHeaderView::Stretch);
  table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  table->horizontalHeader()->setHighlightSections(false);
  // Only an item without a border has the padding on its left, too.
  table->setStyleSheet(
      QStringLiteral("QTableView::item { padding: 0 8px; border: none; }"
                     "QTableView::item:selected { background: #1f6f68; color: white; }"
                     "QHeaderView::section { padding: 5px 11px; border: none; font-weight: bold;"
                     " border-bottom: 1px solid #c9c6bd; background: #efece5; }"));
  return table;
}

inline void setRow(QTableWidget& table, int row, const QStringList& texts) {
  for (int column = 0; column < texts.size(); ++column) {
    if (QTableWidgetItem* const item = table.item(row, column)) {
      item->setText(texts[column]);
    } else {
      table.setItem(row, column, new QTableWidgetItem(texts[column]));
    }
  }
}

}  // namespace kob::demo
