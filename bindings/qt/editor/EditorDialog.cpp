// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EditorDialog.h"

#include "../OwnMessageBox.h"

#include <QKeyEvent>

namespace kob::qt {

EditorDialog::EditorDialog(QWidget* parent, bool staysOnEscape)
    : QDialog(parent), staysOnEscape_(staysOnEscape) {
  setProperty(ownMessageBoxProperty, true);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setWindowFlag(Qt::WindowMaximizeButtonHint, staysOnEscape);
  setWindowModality(Qt::ApplicationModal);
  setSizeGripEnabled(!staysOnEscape);
  // The captions are French; texts turn by themselves.
  setLayoutDirection(Qt::LeftToRight);
  if (parent != nullptr) {
    connect(parent, &QObject::destroyed, this, &EditorDialog::leaveParent);
  }
}

void EditorDialog::keyPressEvent(QKeyEvent* event) {
  if (staysOnEscape_ && event->matches(QKeySequence::Cancel)) {
    event->ignore();
    return;
  }
  QDialog::keyPressEvent(event);
}

void EditorDialog::leaveParent() {
  // The parent is about to delete its children, and this one is still in use.
  setParent(nullptr, windowFlags());
  reject();
}

}  // namespace kob::qt
