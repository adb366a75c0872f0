// SPDX-FileCopyrightText: The KOBTraduction authors
#include "EditorDialog.h"

#include "../OwnMessageBox.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPalette>

#include <utility>

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
  fadeDisabledLess();
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

void EditorDialog::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange) {
    fadeDisabledLess();
  }
  QDialog::changeEvent(event);
}

void EditorDialog::fadeDisabledLess() {
  // A translator reads all day the name and the kind that only others may change; themes fade what is
  // disabled until it cannot be read.
  constexpr double share = 0.6;
  const QPalette theme = QApplication::palette();
  QPalette own;
  for (const auto& [text, ground] :
       {std::pair(QPalette::WindowText, QPalette::Window), std::pair(QPalette::Text, QPalette::Base),
        std::pair(QPalette::ButtonText, QPalette::Button)}) {
    const QColor above = theme.color(QPalette::Active, text);
    const QColor below = theme.color(QPalette::Active, ground);
    const auto mixed = [](int a, int b) { return qRound(a * share + b * (1 - share)); };
    own.setColor(QPalette::Disabled, text,
                 QColor(mixed(above.red(), below.red()), mixed(above.green(), below.green()),
                        mixed(above.blue(), below.blue())));
  }
  setPalette(own);
}

void EditorDialog::leaveParent() {
  // The parent is about to delete its children, and this one is still in use.
  setParent(nullptr, windowFlags());
  reject();
}

}  // namespace kob::qt
