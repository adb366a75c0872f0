// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "FitCheck.h"

#include <QPixmap>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <vector>

namespace kob::demo {

class Demo;

/// Shows a form where nobody sees it, so that it is laid out as on a screen.
void showUnseen(QWidget& form);
/// Lets the toolkit settle everything that is waiting to be laid out.
void settle();

/// "FORM\control [de] tab 1: needs 120 pixels of width, has 100: "Text"".
QString describe(const Misfit& misfit, const QWidget& form, const QString& language);

/// A picture of every view of the demo in every language.
class PictureRun {
 public:
  explicit PictureRun(Demo& demo) : demo_(demo) {}

  /// Takes the pictures; where `folder` is empty, only compares the texts with their room.
  void run(const QString& folder);

  const QStringList& misfits() const { return misfits_; }
  const QStringList& errors() const { return errors_; }
  int pictures() const { return pictures_; }
  int applied() const { return applied_; }

 private:
  void save(const QImage& picture, const QString& folder, const QString& name);

  Demo& demo_;
  QStringList misfits_;
  QStringList errors_;
  int pictures_ = 0;
  int applied_ = 0;
};

}  // namespace kob::demo
