// SPDX-FileCopyrightText: The KOBTraduction authors
#include <gmock/gmock.h>
#include <QApplication>

/// Tests on live forms need an application, and no screen unless one is asked for.
int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  QApplication::setApplicationName(QStringLiteral("Application"));
  const QApplication application(argc, argv);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
