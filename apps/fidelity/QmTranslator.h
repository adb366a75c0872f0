// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>

namespace kob::fidelity {

/// The application's own translator of one language: its `.ts` files released by the toolkit's `lrelease` and
/// loaded by the toolkit. Null, and a sentence in `error`, when the tool is not installed or refuses the
/// files.
std::unique_ptr<QTranslator> releaseTranslator(const QStringList& tsFiles, bool isIdBased, QString* error);

/// Installs a translator for as long as it lives.
class InstalledTranslator {
 public:
  explicit InstalledTranslator(QTranslator& translator);
  InstalledTranslator(const InstalledTranslator&) = delete;
  InstalledTranslator& operator=(const InstalledTranslator&) = delete;
  ~InstalledTranslator();

 private:
  QTranslator& translator_;
};

}  // namespace kob::fidelity
