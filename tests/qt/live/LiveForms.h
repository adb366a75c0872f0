// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QWidget>

#include <string>

namespace kob::qt::live {

template <class Widget>
Widget* add(QWidget& parent, const char* name) {
  auto* const widget = new Widget(&parent);
  widget->setObjectName(QString::fromUtf8(name));
  return widget;
}

QLabel* addLabel(QWidget& parent, const char* name, const char* text);
QPushButton* addButton(QWidget& parent, const char* name, const char* text, const char* toolTip = "");
QGroupBox* addFrame(QWidget& parent, const char* name, const char* title);

/// A dialog of fixed geometry: FrmClients "Clients" with the label lblNom "Nom", the frame cadre "Adresse"
/// that holds the label lblRue "Rue", and the button btnOk "OK", tool tip "Valide".
struct ClientDialog : QDialog {
  ClientDialog();

  QLabel* lblNom;
  QGroupBox* cadre;
  QLabel* lblRue;
  QPushButton* btnOk;
};

/// A main window FenPrincipale "Principale" with the tool bar barre that carries the button btnOuvrir
/// "Ouvrir", tool tip "Ouvre un dossier"; the entries of its menu are actRecent "Récents" and actNouveau
/// "Nouveau". The menu bar has the menu mnuFichier "Fichier" with the action actQuitter "Quitter".
struct MainForm : QMainWindow {
  MainForm();

  QToolBar* barre;
  QToolButton* btnOuvrir;
  QAction* actRecent;
  QAction* actNouveau;
  QMenu* mnuFichier;
  QAction* actQuitter;
};

/// A dialog FrmOnglets "Onglets" with the tab widget onglets of three tabs "Un", "Deux", "Trois"; the page of
/// the first holds the label lblPage "Page".
struct TabDialog : QDialog {
  TabDialog();

  QTabWidget* onglets;
  QLabel* lblPage;
};

/// Every text and tool tip that the form shows, a line each, to compare before with after.
std::string printTexts(const QWidget& form);

}  // namespace kob::qt::live
