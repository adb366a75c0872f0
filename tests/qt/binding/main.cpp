// SPDX-FileCopyrightText: The KOBTraduction authors
#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
