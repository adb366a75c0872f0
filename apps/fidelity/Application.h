// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace kob::fidelity {

/// The translation files of one language of an application.
struct ApplicationLanguage {
  /// The locale as the file gives it ("fr", "nl_BE"); the file's own name when the language is not known.
  QString name;
  bool isKnown = true;
  /// Relative to the application's folder.
  QStringList tsFiles;
};

/// A file that could not be used, and why.
struct BadFile {
  QString file;
  QString reason;
};

/// An application's folder: its forms and its translations, wherever they are in it.
struct Application {
  QString name;
  QString folder;
  /// The `.ui` files, relative to the folder, in the order of their names.
  QStringList forms;
  std::vector<ApplicationLanguage> languages;
  std::vector<BadFile> badFiles;
};

/// The applications that a folder stands for: itself, or one for each of its subfolders when there are
/// several that hold both forms and translations, and nothing of either kind lies outside these.
QStringList applicationFolders(const QString& folder);

/// Reads what is in an application's folder. Files of one language belong together.
Application readApplication(const QString& folder);

/// The locale in a translation file's name: the whole of "fr.ts", the end of "app_pt_BR.ts" or "app.de.ts";
/// "" when there is none that the toolkit knows.
QString languageInFileName(const QString& fileName);

}  // namespace kob::fidelity
