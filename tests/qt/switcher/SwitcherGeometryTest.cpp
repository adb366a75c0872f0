// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForms.h"
#include "LiveModel.h"

#include <kobtraductionqt/KOBTraductionQt.h>
#include <kobtraductionqt/LanguageSwitcher.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QResizeEvent>
#include <QWindow>

#include <gmock/gmock.h>

namespace kob::qt::live {
namespace {

/// Whoever writes an application's window: keeps a button at the right edge.
struct RightAlignedDialog : QDialog {
  RightAlignedDialog() : btnFin(addButton(*this, "btnFin", "Fin")) {
    setObjectName(QStringLiteral("FrmDroite"));
    btnFin->setGeometry(300, 10, 80, 30);
    resize(400, 100);
  }

  void resizeEvent(QResizeEvent* event) override { btnFin->move(event->size().width() - 100, 10); }

  QPushButton* btnFin;
};

/// Moves its label by as much as it has grown.
struct GrowingFrame : QGroupBox {
  using QGroupBox::QGroupBox;

  void resizeEvent(QResizeEvent* event) override {
    if (label != nullptr && event->oldSize().isValid()) {
      label->move(label->x() + event->size().width() - event->oldSize().width(), 0);
    }
  }

  QLabel* label = nullptr;
};

struct SwitcherGeometry : testing::Test {
  SwitcherGeometry() : switcher(model) {
    model.UpdateWithForm(hostForm(&form));
    setLeftFactor(model, u"FrmClients\\btnOk", 2, 1.5);
    setWidthFactor(model, u"FrmClients\\btnOk", 2, 1.5);
    setWidthFactor(model, u"FrmClients\\btnOk", 3, 1.2);
    setWidthFactor(model, u"FrmClients", 2, 1.25);
    setWidthFactor(model, u"FrmClients", 3, 1.1);
  }

  ClientDialog form;
  KOBModeleTraduction model;
  RecordedBoxes boxes;
  LanguageSwitcher switcher;
};

TEST_F(SwitcherGeometry, ScalesOnceHoweverOftenTheLanguageIsApplied) {
  switcher.addForm(&form);
  switcher.setLanguage(2);
  switcher.setLanguage(2);
  switcher.refresh();
  switcher.addForm(&form);
  EXPECT_EQ(form.btnOk->geometry(), QRect(451, 260, 112, 30));
  EXPECT_EQ(form.width(), 500);
}

TEST_F(SwitcherGeometry, EachLanguageScalesTheOriginal) {
  switcher.addForm(&form);
  switcher.setLanguage(2);
  switcher.setLanguage(3);
  EXPECT_EQ(form.btnOk->geometry(), QRect(301, 260, 90, 30));
  EXPECT_EQ(form.width(), 440);
}

TEST_F(SwitcherGeometry, BackToTheFirstLanguageIsTheIdentity) {
  switcher.addForm(&form);
  switcher.setLanguage(2);
  switcher.setLanguage(1);
  EXPECT_EQ(form.btnOk->geometry(), QRect(301, 260, 75, 30));
  EXPECT_EQ(form.size(), QSize(400, 300));
}

TEST_F(SwitcherGeometry, AFactorOfTheReferenceLanguageIsAppliedToo) {
  setWidthFactor(model, u"FrmClients\\lblNom", 1, 2);
  switcher.addForm(&form);
  EXPECT_EQ(form.lblNom->width(), 200);
  switcher.setLanguage(2);
  EXPECT_EQ(form.lblNom->width(), 100);
  switcher.setLanguage(1);
  EXPECT_EQ(form.lblNom->width(), 200);
}

TEST_F(SwitcherGeometry, WhatTheApplicationMovedSinceStaysAndIsTheNewOriginal) {
  switcher.addForm(&form);
  switcher.setLanguage(2);
  form.btnOk->move(200, 260);
  switcher.setLanguage(1);
  EXPECT_EQ(form.btnOk->geometry(), QRect(200, 260, 75, 30))
      << "left is the application's, width is put back";
  switcher.setLanguage(2);
  EXPECT_EQ(form.btnOk->x(), 300);
  switcher.setLanguage(1);
  EXPECT_EQ(form.btnOk->x(), 200);
}

TEST_F(SwitcherGeometry, AWindowThatTheUserResizedKeepsItsWidth) {
  switcher.addForm(&form);
  switcher.setLanguage(2);
  form.resize(640, 300);
  switcher.setLanguage(1);
  EXPECT_EQ(form.width(), 640);
}

TEST_F(SwitcherGeometry, TheUsersHeightStaysWhenTheWidthIsPutBack) {
  switcher.addForm(&form);
  switcher.setLanguage(2);
  form.resize(form.width(), 350);
  switcher.setLanguage(1);
  EXPECT_EQ(form.size(), QSize(400, 350));
}

TEST_F(SwitcherGeometry, ARemovedFormIsNotPutBack) {
  switcher.addForm(&form);
  switcher.setLanguage(2);
  switcher.removeForm(&form);
  switcher.setLanguage(1);
  EXPECT_EQ(form.btnOk->width(), 112);
  switcher.addForm(&form);
  EXPECT_EQ(form.btnOk->width(), 112) << "what stands there is the original now";
}

TEST_F(SwitcherGeometry, RemovingAndRegisteringAgainMakesThePresentGeometryTheOriginal) {
  switcher.addForm(&form);
  switcher.setLanguage(2);
  switcher.removeForm(&form);
  setWidthFactor(model, u"FrmClients\\btnOk", 2, 2);
  switcher.addForm(&form);
  EXPECT_EQ(form.btnOk->width(), 224);
}

TEST_F(SwitcherGeometry, AnExcludedControlIsPutBack) {
  switcher.addForm(&form);
  switcher.setLanguage(2);
  form.btnOk->setProperty("tag", QStringLiteral("PAS TRADUIT"));
  switcher.setLanguage(3);
  EXPECT_EQ(form.btnOk->geometry(), QRect(301, 260, 75, 30));
}

TEST_F(SwitcherGeometry, EverythingIsPutBackWhenTheModuleIsGone) {
  switcher.addForm(&form);
  switcher.setLanguage(2);
  switcher.addForm(&form, QStringLiteral("Inconnu"));
  EXPECT_EQ(form.btnOk->geometry(), QRect(301, 260, 75, 30));
  EXPECT_EQ(form.width(), 400);
}

TEST_F(SwitcherGeometry, DeletedControlsAreForgotten) {
  switcher.addForm(&form);
  switcher.setLanguage(2);
  delete form.btnOk;
  switcher.setLanguage(1);
  EXPECT_EQ(form.width(), 400);
  EXPECT_TRUE(boxes.notices.empty());
}

TEST_F(SwitcherGeometry, AWindowGoesToTheNextLanguagesWidthInOneStep) {
  struct WidthSpy : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::Resize) {
        widths.push_back(static_cast<QResizeEvent*>(event)->size().width());
      }
      return false;
    }
    std::vector<int> widths;
  };
  form.show();
  switcher.addForm(&form);
  switcher.setLanguage(2);
  WidthSpy spy;
  form.installEventFilter(&spy);
  switcher.setLanguage(3);
  switcher.setLanguage(3);
  switcher.setLanguage(1);
  QApplication::processEvents();
  EXPECT_THAT(spy.widths, testing::ElementsAre(440, 400));
}

TEST_F(SwitcherGeometry, AMaximizedWindowIsNotScaled) {
  form.showMaximized();
  const int width = form.width();
  switcher.addForm(&form);
  switcher.setLanguage(2);
  EXPECT_EQ(form.width(), width);
  EXPECT_EQ(form.btnOk->width(), 112) << "its controls are";
}

TEST_F(SwitcherGeometry, AWidthThatWasWrittenIsPutBackAfterTheWindowWasMaximized) {
  form.show();
  switcher.addForm(&form);
  switcher.setLanguage(2);
  form.setWindowState(Qt::WindowMaximized);
  QApplication::processEvents();
  const int maximized = form.width();
  ASSERT_NE(maximized, 500);
  switcher.setLanguage(1);
  EXPECT_EQ(form.width(), maximized);
  form.setWindowState(Qt::WindowNoState);
  QApplication::processEvents();
  ASSERT_EQ(form.width(), 500);
  switcher.refresh();
  EXPECT_EQ(form.width(), 400);
}

TEST_F(SwitcherGeometry, WhatTheApplicationMovesAlongWithTheWindowMovesBackAlong) {
  RightAlignedDialog dialog;
  dialog.show();
  model.UpdateWithForm(hostForm(&dialog));
  setWidthFactor(model, u"FrmDroite", 2, 1.5);
  setLeftFactor(model, u"FrmDroite\\btnFin", 2, 0.5);
  setLeftFactor(model, u"FrmDroite\\btnFin", 3, 0.9);
  switcher.addForm(&dialog);
  switcher.setLanguage(2);
  EXPECT_EQ(dialog.width(), 600);
  EXPECT_EQ(dialog.btnFin->x(), 250);
  switcher.setLanguage(3);
  EXPECT_EQ(dialog.width(), 400);
  EXPECT_EQ(dialog.btnFin->x(), 270);
  switcher.setLanguage(1);
  EXPECT_EQ(dialog.btnFin->x(), 300);
}

TEST_F(SwitcherGeometry, WhatTheApplicationMovesByADifferenceMovesBackByIt) {
  QDialog dialog;
  dialog.setObjectName(QStringLiteral("FrmCadre"));
  auto* const frame = add<GrowingFrame>(dialog, "cadre");
  frame->setGeometry(0, 0, 200, 50);
  QLabel* const label = addLabel(*frame, "lbl", "x");
  label->move(100, 0);
  frame->label = label;
  model.UpdateWithForm(hostForm(&dialog));
  frame->setTitle(QStringLiteral("x"));
  model.UpdateWithForm(hostForm(&dialog));
  setWidthFactor(model, u"FrmCadre\\cadre", 2, 1.5);
  setLeftFactor(model, u"FrmCadre\\cadre\\lbl", 2, 1.1);
  dialog.show();
  switcher.addForm(&dialog);
  switcher.setLanguage(2);
  EXPECT_EQ(label->x(), 220);
  switcher.setLanguage(1);
  EXPECT_EQ(frame->width(), 200);
  EXPECT_EQ(label->x(), 100);
}

TEST_F(SwitcherGeometry, AWidthThatWasOnceWrittenIsTheUsersOwnLater) {
  switcher.addForm(&form);
  switcher.setLanguage(2);
  ASSERT_EQ(form.width(), 500);
  switcher.setLanguage(1);
  form.resize(500, 300);
  form.btnOk->resize(112, 30);
  switcher.refresh();
  EXPECT_EQ(form.width(), 500);
  EXPECT_EQ(form.btnOk->width(), 112);
}

/// Forms whose window grows with its texts.
struct LaidOutGeometry : testing::Test {
  LaidOutGeometry() : switcher(model), label(addLabel(form, "lblNom", "Nom")) {
    form.setObjectName(QStringLiteral("FrmLayout"));
    auto* const layout = new QHBoxLayout(&form);
    layout->addWidget(label);
    model.UpdateWithForm(hostForm(&form));
    setCaption(model, u"FrmLayout\\lblNom", 2, Text(60, u'W'));
    setCaption(model, u"FrmLayout\\lblNom", 3, Text(90, u'W'));
  }

  KOBModeleTraduction model;
  RecordedBoxes boxes;
  QDialog form;
  LanguageSwitcher switcher;
  QLabel* label;
};

TEST_F(LaidOutGeometry, RoomThatALanguageNeededIsGivenBack) {
  form.resize(200, 100);
  form.show();
  switcher.addForm(&form);
  switcher.setLanguage(2);
  ASSERT_GT(form.width(), 200);
  ASSERT_EQ(form.width(), form.minimumWidth());
  switcher.setLanguage(3);
  EXPECT_EQ(form.width(), form.minimumWidth());
  switcher.setLanguage(1);
  EXPECT_EQ(form.width(), 200);
  EXPECT_EQ(form.layout()->geometry().width(), 200);
}

TEST_F(LaidOutGeometry, AScaledWidthThatDoesNotSufficeGrowsAndIsPutBack) {
  setWidthFactor(model, u"FrmLayout", 2, 1.1);
  setWidthFactor(model, u"FrmLayout", 3, 1.2);
  form.resize(200, 100);
  form.show();
  switcher.addForm(&form);
  for (int round = 0; round < 3; ++round) {
    switcher.setLanguage(2);
    EXPECT_EQ(form.width(), form.minimumWidth());
    switcher.setLanguage(3);
    EXPECT_EQ(form.width(), form.minimumWidth());
    switcher.setLanguage(1);
    EXPECT_EQ(form.width(), 200);
  }
}

TEST_F(LaidOutGeometry, TheNextLanguageScalesTheOriginalAlthoughTheOldTextsStillTakeRoom) {
  setWidthFactor(model, u"FrmLayout", 4, 1.5);
  form.resize(200, 100);
  form.show();
  switcher.addForm(&form);
  switcher.setLanguage(3);
  ASSERT_GT(form.width(), 300);
  switcher.setLanguage(4);
  EXPECT_EQ(form.width(), 300);
}

TEST_F(LaidOutGeometry, ALanguageSwitchedWhileHiddenIsSettledWhenShown) {
  form.resize(200, 100);
  form.show();
  switcher.addForm(&form);
  switcher.setLanguage(3);
  ASSERT_GT(form.width(), 200);
  form.hide();
  switcher.setLanguage(1);
  form.show();
  EXPECT_EQ(form.width(), 200);
}

TEST_F(LaidOutGeometry, AWindowThatNeverGotASizeIsScaledFromTheOneThatItWouldBeShownWith) {
  const int natural = form.sizeHint().width();
  setWidthFactor(model, u"FrmLayout", 4, 2);
  switcher.addForm(&form);
  switcher.setLanguage(4);
  form.show();
  EXPECT_EQ(form.width(), natural * 2);
  switcher.setLanguage(1);
  EXPECT_EQ(form.width(), natural);
}

TEST_F(LaidOutGeometry, TheSizeThatTheWindowSystemGaveIsTheOneThatIsScaled) {
  setWidthFactor(model, u"FrmLayout", 4, 2);
  form.show();
  form.windowHandle()->resize(250, 100);
  QApplication::processEvents();
  ASSERT_EQ(form.width(), 250);
  switcher.addForm(&form);
  switcher.setLanguage(4);
  EXPECT_EQ(form.width(), 500);
}

TEST_F(LaidOutGeometry, WhatTheUserResizedStays) {
  form.resize(200, 100);
  form.show();
  switcher.addForm(&form);
  switcher.setLanguage(2);
  const int wider = form.width() + 100;
  form.resize(wider, 100);
  switcher.setLanguage(1);
  EXPECT_EQ(form.width(), wider);
}

}  // namespace
}  // namespace kob::qt::live
