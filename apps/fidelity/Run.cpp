// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Run.h"

#include "QmTranslator.h"
#include "RecordingBoxes.h"

#include <QDir>

namespace kob::fidelity {

namespace {

/// Both sides of a language, from the same files. False when the toolkit refuses them.
bool prepare(const QDir& folder, const ApplicationLanguage& language, CheckedLanguage& checked,
             QString& error) {
  checked.name = language.name;
  QStringList files;
  for (const QString& file : language.tsFiles) {
    files.append(folder.filePath(file));
    if (!checked.catalog.add(files.last(), &error)) {
      return false;
    }
  }
  checked.translator = releaseTranslator(files, checked.catalog.isIdBased(), &error);
  return checked.translator != nullptr;
}

}  // namespace

QString Run::check(const QString& folder) {
  Application application = readApplication(folder);
  std::vector<CheckedLanguage> languages;
  for (const ApplicationLanguage& language : application.languages) {
    CheckedLanguage checked;
    QString error;
    if (!prepare(QDir(application.folder), language, checked, error)) {
      application.badFiles.push_back({language.tsFiles.join(QLatin1Char(' ')), error});
      continue;
    }
    // Language 1 is that of the forms.
    checked.langue = static_cast<std::int32_t>(languages.size()) + 2;
    languages.push_back(std::move(checked));
  }

  RecordingBoxes boxes;
  KOBModeleTraduction model;
  model.setNbLangues(static_cast<std::int32_t>(languages.size()) + 1);
  ApplicationReport report(application, languages);
  for (const QString& form : application.forms) {
    if (formsSeen_++ % options_.sample != 0) {
      continue;
    }
    if (options_.progress) {
      options_.progress(application.name, form);
    }
    // Two forms of an application may have one class and one name: each has a module of its own.
    report.add(form, checkForm(QDir(application.folder).filePath(form), form, model, languages, boxes));
  }
  report.addTo(sums_);
  return report.text();
}

}  // namespace kob::fidelity
