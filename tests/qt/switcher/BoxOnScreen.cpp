// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraductionqt/QtMessageBoxes.h>

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace kob::qt {
namespace {

/// A question on a real screen, answered by key events that come from the window system.
struct BoxOnScreen : testing::Test {
  void SetUp() override {
    if (QGuiApplication::platformName() != QStringLiteral("xcb")) {
      GTEST_SKIP() << "needs an X server";
    }
    if (QStandardPaths::findExecutable(QStringLiteral("xdotool")).isEmpty()) {
      GTEST_SKIP() << "needs xdotool to press keys";
    }
    // A box that no key answers must not hang the test.
    QObject::connect(&rescue, &QTimer::timeout, [] {
      ADD_FAILURE() << "nothing answered the box";
      QApplication::closeAllWindows();
    });
    rescue.start(20000);
  }

  static QByteArray run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
  }

  /// Waits for the box, gives it the keyboard as a window manager would, and presses the keys.
  static void pressWhenOpen(const QStringList& keys) {
    QTimer::singleShot(0, [keys] {
      QWidget* const box = QApplication::activeModalWidget();
      ASSERT_NE(box, nullptr);
      ASSERT_TRUE(QTest::qWaitForWindowExposed(box));
      const QString window = QString::number(box->winId());
      run(QStringLiteral("xdotool"), {QStringLiteral("windowfocus"), QStringLiteral("--sync"), window});
      ASSERT_TRUE(QTest::qWaitForWindowActive(box));
      run(QStringLiteral("xdotool"), QStringList(QStringLiteral("key")) + keys);
    });
  }

  QTimer rescue;
  QtMessageBoxes live;
  MessageBoxes& boxes = live;
};

TEST_F(BoxOnScreen, TheLetterOfYesIsYes) {
  pressWhenOpen({QStringLiteral("alt+y")});
  EXPECT_TRUE(boxes.question(u"un\r\ndeux"));
}

TEST_F(BoxOnScreen, TabToNoAndSpaceIsNo) {
  pressWhenOpen({QStringLiteral("Tab"), QStringLiteral("space")});
  EXPECT_FALSE(boxes.question(u"?"));
}

TEST_F(BoxOnScreen, EscapeIsNo) {
  pressWhenOpen({QStringLiteral("Escape")});
  EXPECT_FALSE(boxes.question(u"?"));
}

TEST_F(BoxOnScreen, ReturnClosesANotice) {
  pressWhenOpen({QStringLiteral("Return")});
  boxes.notice(u"ERREUR");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(BoxOnScreen, TheWindowSystemShowsNoTitle) {
  if (QStandardPaths::findExecutable(QStringLiteral("xprop")).isEmpty()) {
    GTEST_SKIP() << "needs xprop to read the title";
  }
  QByteArray title;
  QTimer::singleShot(0, [&title] {
    QWidget* const box = QApplication::activeModalWidget();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(box));
    title = run(QStringLiteral("xprop"),
                {QStringLiteral("-id"), QString::number(box->winId()), QStringLiteral("_NET_WM_NAME")});
    box->close();
  });
  boxes.notice(u"ERREUR");
  EXPECT_EQ(title.trimmed(), "_NET_WM_NAME(UTF8_STRING) = \" \"");
}

}  // namespace
}  // namespace kob::qt
