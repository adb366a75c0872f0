// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ToolTip.h"

#include <QAction>
#include <QString>

namespace kob::qt {

QString derivedToolTip(const QString& text) {
  QString stripped = text;
  stripped.remove(u"..."_qs);
  // Of two ampersands in a row the second one stays, even in front of a third.
  for (qsizetype i = 0; i < stripped.size(); ++i) {
    if (stripped.at(i) == u'&') {
      stripped.remove(i, 1);
    }
  }
  return stripped.trimmed();
}

QString ownToolTip(const QAction& action) {
  QString toolTip = action.toolTip();
  if (toolTip.isEmpty() || toolTip == derivedToolTip(action.text())) {
    return {};
  }
  return toolTip;
}

void setOwnToolTip(QAction& action, const QString& toolTip) {
  // Written back, a derived tip would stop following the text.
  action.setToolTip(toolTip == derivedToolTip(action.text()) ? QString() : toolTip);
}

void setTextWithDerived(QAction& action, const QString& text) {
  const QString before = action.text();
  if (before == text) {
    return;
  }
  action.setText(text);
  const QString derived = derivedToolTip(text);
  const bool tipStayed = action.toolTip() != derived;
  const bool iconTextStayed = action.iconText() != derived;
  if (!tipStayed && !iconTextStayed) {
    return;
  }
  const QString derivedBefore = derivedToolTip(before);
  if (tipStayed && action.toolTip() == derivedBefore) {
    action.setToolTip({});
  }
  if (iconTextStayed && action.iconText() == derivedBefore) {
    action.setIconText({});
  }
}

}  // namespace kob::qt
