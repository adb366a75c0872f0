// SPDX-FileCopyrightText: The KOBTraduction authors
#include "QtPrinting.h"

#include <FitCheck.h>
#include <Pictures.h>

#include <gtest/gtest.h>

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolBar>

namespace kob::demo {

using namespace Qt::StringLiterals;

namespace {

/// A form with one control, which is given less and less width: first it fits, then it does not.
class FitCheck : public testing::Test {
 protected:
  FitCheck() { form_.setObjectName(u"Form"_s); }

  QStringList misfits(QWidget& control, int width, int height = 40) {
    control.setParent(&form_);
    control.setObjectName(u"control"_s);
    control.setGeometry(0, 0, width, height);
    form_.resize(900, 300);
    showUnseen(form_);
    QStringList result;
    for (const Misfit& misfit : findMisfits(form_)) {
      result += describe(misfit, form_, u"xx"_s);
    }
    return result;
  }

  void expectFitsAt(QWidget& control, int wide, int narrow, const QString& found, int height = 40) {
    EXPECT_EQ(misfits(control, wide, height), QStringList());
    const QStringList list = misfits(control, narrow, height);
    ASSERT_FALSE(list.isEmpty());
    EXPECT_TRUE(list[0].startsWith(found)) << list[0].toStdString();
  }

  QWidget form_;
};

TEST_F(FitCheck, Label) {
  QLabel label(u"Nom de famille"_s);
  expectFitsAt(label, 200, 40, u"Form\\control [xx]: needs "_s);
}

TEST_F(FitCheck, WrappedLabelNeedsHeight) {
  QLabel label(u"un deux trois quatre cinq six sept huit neuf dix"_s);
  label.setWordWrap(true);
  expectFitsAt(label, 400, 70, u"Form\\control [xx]: needs "_s);
  EXPECT_TRUE(misfits(label, 70).first().contains(u"of height"_s));
}

TEST_F(FitCheck, AWordWiderThanItsWrappedLabel) {
  QLabel label(u"Donaudampfschifffahrt"_s);
  label.setWordWrap(true);
  expectFitsAt(label, 300, 60, u"Form\\control [xx]: needs "_s, 200);
}

TEST_F(FitCheck, Button) {
  QPushButton button(u"Enregistrer"_s);
  expectFitsAt(button, 200, 50, u"Form\\control [xx]: needs "_s);
}

TEST_F(FitCheck, GroupTitle) {
  QGroupBox box(u"Une durée de prêt"_s);
  expectFitsAt(box, 300, 60, u"Form\\control [xx] title: needs "_s, 80);
}

TEST_F(FitCheck, Placeholder) {
  QLineEdit edit;
  edit.setPlaceholderText(u"Rayures, pièces manquantes"_s);
  expectFitsAt(edit, 300, 60, u"Form\\control [xx] placeholder: needs "_s);
}

TEST_F(FitCheck, WrappedPlaceholder) {
  QPlainTextEdit edit;
  edit.setPlaceholderText(u"un deux trois quatre cinq six sept huit neuf dix onze douze treize"_s);
  expectFitsAt(edit, 600, 80, u"Form\\control [xx] placeholder: needs "_s, 50);
}

TEST_F(FitCheck, ComboItemThatIsNotTheCurrentOne) {
  QComboBox combo;
  combo.addItems({u"Oui"_s, u"Toutes les catégories d’outils"_s});
  expectFitsAt(combo, 320, 80, u"Form\\control [xx] item 1: needs "_s);
}

TEST_F(FitCheck, Tabs) {
  QTabWidget tabs;
  for (const QString& text : {u"Premier onglet"_s, u"Deuxième onglet"_s, u"Troisième onglet"_s}) {
    tabs.addTab(new QWidget, text);
  }
  expectFitsAt(tabs, 600, 180, u"Form\\control [xx] tab "_s, 100);
}

TEST_F(FitCheck, TabsThatAreElidedInsteadOfScrolled) {
  QTabWidget tabs;
  tabs.setUsesScrollButtons(false);
  tabs.setElideMode(Qt::ElideRight);
  for (const QString& text : {u"Premier onglet"_s, u"Deuxième onglet"_s, u"Troisième onglet"_s}) {
    tabs.addTab(new QWidget, text);
  }
  expectFitsAt(tabs, 600, 180, u"Form\\control [xx] tab "_s, 100);
}

TEST_F(FitCheck, MenuBar) {
  QMenuBar menus;
  for (const QString& text : {u"Fichier"_s, u"Affichage"_s, u"Préférences"_s}) {
    menus.addMenu(text);
  }
  expectFitsAt(menus, 500, 90, u"Form\\control [xx] menu: needs "_s, 26);
}

TEST_F(FitCheck, ToolBar) {
  QToolBar bar(u"Barre"_s);
  bar.setToolButtonStyle(Qt::ToolButtonTextOnly);
  for (const QString& text : {u"Prêter"_s, u"Prolonger"_s, u"Imprimer"_s}) {
    bar.addAction(text);
  }
  expectFitsAt(bar, 500, 80, u"Form\\control [xx] buttons: needs "_s, 40);
}

TEST_F(FitCheck, ColumnHeading) {
  QTableWidget table(1, 1);
  table.setHorizontalHeaderLabels({u"Numéro d’inventaire"_s});
  table.setColumnWidth(0, 200);
  EXPECT_EQ(misfits(table, 400, 200), QStringList());
  table.setColumnWidth(0, 40);
  EXPECT_TRUE(misfits(table, 400, 200).first().startsWith(u"Form\\control [xx] column 0: needs "_s));
}

TEST_F(FitCheck, WindowTitle) {
  form_.setWindowTitle(u"Un titre qui est plus long que sa fenêtre"_s);
  form_.resize(200, 100);
  showUnseen(form_);
  ASSERT_EQ(findMisfits(form_).size(), 1U);
  EXPECT_EQ(findMisfits(form_)[0].control, &form_);
}

TEST_F(FitCheck, ControlsThatLieOverEachOther) {
  QLabel first(u"a"_s);
  QLabel second(u"b"_s, &form_);
  second.setObjectName(u"second"_s);
  second.setGeometry(100, 0, 50, 40);
  EXPECT_EQ(misfits(first, 100), QStringList());
  EXPECT_EQ(misfits(first, 103), QStringList(u"Form\\second [xx]: lies 3 pixels over control: \"b\""_s));
}

TEST_F(FitCheck, AControlThatReachesOutOfItsParent) {
  QLabel label(u"a"_s);
  EXPECT_EQ(misfits(label, 900), QStringList());
  EXPECT_EQ(misfits(label, 910),
            QStringList(u"Form\\control [xx]: needs 910 pixels of width, its parent has 900: \"a\""_s));
}

TEST_F(FitCheck, WhatIsHiddenIsNotLookedAt) {
  QLabel label(u"Nom de famille"_s, &form_);
  label.hide();
  QPushButton other(u"x"_s);
  EXPECT_EQ(misfits(other, 100), QStringList());
}

}  // namespace

}  // namespace kob::demo
