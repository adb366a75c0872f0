// SPDX-FileCopyrightText: The KOBTraduction authors
#include "QtSaveFileDialog.h"

#include "../OwnMessageBox.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

namespace kob::qt {

QStringList QtSaveFileDialog::nameFilters(const QString& filter) {
  const QStringList parts = filter.split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString pattern = QString(parts[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' '));
    const QString inBrackets = QLatin1Char('(') + pattern + QLatin1Char(')');
    filters += parts[i].endsWith(inBrackets) ? parts[i] : parts[i] + QLatin1Char(' ') + inBrackets;
  }
  return filters;
}

Text QtSaveFileDialog::choose() {
  const QPointer<QFileDialog> dialog = new QFileDialog(&window_);
  dialog->setProperty(ownMessageBoxProperty, true);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setFileMode(QFileDialog::AnyFile);
  dialog->setNameFilters(nameFilters(toQString(filter())));
  const QString pattern = toQString(filter()).section(QLatin1Char('|'), 1, 1);
  dialog->setDefaultSuffix(QFileInfo(pattern).suffix());
  const QString proposed = toQString(fileName());
  if (!proposed.isEmpty()) {
    const QFileInfo file(proposed);
    dialog->setDirectory(file.absolutePath());
    dialog->selectFile(file.fileName());
  }
  const bool isChosen = dialog->exec() == QDialog::Accepted;
  // It dies with the window that it belongs to.
  if (dialog.isNull()) {
    return {};
  }
  const QStringList files = dialog->selectedFiles();
  delete dialog.data();
  return isChosen && !files.isEmpty() ? toText(QDir::toNativeSeparators(files.front())) : Text();
}

}  // namespace kob::qt
