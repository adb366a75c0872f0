// SPDX-FileCopyrightText: The KOBTraduction authors
#include "QtDialogWindow.h"

#include <kobtraduction/base/Failure.h>
#include <kobtraductionqt/QtWidgetSet.h>

#include <QApplication>
#include <QDialog>

namespace kob::qt {

QtWidgetSet::QtWidgetSet() : previous_(setWidgetSet(this)) {}

QtWidgetSet::~QtWidgetSet() {
  setWidgetSet(previous_);
}

std::unique_ptr<DialogWindow> QtWidgetSet::makeWindow(DialogKind kind, DialogWindow* owner) {
  if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
    throw Failure(FailureKind::ObjectNotSet);
  }
  QWidget* parent = QApplication::activeWindow();
  if (owner != nullptr) {
    parent = &static_cast<QtDialogWindow*>(owner)->dialog();
  }
  return std::make_unique<QtDialogWindow>(kind, parent);
}

}  // namespace kob::qt
