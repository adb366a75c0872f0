// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Reasons.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QAction>
#include <QRegularExpression>
#include <QWidget>

namespace kob::fidelity {

namespace {

using qt::toQString;
using qt::toText;

HostRef hostOf(QObject& object, QWidget& form) {
  if (&object == &form) {
    return qt::hostForm(&form);
  }
  if (auto* action = qobject_cast<QAction*>(&object)) {
    return qt::hostControl(action, &form);
  }
  return qt::hostControl(qobject_cast<QWidget*>(&object), &form);
}

/// The path of the cell in which the text belongs: the object's, and below it the tab's when it stands on
/// one.
QString cellPath(const Difference& difference, const Circumstances& at) {
  QString path = toQString(at.model.GetPath(hostOf(*difference.object, at.form), toText(at.module)));
  static const QRegularExpression tab(QStringLiteral("^tab (\\d+)$"));
  if (const QRegularExpressionMatch match = tab.match(difference.property); match.hasMatch()) {
    path += QStringLiteral("\\%1(%2)").arg(path.section(QLatin1Char('\\'), -1), match.captured(1));
  }
  return path;
}

const TextList* textsOf(const KOBCellTraduction& cell, TextKind kind) {
  if (cell.ColTraduction() == nullptr) {
    return nullptr;
  }
  for (const std::shared_ptr<KOBTraductionObj>& entry : *cell.ColTraduction()) {
    if (equalUpper(entry->nom(), kind == TextKind::ToolTip ? u"ToolTip" : u"Caption")) {
      return entry->ColTraduction().get();
    }
  }
  return nullptr;
}

bool recordsText(const KOBCellTraduction* cell, const Difference& difference) {
  const TextList* texts = cell != nullptr ? textsOf(*cell, difference.kind) : nullptr;
  return texts != nullptr && toQString(texts->Item(1)) == difference.original;
}

/// Harvesting follows the containers up to the first one that is named like the form, applying up to the
/// form: with such a container in between, the text is recorded at another place than where it is looked for.
bool isRecordedBelowNamesake(const QString& path, const Difference& difference, const Circumstances& at) {
  const QString form = at.form.objectName();
  const QString start = at.module + QLatin1Char('\\') + form + QLatin1Char('\\');
  const qsizetype namesake = path.lastIndexOf(QLatin1Char('\\') + form + QLatin1Char('\\'));
  if (form.isEmpty() || !path.startsWith(start) || namesake < start.size() - 1) {
    return false;
  }
  const QString recorded = start + path.sliced(namesake + form.size() + 2);
  return recordsText(at.model.findCell(toText(recorded)), difference);
}

bool followsItsText(const QObject& object, const QString& toolTip) {
  const auto* action = qobject_cast<const QAction*>(&object);
  return action != nullptr && QAction(action->text()).toolTip() == toolTip;
}

QString missingTranslation(const QString& path, const Difference& difference, const Circumstances& at) {
  QStringList names = path.split(QLatin1Char('\\'), Qt::SkipEmptyParts);
  if (!names.isEmpty() && names.first() == at.module) {
    names.removeFirst();
  }
  const UiText* text = at.keys.find(
      names, difference.kind == TextKind::ToolTip ? UiKeys::Entry::ToolTip : UiKeys::Entry::Caption,
      difference.original);
  if (text == nullptr) {
    return QStringLiteral("the designer's file has no such text for this object; the toolkit made it");
  }
  if (!text->translatable) {
    return QStringLiteral("the designer's file marks it as not to be translated");
  }
  if (const std::optional<QString> found = at.catalog.translate(text->key)) {
    return QStringLiteral("the cell has no text, though the translations have \"%1\"").arg(*found);
  }
  return QStringLiteral("the translations have no entry for it");
}

}  // namespace

QString reasonOf(const Difference& difference, const Circumstances& at) {
  if (difference.object == nullptr) {
    return QStringLiteral("the object is not on both forms");
  }
  if (!isManaged(difference.kind)) {
    return QStringLiteral("a text that is not managed was changed");
  }
  if (difference.object == &at.form && difference.kind == TextKind::ToolTip) {
    return QStringLiteral("the tool tip of the form itself is not recorded");
  }

  if (difference.isDerived && followsItsText(*difference.object, difference.actual)) {
    return QStringLiteral(
        "the tool tip reads as the toolkit derives it from the action's text: such a tip is not "
        "recorded and follows the text");
  }

  const QString path = cellPath(difference, at);
  if (isRecordedBelowNamesake(path, difference, at)) {
    return QStringLiteral(
               "a container bears the name of the form: the text is recorded below the form itself, but "
               "looked for at %1")
        .arg(path);
  }
  const KOBCellTraduction* cell = at.model.findCell(toText(path));
  if (cell == nullptr) {
    return QStringLiteral("nothing is recorded at %1").arg(path);
  }
  const TextList* texts = textsOf(*cell, difference.kind);
  if (texts == nullptr) {
    return QStringLiteral("the cell %1 has no text of this kind").arg(path);
  }
  if (!recordsText(cell, difference)) {
    return QStringLiteral("the cell %1 records another object's text, \"%2\"")
        .arg(path, toQString(texts->Item(1)));
  }
  const QString translated = toQString(texts->Item(at.langue));
  if (translated.isEmpty()) {
    return missingTranslation(path, difference, at);
  }
  const std::shared_ptr<KOBCellTraduction> parent = cell->parentcell();
  if (cell->Contexte() && parent != nullptr && parent->TypeFeuille() != 2) {
    return QStringLiteral(
               "the object has the context \"%1\", and its own cell records no text: such a context is never "
               "applied")
        .arg(toQString(cell->nom()));
  }
  if (translated != difference.expected) {
    return QStringLiteral("the cell %1 was given another translation, \"%2\"").arg(path, translated);
  }
  return QStringLiteral("the cell %1 has the translation, but the object did not take it").arg(path);
}

}  // namespace kob::fidelity
