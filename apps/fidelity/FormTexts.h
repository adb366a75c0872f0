// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "TextKinds.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>

#include <vector>

class QWidget;

namespace kob::fidelity {

/// One text that a live form shows or holds.
struct FormText {
  /// The object: class, name and position among its likes, at every level from the form down. Two loads of
  /// one form give the same addresses.
  QString address;
  /// The property, or the item with its position ("tab 2").
  QString property;
  TextKind kind;
  QString value;
  /// It reads as the toolkit would derive it from the object's caption (an action's tool tip that nobody
  /// wrote, or one that was written with the same letters: the two cannot be told apart).
  bool isDerived;
  QPointer<QObject> object;

  QString key() const { return address + QLatin1Char('|') + property; }
};

/// Every text of a live form, read from the toolkit's objects and nothing else. Objects that only show the
/// text of another one (a tool bar's button for an action, a menu's own action, the tab bar inside a tab
/// widget) are left out, so that no text counts twice.
std::vector<FormText> readFormTexts(QWidget& form);

/// The texts by their keys, to find the same text of another load.
QHash<QString, const FormText*> byKey(const std::vector<FormText>& texts);

}  // namespace kob::fidelity
