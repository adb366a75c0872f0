// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LanguageBadge.h"
#include "Layouts.h"
#include "NodeTree.h"
#include "Panes.h"
#include "QtDialogWindow.h"

#include <QAction>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <tuple>

namespace kob::qt {

namespace {

constexpr int languages = 6;
constexpr int messagePictures = 0;
constexpr int controlPictures = languages;

QWidget* frameName(QtDialogWindow& window) {
  QWidget* const frame = window.shown("FrName");
  auto* const grid = new QGridLayout(frame);
  grid->addWidget(window.shown("lbName"), 0, 0);
  grid->addWidget(window.shown("tbNom"), 0, 1);
  grid->addWidget(window.shown("Label2"), 0, 2);
  grid->addWidget(window.shown("tbAlias"), 0, 3);
  auto* const kinds = new QHBoxLayout;
  for (int kind = 0; kind < 3; ++kind) {
    kinds->addWidget(window.shown("OptTypFeuille", kind));
  }
  kinds->addSpacing(12);
  kinds->addWidget(window.shown("chkContexte"));
  kinds->addStretch();
  grid->addLayout(kinds, 1, 0, 1, 4);
  grid->addWidget(window.shown("lContexte"), 2, 0);
  grid->addWidget(window.shown("tbContexte"), 2, 1, 1, 3);
  grid->setColumnStretch(1, 3);
  grid->setColumnStretch(3, 2);
  window.shown("tbNom")->setAccessibleName(QStringLiteral("Name"));
  window.shown("tbAlias")->setAccessibleName(QStringLiteral("Alias"));
  window.shown("tbContexte")->setAccessibleName(QStringLiteral("Contexte"));
  return frame;
}

/// The text of a language beside its picture; called after the language.
void addText(QGridLayout& grid, int row, QWidget* picture, QWidget* text, int language) {
  grid.addWidget(picture, row, 0, Qt::AlignTop);
  grid.addWidget(text, row, 1);
  grid.setRowStretch(row, 1);
  text->setAccessibleName(languageName(language));
}

QWidget* frameMessage(QtDialogWindow& window) {
  QWidget* const frame = window.shown("FrMessage");
  auto* const grid = new QGridLayout(frame);
  for (int i = 0; i < languages; ++i) {
    addText(*grid, i, window.shown("ImgTradMess", messagePictures + i), window.shown("tbTradMessage", i),
            i + 1);
  }
  return frame;
}

/// The factors of a language below its text: both sliders equally wide, each with the button that resets it.
QGridLayout* factors(QtDialogWindow& window, int i) {
  const QString language = languageName(i + 1);
  auto* const row = new QGridLayout;
  row->setContentsMargins(0, 0, 0, 0);
  row->setHorizontalSpacing(4);
  int column = 0;
  for (const auto& [slider, reset, caption] :
       {std::tuple("sldLeft", "bl1", "Left"), std::tuple("sldwidth", "bw1", "Width")}) {
    const QString name = QLatin1String(caption) + QStringLiteral(" – ") + language;
    window.shown(slider, i)->focusProxy()->setAccessibleName(name);
    auto* const button = window.shown<QPushButton>(reset, i);
    button->setAccessibleName(QStringLiteral("1 – ") + name);
    button->setFixedWidth(button->fontMetrics().horizontalAdvance(QStringLiteral("1")) + 16);
    row->addWidget(window.shown(slider, i), 0, column);
    row->setColumnStretch(column, 1);
    row->addWidget(button, 0, column + 1);
    column += 2;
  }
  return row;
}

QWidget* frameControl(QtDialogWindow& window) {
  QWidget* const frame = window.shown("FrControl");
  auto* const grid = new QGridLayout(frame);
  auto* const top = new QHBoxLayout;
  top->addWidget(window.shown("LstNomTrad"), 1);
  auto* const beside = new QVBoxLayout;
  for (const char* const name : {"bAddTrad", "bSupTrad", "chkPosition"}) {
    beside->addWidget(window.shown(name));
  }
  beside->addStretch();
  top->addLayout(beside);
  window.shown("LstNomTrad")->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  window.shown("LstNomTrad")->setAccessibleName(QStringLiteral("Traductions"));
  grid->addLayout(top, 0, 0, 1, 2);
  for (int i = 0; i < languages; ++i) {
    addText(*grid, 1 + 2 * i, window.shown("ImgTradMess", controlPictures + i), window.shown("tbTradCtrl", i),
            i + 1);
    grid->addLayout(factors(window, i), 2 + 2 * i, 1);
  }
  return frame;
}

void fillPane(QtDialogWindow& window) {
  QWidget* const content = window.shown<Pane>("PProperty")->widget();
  auto* const rows = new QVBoxLayout(content);
  rows->setContentsMargins(8, 0, 0, 0);
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(window.shown("bAdd"));
  buttons->addWidget(window.shown("bSupp"));
  buttons->addStretch();
  rows->addLayout(buttons);
  rows->addWidget(frameName(window));
  rows->addWidget(frameMessage(window), 1);
  rows->addWidget(frameControl(window), 1);
  // Takes the room while no texts are shown.
  rows->addStretch();
}

void setMenuKeys(const QtDialogWindow& window) {
  const auto set = [&window](const char* name, const QKeySequence& key) {
    window.dialog().findChild<QAction*>(QLatin1String(name))->setShortcut(key);
  };
  set("m_Save", QKeySequence(Qt::CTRL | Qt::Key_S));
  set("m_SaveAs", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
  set("m_Search", QKeySequence(Qt::CTRL | Qt::Key_F));
}

void focusText(const QtDialogWindow& window, int i) {
  for (const char* const name : {"tbTradMessage", "tbTradCtrl"}) {
    if (QWidget* const text = window.shown(name, i); text->isVisible()) {
      text->setFocus(Qt::ShortcutFocusReason);
    }
  }
}

void press(const QtDialogWindow& window, const char* name) {
  if (auto* const button = window.shown<QPushButton>(name); button->isVisible()) {
    button->click();
  }
}

/// Keys for who works here all day; docs/editor.md lists them.
void setWorkingKeys(QtDialogWindow& window) {
  QDialog& dialog = window.dialog();
  auto* const tree = window.shown<NodeTree>("TV");
  const auto key = [](const QKeySequence& keys, QWidget* where, Qt::ShortcutContext context, auto act) {
    auto* const shortcut = new QShortcut(keys, where);
    shortcut->setContext(context);
    QObject::connect(shortcut, &QShortcut::activated, where, act);
  };
  key(QKeySequence(Qt::CTRL | Qt::Key_PageDown), &dialog, Qt::WindowShortcut, [tree] { tree->stepDown(); });
  key(QKeySequence(Qt::CTRL | Qt::Key_PageUp), &dialog, Qt::WindowShortcut, [tree] { tree->stepUp(); });
  key(QKeySequence(Qt::Key_F6), &dialog, Qt::WindowShortcut, [&window, tree] {
    if (tree->hasFocus()) {
      focusText(window, 1);
    } else {
      tree->setFocus(Qt::ShortcutFocusReason);
    }
  });
  for (int i = 0; i < languages; ++i) {
    key(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + i)), &dialog, Qt::WindowShortcut,
        [&window, i] { focusText(window, i); });
  }
  key(QKeySequence(Qt::CTRL | Qt::Key_W), &dialog, Qt::WindowShortcut, [&dialog] { dialog.close(); });
  key(QKeySequence(Qt::Key_Insert), tree, Qt::WidgetShortcut, [&window] { press(window, "bAdd"); });
  key(QKeySequence(Qt::Key_Delete), tree, Qt::WidgetShortcut, [&window] { press(window, "bSupp"); });
}

}  // namespace

void layOutTraduction(QtDialogWindow& window) {
  fillPane(window);
  auto* const area = window.shown<PaneSplitter>("pConteneur");
  area->setStretchFactor(0, 1);
  area->setStretchFactor(1, 2);
  auto* const status = window.shown<QLabel>("lbStatus");
  status->setWordWrap(true);
  QFont bold = status->font();
  bold.setBold(true);
  status->setFont(bold);
  // Nothing moves when there is something to say.
  status->setMinimumHeight(status->fontMetrics().height());
  auto* const rows = new QVBoxLayout(&window.dialog());
  rows->setMenuBar(window.menuBar());
  rows->addWidget(area, 1);
  rows->addWidget(status);
  setMenuKeys(window);
  setWorkingKeys(window);
  window.dialog().resize(1000, 720);
  area->setSizes({320, 680});
}

}  // namespace kob::qt
