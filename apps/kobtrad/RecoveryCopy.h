// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <QDateTime>
#include <QLockFile>
#include <QObject>
#include <QString>
#include <QTimer>

namespace kob::command {

/// Keeps a copy of a model beside its file while somebody edits it: written soon after anything was typed or
/// clicked, as long as a window tells of changes that are not saved, and removed once they are. What a crash
/// leaves is found by the next one for the same file. Only one lives for a file at a time, over all
/// processes. Lives on the thread of the model; a copy that cannot be written is told once on standard error.
class RecoveryCopy final : public QObject {
 public:
  RecoveryCopy(KOBModeleTraduction& model, const QString& file);
  ~RecoveryCopy() override;

  /// False while another process edits the file; nothing else may be called then.
  bool isMine() const { return isMine_; }
  const QString& copy() const noexcept { return copy_; }

  /// When a copy was kept that was not removed; invalid when there is none.
  QDateTime leftBehind() const;
  /// Loads it into the model, whose file name stays, and keeps it until something is saved; false when it
  /// cannot be read.
  bool takeOver();
  /// Puts it aside, under a name that the next one takes.
  void putAside();

  /// From now on the copy is kept.
  void start();
  /// The editor was closed in good order: removes the copy, unless it was taken over and nothing was saved.
  void finish();

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keep();
  bool isSaved() const;
  QDateTime fileTime() const;

  KOBModeleTraduction& model_;
  QString file_;
  QString copy_;
  QLockFile lock_;
  QTimer timer_;
  QDateTime timeBefore_;
  bool isMine_;
  bool isTakenOver_ = false;
  bool hasHappened_ = false;
  bool isTold_ = false;
};

}  // namespace kob::command
