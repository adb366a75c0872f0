// SPDX-FileCopyrightText: The KOBTraduction authors
#include "QtMenuItem.h"

#include "OnScreen.h"

namespace kob::qt {

namespace {

/// A letter by which a menu entry is reached, beside those of the other entries of its menu.
QString withKey(const QString& caption, const QAction& action) {
  QString taken;
  for (const QObject* const shown : action.associatedObjects()) {
    const auto* const menu = qobject_cast<const QWidget*>(shown);
    for (const QAction* const other : menu != nullptr ? menu->actions() : QList<QAction*>()) {
      const QString text = other->text();
      const qsizetype mark = text.indexOf(QLatin1Char('&'));
      if (other != &action && mark >= 0 && mark + 1 < text.size()) {
        taken += text[mark + 1].toLower();
      }
    }
  }
  // The beginning of a word is found sooner.
  for (const bool onlyInitials : {true, false}) {
    for (qsizetype i = 0; i < caption.size(); ++i) {
      const bool isInitial = i == 0 || caption[i - 1].isSpace();
      if (caption[i].isLetter() && (isInitial || !onlyInitials) && !taken.contains(caption[i].toLower())) {
        return plainCaption(toText(caption.left(i))) + QLatin1Char('&') +
               plainCaption(toText(caption.mid(i)));
      }
    }
  }
  return plainCaption(toText(caption));
}

}  // namespace

void QtMenuItem::listen(QObject& reports) {
  QObject::connect(&action_, &QAction::triggered, &reports, [this] { personClicked(); });
}

void QtMenuItem::showCaption(TextView caption) {
  action_.setText(withKey(toQString(caption), action_));
}

}  // namespace kob::qt
