// SPDX-FileCopyrightText: The KOBTraduction authors
#include "RecoveryCopy.h"

#include "CommandBoxes.h"
#include "Console.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace kob::command {

namespace {

constexpr int shortestWait = 1000;
/// Writing the copy takes no more than this part of the time.
constexpr qint64 shareOfTime = 50;

bool hasUnsavedChanges() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  return std::any_of(windows.begin(), windows.end(),
                     [](const QWidget* window) { return window->isVisible() && window->isWindowModified(); });
}

}  // namespace

RecoveryCopy::RecoveryCopy(KOBModeleTraduction& model, const QString& file)
    : model_(model),
      file_(file),
      copy_(file + QStringLiteral(".recovery")),
      lock_(copy_ + QStringLiteral(".lock")) {
  // A lock is void only when its process is gone, however old it is.
  lock_.setStaleLockTime(0);
  // Where no lock can be made, there is nobody to keep out either.
  isMine_ = lock_.tryLock(0) || lock_.error() != QLockFile::LockFailedError;
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &RecoveryCopy::keep);
}

RecoveryCopy::~RecoveryCopy() = default;

QDateTime RecoveryCopy::leftBehind() const {
  const QFileInfo left(copy_);
  return left.exists() ? left.lastModified() : QDateTime();
}

bool RecoveryCopy::takeOver() {
  const Text file = model_.Fichier();
  CommandBoxes boxes;
  if (!model_.Load(qt::toText(copy_))) {
    return false;
  }
  model_.setFichier(file);
  isTakenOver_ = true;
  return true;
}

void RecoveryCopy::putAside() {
  const QString aside = copy_ + QStringLiteral(".old");
  QFile::remove(aside);
  QFile::rename(copy_, aside);
}

void RecoveryCopy::start() {
  timeBefore_ = fileTime();
  qApp->installEventFilter(this);
  timer_.start(shortestWait);
}

void RecoveryCopy::finish() {
  timer_.stop();
  qApp->removeEventFilter(this);
  if (!isTakenOver_ || isSaved()) {
    QFile::remove(copy_);
  }
}

bool RecoveryCopy::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonRelease:
    case QEvent::InputMethod:
    case QEvent::Drop:
      hasHappened_ = true;
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

void RecoveryCopy::keep() {
  QElapsedTimer time;
  time.start();
  if (hasUnsavedChanges()) {
    if (hasHappened_) {
      hasHappened_ = false;
      CommandBoxes boxes;
      if (!model_.Save(qt::toText(copy_)) && !std::exchange(isTold_, true)) {
        tell("no recovery copy can be written beside the file");
      }
    }
  } else if (!isTakenOver_ || isSaved()) {
    QFile::remove(copy_);
  }
  timer_.start(static_cast<int>(std::max<qint64>(shortestWait, shareOfTime * time.elapsed())));
}

bool RecoveryCopy::isSaved() const {
  return fileTime() != timeBefore_ || qt::toQString(model_.Fichier()) != file_;
}

QDateTime RecoveryCopy::fileTime() const {
  return QFileInfo(file_).lastModified();
}

}  // namespace kob::command
