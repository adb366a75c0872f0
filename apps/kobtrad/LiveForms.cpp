// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForms.h"

#include "ModelFile.h"
#include "Verb.h"

#include <apps/uiform/UiForm.h>

#include <QSaveFile>

#include <cstdio>

namespace kob::command {

namespace {

void dropRemarks(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtFatalMsg) {
    std::fprintf(stderr, "kobtrad: %s\n", text.toUtf8().constData());
  }
}

bool hasScreen() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
  return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || qEnvironmentVariableIsSet("DISPLAY") ||
         qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
#else
  return true;
#endif
}

}  // namespace

Toolkit::Toolkit(Screen screen) {
  if (screen == Screen::Needed && !hasScreen()) {
    throw UsageError("this verb needs a screen, and there is none (DISPLAY is not set)");
  }
  if (screen == Screen::None && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  qInstallMessageHandler(dropRemarks);
  application_ = std::make_unique<QApplication>(argc_, argv_);
}

std::unique_ptr<QWidget> loadForm(const std::string& file) {
  QString error;
  std::unique_ptr<QWidget> form = loadUiForm(QString::fromStdString(file), &error);
  if (form == nullptr) {
    throw ReadError(file + " cannot be shown: " + error.toStdString());
  }
  // Left and width mean something once the form was laid out.
  form->setAttribute(Qt::WA_DontShowOnScreen);
  form->show();
  settle();
  return form;
}

void settle() {
  // A layout that changed asks for another round.
  for (int i = 0; i < 3; ++i) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
  }
}

void savePicture(QWidget& form, const std::string& file) {
  QSaveFile out(QString::fromStdString(file));
  if (!out.open(QIODevice::WriteOnly) || !form.grab().save(&out, "PNG") || !out.commit()) {
    throw WriteError(file + " cannot be written: " + out.errorString().toStdString());
  }
}

}  // namespace kob::command
