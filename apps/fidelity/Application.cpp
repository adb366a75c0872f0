// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Application.h"

#include "TsCatalog.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace kob::fidelity {

namespace {

QStringList filesBelow(const QString& folder, const QString& pattern) {
  QStringList files;
  const QDir root(QDir(folder).absolutePath());
  QDirIterator iterator(root.path(), {pattern}, QDir::Files, QDirIterator::Subdirectories);
  while (iterator.hasNext()) {
    files.append(root.relativeFilePath(iterator.next()));
  }
  files.sort();
  return files;
}

bool isKnownLanguage(const QString& locale) {
  return QLocale(locale).language() != QLocale::C;
}

ApplicationLanguage& languageOf(Application& application, const QString& name, bool isKnown) {
  const auto found = std::find_if(application.languages.begin(), application.languages.end(),
                                  [&](const ApplicationLanguage& language) { return language.name == name; });
  if (found != application.languages.end()) {
    return *found;
  }
  return application.languages.emplace_back(ApplicationLanguage{name, isKnown, {}});
}

}  // namespace

QString languageInFileName(const QString& fileName) {
  // Language, script, territory and variant in their usual letters: "my_app_fr" is French, not Burmese.
  static const QRegularExpression pattern(QStringLiteral(
      "(?:^|[_.-])([a-z]{2,3}(?:[_-][A-Z][a-z]{3})?(?:[_-](?:[A-Z]{2}|[0-9]{3}))?(?:@[a-z]+)?)$"));
  const QRegularExpressionMatch match = pattern.match(QFileInfo(fileName).completeBaseName());
  return match.hasMatch() && isKnownLanguage(match.captured(1)) ? match.captured(1) : QString();
}

QStringList applicationFolders(const QString& folder) {
  const QDir root(folder);
  QStringList complete;
  qsizetype filesInside = 0;
  for (const QString& name : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
    const qsizetype forms = filesBelow(root.filePath(name), QStringLiteral("*.ui")).size();
    const qsizetype translations = filesBelow(root.filePath(name), QStringLiteral("*.ts")).size();
    if (forms == 0 || translations == 0) {
      continue;
    }
    complete.append(root.filePath(name));
    filesInside += forms + translations;
  }
  const qsizetype all =
      filesBelow(folder, QStringLiteral("*.ui")).size() + filesBelow(folder, QStringLiteral("*.ts")).size();
  return complete.size() > 1 && filesInside == all ? complete : QStringList{folder};
}

Application readApplication(const QString& folder) {
  Application application;
  const QDir root(QDir(folder).absolutePath());
  application.folder = root.path();
  application.name = QDir(application.folder).dirName();
  application.forms = filesBelow(folder, QStringLiteral("*.ui"));
  for (const QString& file : filesBelow(folder, QStringLiteral("*.ts"))) {
    TsCatalog catalog;
    QString error;
    if (!catalog.add(root.filePath(file), &error)) {
      application.badFiles.push_back({file, error});
      continue;
    }
    QString language = catalog.language();
    if (!isKnownLanguage(language)) {
      language = languageInFileName(file);
    }
    const bool isKnown = !language.isEmpty();
    languageOf(application, isKnown ? language : QFileInfo(file).completeBaseName(), isKnown)
        .tsFiles.append(file);
  }
  return application;
}

}  // namespace kob::fidelity
