// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForms.h"
#include "LiveModel.h"

#include <kobtraduction/component/Global_Util.h>
#include <kobtraductionqt/KOBTraductionQt.h>
#include <kobtraductionqt/QtMessageBoxes.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gmock/gmock.h>

#include <functional>
#include <memory>

namespace kob::qt::live {
namespace {

struct MessageBox : testing::Test {
  /// Does something to the box once it is open.
  static void whenOpen(std::function<void(QMessageBox&)> act) {
    QTimer::singleShot(0, [act = std::move(act)] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      act(*box);
    });
  }

  QtMessageBoxes live;
  MessageBoxes& boxes = live;
};

TEST_F(MessageBox, ANoticeHasTheTextAndOnlyAnOkButton) {
  bool wasOpen = false;
  whenOpen([&wasOpen](QMessageBox& box) {
    wasOpen = true;
    EXPECT_EQ(box.text(), QStringLiteral("ERREUR 3"));
    EXPECT_EQ(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    EXPECT_EQ(box.buttons().size(), 1);
    EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
    EXPECT_TRUE(box.isModal());
    box.button(QMessageBox::Ok)->click();
  });
  boxes.notice(u"ERREUR 3");
  EXPECT_TRUE(wasOpen);
}

TEST_F(MessageBox, TitleAndIconAreTheOnesAskedFor) {
  whenOpen([](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), QStringLiteral("Titre"));
    EXPECT_EQ(box.icon(), QMessageBox::Critical);
    box.close();
  });
  boxes.notice(u"x", u"Titre", MessageIcon::Critical);
}

TEST_F(MessageBox, WithoutATitleNothingStandsInItsPlace) {
  ASSERT_FALSE(QCoreApplication::applicationName().isEmpty());
  whenOpen([](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), QString());
    // Empty would be replaced by the application's name.
    EXPECT_EQ(box.windowHandle()->title(), QStringLiteral(" "));
    box.close();
  });
  boxes.notice(u"x");
}

TEST_F(MessageBox, AQuestionHasYesAndNo) {
  whenOpen([](QMessageBox& box) {
    EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(box.buttons().size(), 2);
    box.button(QMessageBox::Yes)->click();
  });
  EXPECT_TRUE(boxes.question(u"?"));
  whenOpen([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
  EXPECT_FALSE(boxes.question(u"?"));
}

TEST_F(MessageBox, EscapeIsNo) {
  whenOpen([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_FALSE(boxes.question(u"?"));
}

TEST_F(MessageBox, ClosingTheQuestionIsNo) {
  whenOpen([](QMessageBox& box) { box.close(); });
  EXPECT_FALSE(boxes.question(u"?"));
}

TEST_F(MessageBox, EscapeClosesANotice) {
  whenOpen([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  boxes.notice(u"x");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(MessageBox, TheTextIsPlainWithItsLineBreaks) {
  whenOpen([](QMessageBox& box) {
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.text(), QStringLiteral("<b>un</b>\ndeux\n\ntrois & quatre"));
    box.close();
  });
  boxes.notice(u"<b>un</b>\r\ndeux\r\n\r\ntrois & quatre");
}

TEST_F(MessageBox, AnyCodeUnitsAreShownUnchanged) {
  const Text text = {u'a', 0xD800, u'b', 0xDC00, 0x2028, u'é'};
  whenOpen([&text](QMessageBox& box) {
    EXPECT_EQ(box.text(), toQString(text));
    box.close();
  });
  boxes.notice(text);
}

TEST_F(MessageBox, BelongsToTheActiveWindow) {
  QDialog window;
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  whenOpen([&window](QMessageBox& box) {
    EXPECT_EQ(box.parentWidget(), &window);
    EXPECT_EQ(box.windowTitle(), QString());
    box.close();
  });
  boxes.notice(u"x");
}

TEST_F(MessageBox, WithoutAnActiveWindowItStandsAlone) {
  ASSERT_EQ(QApplication::activeWindow(), nullptr);
  whenOpen([](QMessageBox& box) {
    EXPECT_EQ(box.parentWidget(), nullptr);
    box.close();
  });
  boxes.notice(u"x");
}

TEST_F(MessageBox, AQuestionWhoseWindowIsDeletedIsAnsweredNo) {
  auto window = std::make_unique<QDialog>();
  window->show();
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  whenOpen([&window](QMessageBox&) { window.reset(); });
  EXPECT_FALSE(boxes.question(u"?"));
  EXPECT_EQ(window, nullptr);
}

TEST_F(MessageBox, NoBoxIsLeftBehind) {
  const qsizetype before = QApplication::allWidgets().size();
  whenOpen([](QMessageBox& box) { box.close(); });
  boxes.notice(u"x");
  EXPECT_EQ(QApplication::allWidgets().size(), before);
}

TEST_F(MessageBox, ABoxInsideABox) {
  whenOpen([this](QMessageBox& outer) {
    whenOpen([](QMessageBox& inner) {
      EXPECT_EQ(inner.text(), QStringLiteral("inner"));
      inner.button(QMessageBox::Yes)->click();
    });
    EXPECT_TRUE(boxes.question(u"inner"));
    outer.button(QMessageBox::No)->click();
  });
  EXPECT_FALSE(boxes.question(u"outer"));
}

TEST(MessageBoxes, AreTheThreadsOwnWhileTheyLive) {
  RecordedBoxes before;
  {
    QtMessageBoxes live;
    EXPECT_EQ(&Global_Util::messageBoxes(), &live);
  }
  EXPECT_EQ(&Global_Util::messageBoxes(), &before);
}

TEST_F(MessageBox, TheEngineAsksThroughIt) {
  ClientDialog form;
  KOBModeleTraduction model;
  model.UpdateWithForm(hostForm(&form));
  form.btnOk->setText(QStringLiteral("Accepter"));
  whenOpen([](QMessageBox& box) {
    EXPECT_EQ(box.text(), QStringLiteral("Le Controle btnOk existe déja\nVoulez vous le modifier?\n"
                                         "OK  ->  Accepter\nValide  ->  Valide"));
    box.button(QMessageBox::Yes)->click();
  });
  model.UpdateWithForm(hostForm(&form));
  EXPECT_THAT(print(model), testing::HasSubstr("btnOk Caption \"Accepter\""));
}

}  // namespace
}  // namespace kob::qt::live
