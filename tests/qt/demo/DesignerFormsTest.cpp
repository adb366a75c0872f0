// SPDX-FileCopyrightText: The KOBTraduction authors
#include "QtPrinting.h"

#include <DesignerForms.h>
#include <PrintedBoxes.h>

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>

namespace kob::demo {

using namespace Qt::StringLiterals;

namespace {

QString form(const char* name) {
  return QStringLiteral(KOB_DEMO_FORMS) + u'/' + QLatin1String(name);
}

class Designer : public testing::Test {
 protected:
  ~Designer() override { EXPECT_EQ(boxes_.shown(), QStringList()); }

  PrintedBoxes boxes_;
};

TEST_F(Designer, AFormIsShownInTheTestLanguage) {
  DesignerForms forms({form("reservation.ui")});
  ASSERT_EQ(forms.errors(), QStringList());
  forms.showTestLanguage();
  const QWidget& shown = *forms.forms().front().widget;
  EXPECT_EQ(shown.windowTitle(), u"** Réserver un outil **"_s);
  EXPECT_EQ(shown.findChild<QLabel*>(u"lblQuand"_s)->text(), u"** Pour quel jour ? **"_s);
  EXPECT_EQ(shown.findChild<QAbstractButton*>(u"chkPrevenir"_s)->toolTip(),
            u"** La veille, par courriel **"_s);
}

TEST_F(Designer, ScopedEnumeratorsGiveTheButtonsThatWereDesigned) {
  const DesignerForms forms({form("reservation.ui")});
  ASSERT_EQ(forms.forms().size(), 1U);
  const QWidget* const box = forms.forms().front().widget->findChild<QWidget*>(u"boutons"_s);
  EXPECT_EQ(box->findChildren<QAbstractButton*>().size(), 2);
}

TEST_F(Designer, TheSameFormTwiceHasTwoPictures) {
  const QTemporaryDir folder;
  DesignerForms forms({form("reservation.ui"), form("reservation.ui")});
  EXPECT_EQ(forms.savePictures(folder.path()).size(), 2);
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files),
            QStringList({u"reservation-2.png"_s, u"reservation.png"_s}));
}

TEST_F(Designer, WhatCannotBeLoadedIsTold) {
  const DesignerForms forms(
      {form("cut.ui"), form("unknown-root.ui"), form("missing.ui"), form("reservation.ui")});
  EXPECT_EQ(forms.forms().size(), 1U);
  ASSERT_EQ(forms.errors().size(), 3);
  EXPECT_TRUE(forms.errors()[0].startsWith(form("cut.ui") + u": "_s));
  EXPECT_TRUE(forms.errors()[1].startsWith(form("unknown-root.ui") + u": "_s));
  EXPECT_TRUE(forms.errors()[1].contains(u"\"TableauDeBord\""_s)) << forms.errors()[1].toStdString();
  EXPECT_TRUE(forms.errors()[2].startsWith(form("missing.ui") + u": cannot be read"_s));
}

}  // namespace

}  // namespace kob::demo
