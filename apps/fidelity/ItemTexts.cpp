// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ItemTexts.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QFontComboBox>
#include <QListWidget>
#include <QTableWidget>
#include <QTreeWidget>

#include <array>
#include <utility>

namespace kob::fidelity {

namespace {

constexpr std::array<std::pair<int, const char*>, 4> roles = {{{Qt::DisplayRole, ""},
                                                               {Qt::ToolTipRole, " tool tip"},
                                                               {Qt::StatusTipRole, " status tip"},
                                                               {Qt::WhatsThisRole, " what's this"}}};

void readItems(const QAbstractItemModel& model, const QModelIndex& parent, const QString& above,
               std::vector<ItemText>& texts) {
  for (int row = 0; row < model.rowCount(parent); ++row) {
    const QString place = above + QString::number(row);
    for (int column = 0; column < model.columnCount(parent); ++column) {
      const QModelIndex index = model.index(row, column, parent);
      for (const auto& [role, suffix] : roles) {
        if (const QString value = index.data(role).toString(); !value.isEmpty()) {
          texts.push_back(
              {QStringLiteral("item %1 column %2%3").arg(place).arg(column).arg(QLatin1String(suffix)), value,
               false});
        }
      }
    }
    readItems(model, model.index(row, 0, parent), place + QLatin1Char('.'), texts);
  }
}

void readHeaders(const QAbstractItemModel& model, Qt::Orientation orientation, std::vector<ItemText>& texts) {
  const bool isRow = orientation == Qt::Vertical;
  for (int section = 0; section < (isRow ? model.rowCount() : model.columnCount()); ++section) {
    for (const auto& [role, suffix] : roles) {
      if (const QString value = model.headerData(section, orientation, role).toString(); !value.isEmpty()) {
        texts.push_back({QStringLiteral("%1 header %2%3")
                             .arg(isRow ? QStringLiteral("row") : QStringLiteral("column"))
                             .arg(section)
                             .arg(QLatin1String(suffix)),
                         value, true});
      }
    }
  }
}

}  // namespace

std::vector<ItemText> readItemTexts(const QObject& object) {
  const QAbstractItemModel* model = nullptr;
  bool hasHeaders = true;
  if (const auto* list = qobject_cast<const QListWidget*>(&object)) {
    model = list->model();
  } else if (const auto* tree = qobject_cast<const QTreeWidget*>(&object)) {
    model = tree->model();
  } else if (const auto* table = qobject_cast<const QTableWidget*>(&object)) {
    model = table->model();
  } else if (const auto* combo = qobject_cast<const QComboBox*>(&object);
             combo != nullptr && qobject_cast<const QFontComboBox*>(&object) == nullptr) {
    model = combo->model();
    hasHeaders = false;
  }
  std::vector<ItemText> texts;
  if (model == nullptr) {
    return texts;
  }
  readItems(*model, {}, {}, texts);
  if (hasHeaders) {
    readHeaders(*model, Qt::Horizontal, texts);
    readHeaders(*model, Qt::Vertical, texts);
  }
  return texts;
}

}  // namespace kob::fidelity
