// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

class QAction;
class QString;

namespace kob::qt {

// An action shows a tool tip made from its text until it is given one, and does not tell the two apart once
// they are equal. A tool tip equal to the derived one counts as derived: it is not a text of its own.

/// The tool tip that the toolkit derives from the text, or from the icon text when there is no text.
QString derivedToolTip(const QString& text);

/// The action's tool tip when it is a text of its own, else "".
QString ownToolTip(const QAction& action);
void setOwnToolTip(QAction& action, const QString& toolTip);

/// Writes the text; a tool tip or icon text that counts as derived follows it.
void setTextWithDerived(QAction& action, const QString& text);

}  // namespace kob::qt
