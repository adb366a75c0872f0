// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Layouts.h"
#include "LineList.h"
#include "QtDialogWindow.h"

#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kob::qt {

namespace {

/// OK, which Return presses, and Annuler, which Escape presses, at the right.
QHBoxLayout* answers(QtDialogWindow& window, const char* ok) {
  auto* const row = new QHBoxLayout;
  auto* const accept = window.shown<QPushButton>(ok);
  row->addStretch();
  row->addWidget(accept);
  row->addWidget(window.shown("bCancel"));
  accept->setAutoDefault(true);
  accept->setDefault(true);
  return row;
}

/// What a label says is what assistive tools call the field beside it.
void nameByLabel(QWidget* field, const QWidget* label) {
  if (const auto* const text = qobject_cast<const QLabel*>(label)) {
    field->setAccessibleName(text->text());
  }
}

}  // namespace

void layOutAddNoeud(QtDialogWindow& window) {
  auto* const grid = new QGridLayout;
  const auto field = [&](int row, const char* label, const char* text) {
    grid->addWidget(window.shown(label), row, 0, Qt::AlignTop);
    grid->addWidget(window.shown(text), row, 1);
    nameByLabel(window.shown(text), window.shown(label));
  };
  field(0, "lbName", "tbNom");
  field(1, "Label2", "tbAlias");
  auto* const kinds = new QHBoxLayout;
  for (int kind = 0; kind < 3; ++kind) {
    kinds->addWidget(window.shown("OptTypFeuille", kind));
  }
  kinds->addSpacing(16);
  kinds->addWidget(window.shown("chkContexte"));
  kinds->addStretch();
  grid->addLayout(kinds, 2, 1);
  field(3, "lb1", "tb1");
  field(4, "lb2", "tb2");
  grid->setRowStretch(3, 1);
  grid->setRowStretch(4, 1);
  grid->setColumnStretch(1, 1);
  for (const char* const label : {"lbName", "Label2"}) {
    grid->setAlignment(window.shown(label), Qt::AlignVCenter);
  }
  auto* const rows = new QVBoxLayout(&window.dialog());
  rows->addLayout(grid, 1);
  rows->addLayout(answers(window, "bOK"));
  window.dialog().resize(440, 300);
}

void layOutAddTrad(QtDialogWindow& window) {
  auto* const row = new QHBoxLayout;
  row->addWidget(window.shown("Label1"));
  row->addWidget(window.shown("tbNomTrad"), 1);
  nameByLabel(window.shown("tbNomTrad"), window.shown("Label1"));
  auto* const rows = new QVBoxLayout(&window.dialog());
  rows->addLayout(row);
  rows->addStretch();
  rows->addLayout(answers(window, "bOk"));
  window.dialog().resize(340, 110);
}

void layOutRecherche(QtDialogWindow& window) {
  const auto condition = [&window](const char* frame, int box, const char* field) {
    QWidget* const group = window.shown(frame);
    auto* const row = new QHBoxLayout(group);
    row->addWidget(window.shown("CkSearch", box));
    row->addWidget(window.shown(field), 1);
    const auto* const titled = qobject_cast<const QGroupBox*>(group);
    window.shown("CkSearch", box)->setAccessibleName(titled->title());
    window.shown(field)->setAccessibleName(titled->title());
    return group;
  };
  auto* const rows = new QVBoxLayout(&window.dialog());
  rows->addWidget(condition("Frame1", 0, "tbSearchString"));
  rows->addWidget(condition("Frame2", 1, "CbLangueSearch"));
  auto* const search = window.shown<QPushButton>("bNewSearch");
  search->setAutoDefault(true);
  search->setDefault(true);
  rows->addWidget(search, 0, Qt::AlignRight);
  auto* const hits = window.shown<LineList>("List1");
  // Walking to a hit would close the search before the next one could be reached.
  hits->setKeys(LineList::Keys::ReturnReaches);
  hits->setAccessibleName(window.dialog().windowTitle().remove(QStringLiteral("[*]")));
  rows->addWidget(hits, 1);
  window.dialog().resize(380, 440);
}

}  // namespace kob::qt
