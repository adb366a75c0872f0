// SPDX-FileCopyrightText: The KOBTraduction authors
#include "QmTranslator.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace kob::fidelity {

namespace {

/// A translator that keeps the released bytes from which it reads.
class LoadedTranslator final : public QTranslator {
 public:
  bool loadBytes(const QByteArray& bytes) {
    bytes_ = bytes;
    return load(reinterpret_cast<const uchar*>(bytes_.constData()), static_cast<int>(bytes_.size()));
  }

 private:
  QByteArray bytes_;
};

QString findLrelease() {
  const QString name = QStringLiteral("lrelease");
  const QString ownTool =
      QStandardPaths::findExecutable(name, {QLibraryInfo::path(QLibraryInfo::BinariesPath),
                                            QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath)});
  return ownTool.isEmpty() ? QStandardPaths::findExecutable(name) : ownTool;
}

}  // namespace

std::unique_ptr<QTranslator> releaseTranslator(const QStringList& tsFiles, bool isIdBased, QString* error) {
  const QString tool = findLrelease();
  if (tool.isEmpty()) {
    *error = QStringLiteral("the toolkit's lrelease is not installed (qt6-l10n-tools)");
    return nullptr;
  }
  const QTemporaryDir folder;
  const QString qmFile = folder.filePath(QStringLiteral("released.qm"));
  QStringList arguments{QStringLiteral("-silent")};
  if (isIdBased) {
    arguments.append(QStringLiteral("-idbased"));
  }
  arguments += tsFiles;
  arguments += {QStringLiteral("-qm"), qmFile};
  QProcess process;
  process.start(tool, arguments);
  if (!process.waitForFinished(120'000) || process.exitStatus() != QProcess::NormalExit ||
      process.exitCode() != 0) {
    *error = QStringLiteral("lrelease refused it: %1")
                 .arg(QString::fromUtf8(process.readAllStandardError()).simplified());
    return nullptr;
  }
  QFile file(qmFile);
  auto translator = std::make_unique<LoadedTranslator>();
  if (!file.open(QIODevice::ReadOnly) || !translator->loadBytes(file.readAll())) {
    *error = QStringLiteral("the released translation cannot be loaded");
    return nullptr;
  }
  return translator;
}

InstalledTranslator::InstalledTranslator(QTranslator& translator) : translator_(translator) {
  QCoreApplication::installTranslator(&translator_);
}

InstalledTranslator::~InstalledTranslator() {
  QCoreApplication::removeTranslator(&translator_);
}

}  // namespace kob::fidelity
