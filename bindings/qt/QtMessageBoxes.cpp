// SPDX-FileCopyrightText: The KOBTraduction authors
#include "OwnMessageBox.h"

#include <kobtraduction/component/Global_Util.h>
#include <kobtraductionqt/KOBTraductionQt.h>
#include <kobtraductionqt/QtMessageBoxes.h>

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QWindow>

namespace kob::qt {

namespace {

/// What the label breaks lines at.
QString withLineFeeds(TextView text) {
  QString lines = toQString(text);
  lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return lines;
}

/// Platforms show the application's name in the place of an empty window title. The widget's title stays
/// empty; the native window gets a blank that is shown as nothing.
void setTitle(QMessageBox& box, TextView title) {
  if (!title.empty()) {
    box.setWindowTitle(toQString(title));
    return;
  }
  box.winId();
  if (QWindow* window = box.windowHandle()) {
    window->setTitle(QStringLiteral(" "));
  }
}

/// The button that was pressed; `escape` when the box was closed, or died with the window that it belongs to.
QMessageBox::StandardButton ask(TextView text, TextView title, MessageIcon icon,
                                QMessageBox::StandardButtons buttons, QMessageBox::StandardButton escape) {
  if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
    return escape;
  }
  const QPointer<QMessageBox> box = new QMessageBox(QApplication::activeWindow());
  box->setProperty(ownMessageBoxProperty, true);
  box->setIcon(icon == MessageIcon::Critical ? QMessageBox::Critical : QMessageBox::NoIcon);
  box->setTextFormat(Qt::PlainText);
  box->setText(withLineFeeds(text));
  box->setStandardButtons(buttons);
  box->setEscapeButton(escape);
  setTitle(*box, title);
  const auto answer = static_cast<QMessageBox::StandardButton>(box->exec());
  if (box.isNull()) {
    return escape;
  }
  delete box.data();
  return answer;
}

}  // namespace

QtMessageBoxes::QtMessageBoxes() : previous_(Global_Util::setMessageBoxes(this)) {}

QtMessageBoxes::~QtMessageBoxes() {
  Global_Util::setMessageBoxes(previous_);
}

void QtMessageBoxes::notice(TextView text, TextView title, MessageIcon icon) {
  ask(text, title, icon, QMessageBox::Ok, QMessageBox::Ok);
}

bool QtMessageBoxes::question(TextView text, TextView title, MessageIcon icon) {
  return ask(text, title, icon, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

}  // namespace kob::qt
