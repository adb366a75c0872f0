// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveForms.h"
#include "LiveModel.h"

#include <kobtraductionqt/KOBTraductionQt.h>
#include <kobtraductionqt/LanguageSwitcher.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QTranslator>

#include <gmock/gmock.h>

namespace kob::qt::live {
namespace {

/// Writes its texts again whenever the application's translators change, as generated forms do.
struct RetranslatedDialog : ClientDialog {
  RetranslatedDialog() {
    box = add<QDialogButtonBox>(*this, "boutons");
    box->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    box->setGeometry(0, 0, 200, 30);
  }

  void changeEvent(QEvent* event) override {
    if (event->type() == QEvent::LanguageChange) {
      ++retranslations;
      lblNom->setText(QStringLiteral("Nom"));
    }
    ClientDialog::changeEvent(event);
  }

  QDialogButtonBox* box;
  int retranslations = 0;
};

struct Retranslation : testing::Test {
  Retranslation() : cancel(form.box->button(QDialogButtonBox::Cancel)), reference(cancel->text()) {
    model.UpdateWithForm(hostForm(&form));
    setCaption(model, u"FrmClients\\lblNom", 2, u"Name");
    setCaption(model, u"FrmClients\\boutons\\Cancel", 2, u"Never mind");
    setWidthFactor(model, u"FrmClients\\lblNom", 2, 2);
    switcher.addForm(&form);
  }

  static void deliver() {
    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(qApp, &change);
    QApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
  }

  KOBModeleTraduction model;
  RecordedBoxes boxes;
  RetranslatedDialog form;
  QAbstractButton* cancel;
  QString reference;
  LanguageSwitcher switcher{model};
};

TEST_F(Retranslation, TheToolkitWritesItsOwnTextsWhenTranslatorsChange) {
  switcher.setLanguage(2);
  ASSERT_EQ(cancel->text(), QStringLiteral("Never mind"));
  deliver();
  EXPECT_EQ(form.retranslations, 1);
  EXPECT_EQ(cancel->text(), reference);
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Nom"));
}

TEST_F(Retranslation, OurTextsFollowBeforeAnythingElseIsDone) {
  switcher.setLanguage(2);
  deliver();
  QApplication::sendPostedEvents();
  EXPECT_EQ(cancel->text(), QStringLiteral("Never mind"));
  EXPECT_EQ(form.lblNom->text(), QStringLiteral("Name"));
  EXPECT_EQ(form.lblNom->width(), 200) << "and nothing scales twice";
}

TEST_F(Retranslation, OnceForSeveralChanges) {
  switcher.setLanguage(2);
  const auto factors = model.GetCell(u"FrmClients\\lblNom")->ColLeft();
  while (factors->Count() > 0) {
    factors->Remove(1);
  }
  deliver();
  deliver();
  deliver();
  ASSERT_TRUE(boxes.notices.empty());
  QApplication::sendPostedEvents();
  EXPECT_EQ(form.retranslations, 3);
  EXPECT_EQ(boxes.notices.size(), 1U) << "the damaged cell tells each time that the language is applied";
}

TEST_F(Retranslation, InAWatchedWindowToo) {
  RetranslatedDialog watched;
  switcher.watchApplication();
  switcher.setLanguage(2);
  watched.show();
  ASSERT_EQ(watched.lblNom->text(), QStringLiteral("Name"));
  deliver();
  QApplication::sendPostedEvents();
  EXPECT_GE(watched.retranslations, 1);
  EXPECT_EQ(watched.lblNom->text(), QStringLiteral("Name"));
}

TEST_F(Retranslation, ARemovedFormKeepsTheToolkitsTexts) {
  switcher.setLanguage(2);
  switcher.removeForm(&form);
  deliver();
  QApplication::sendPostedEvents();
  EXPECT_EQ(cancel->text(), reference);
}

TEST_F(Retranslation, AFormDeletedMeanwhile) {
  auto doomed = std::make_unique<RetranslatedDialog>();
  switcher.addForm(doomed.get());
  deliver();
  doomed.reset();
  QApplication::sendPostedEvents();
  EXPECT_TRUE(boxes.notices.empty());
}

}  // namespace
}  // namespace kob::qt::live
