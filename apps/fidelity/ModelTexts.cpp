// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelTexts.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <optional>

namespace kob::fidelity {

namespace {

using qt::toQString;

std::optional<QString> translation(const UiKeys& keys, const TsCatalog& catalog,
                                   const KOBCellTraduction& cell, QStringList path, UiKeys::Entry entry,
                                   const QString& reference) {
  // A context cell holds texts of the control above it.
  if (cell.Contexte() && path.size() > 1) {
    path.removeLast();
  }
  if (const UiText* text = keys.find(path, entry, reference)) {
    return text->translatable ? catalog.translate(text->key) : std::nullopt;
  }
  const QString context = keys.toolkitContext(path);
  return context.isEmpty() ? std::nullopt : catalog.translate({context, reference, {}, {}});
}

void fill(const KOBCellTraduction& cell, const QStringList& path, const UiKeys& keys,
          const TsCatalog& catalog, std::int32_t langue) {
  if (cell.ColTraduction() != nullptr) {
    for (const std::shared_ptr<KOBTraductionObj>& entry : *cell.ColTraduction()) {
      const bool isToolTip = equalUpper(entry->nom(), u"ToolTip");
      const QString reference = toQString(entry->ColTraduction()->Item(1));
      const std::optional<QString> text = translation(
          keys, catalog, cell, path, isToolTip ? UiKeys::Entry::ToolTip : UiKeys::Entry::Caption, reference);
      if (text) {
        entry->ChangeTraduction(qt::toText(*text), langue);
      }
    }
  }
  if (cell.ColCell() == nullptr) {
    return;
  }
  for (const std::shared_ptr<KOBCellTraduction>& child : *cell.ColCell()) {
    fill(*child, path + QStringList{toQString(child->nom())}, keys, catalog, langue);
  }
}

void print(const KOBCellTraduction& cell, int depth, QString& out) {
  out += QStringLiteral("%1%2 [%3] cell %4 leaf %5 context %6 left %7 width %8")
             .arg(QString(depth * 2, QLatin1Char(' ')), toQString(cell.nom()), toQString(cell.Alias()))
             .arg(cell.TypeCell())
             .arg(cell.TypeFeuille())
             .arg(static_cast<int>(cell.Contexte()))
             .arg(cell.m_left())
             .arg(cell.m_width());
  if (cell.ColTraduction() != nullptr) {
    for (const std::shared_ptr<KOBTraductionObj>& entry : *cell.ColTraduction()) {
      out += QLatin1Char(' ') + toQString(entry->nom()) + QLatin1Char(':');
      for (std::int32_t langue = 1; langue <= entry->ColTraduction()->Count(); ++langue) {
        out += QLatin1Char('"') + toQString(entry->ColTraduction()->Item(langue)) + QLatin1Char('"');
      }
    }
  }
  out += QLatin1Char('\n');
  if (cell.ColCell() == nullptr) {
    return;
  }
  for (const std::shared_ptr<KOBCellTraduction>& child : *cell.ColCell()) {
    print(*child, depth + 1, out);
  }
}

}  // namespace

void fillLanguage(const KOBCellTraduction& formCell, const UiKeys& keys, const TsCatalog& catalog,
                  std::int32_t langue) {
  fill(formCell, {toQString(formCell.nom())}, keys, catalog, langue);
}

QString printCells(const KOBCellTraduction& cell) {
  QString out;
  print(cell, 0, out);
  return out;
}

}  // namespace kob::fidelity
