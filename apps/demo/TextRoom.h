// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QSize>

class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace kob::demo {

/// What a text needs and what it has, in pixels.
struct Room {
  QSize needed;
  QSize available;
};

Room labelRoom(const QLabel& label);
Room placeholderRoom(const QLineEdit& edit);
Room placeholderRoom(const QPlainTextEdit& edit);
Room itemRoom(const QComboBox& combo, int item);
/// The title bar belongs to the system: its icon and three buttons are taken to be 120 pixels wide.
Room titleRoom(const QWidget& form);

}  // namespace kob::demo
