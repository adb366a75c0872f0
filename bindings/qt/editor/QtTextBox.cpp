// SPDX-FileCopyrightText: The KOBTraduction authors
#include "QtTextBox.h"

#include <kobtraduction/editor/LineEnds.h>

#include <limits>

namespace kob::qt {

void QtLineBox::listen(QObject& reports) {
  control().setMaxLength(std::numeric_limits<int>::max());
  QObject::connect(&control(), &QLineEdit::textEdited, &reports, [this](const QString& text) {
    showDirectionOf(control(), text);
    personTyped(toText(text));
  });
}

void QtLineBox::showText(TextView text) {
  const QString shown = toQString(text);
  // textEdited is for a person alone.
  control().setText(shown);
  control().setCursorPosition(0);
  showDirectionOf(control(), shown);
}

void QtTextBox::listen(QObject& reports) {
  QObject::connect(&control(), &QPlainTextEdit::textChanged, &reports,
                   [this] { personTyped(editedInDocument(text(), toText(control().shown()), u"\n")); });
}

void QtTextBox::showText(TextView text) {
  control().show(toQString(shownInDocument(text)));
}

}  // namespace kob::qt
