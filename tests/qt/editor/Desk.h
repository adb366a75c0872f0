// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "tests/model/ModelVocabulary.h"
#include "tests/qt/demo/QtPrinting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraductionqt/KOBTraductionQt.h>
#include <kobtraductionqt/QtMessageBoxes.h>
#include <kobtraductionqt/QtWidgetSet.h>

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <deque>
#include <functional>
#include <stdexcept>
#include <string>

class QLineEdit;
class QListView;
class QPlainTextEdit;

/// Somebody in front of the editor's real windows.
namespace kob::qt::testing {

using namespace kob::test;

/// One open window, and what a person does and sees there. A widget is named as the editor names it, one of
/// an array as "tbTradCtrl(2)"; asking for what is not there fails the test.
class Window {
 public:
  explicit Window(QWidget& window) noexcept : window_(window) {}

  QWidget& widget() const noexcept { return window_; }
  template <class Control = QWidget>
  Control& the(const char* name) const {
    // Without a name, the only one of its kind.
    auto* const found =
        *name == '\0' ? window_.findChild<Control*>() : window_.findChild<Control*>(QLatin1String(name));
    if (found == nullptr) {
      throw std::runtime_error(std::string("no widget ") + name);
    }
    return *found;
  }

  /// Keys and clicks as events of the toolkit.
  void type(const char* textBox, const QString& text) const;
  void press(const char* button) const;
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;
  void clickNode(const QString& path) const;
  void clickLine(const char* list, int line) const;

  bool sees(const char* name) const { return the(name).isVisible(); }
  QString text(const char* textBox) const;
  QStringList lines(const char* list) const;
  int line(const char* list) const;
  QString selectedNode() const;
  QTreeView& tree() const { return the<QTreeView>("TV"); }
  /// By the names on the way, joined by "\"; invalid when there is none.
  QModelIndex node(const QString& path) const;

 private:
  QWidget& window_;
};

using Script = std::function<void(const Window&)>;

/// What becomes of windows that open: each takes the next script, and is closed after it.
class Desk {
 public:
  Desk();
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;
  ~Desk();

  void whenOpen(Script script) { scripts_.push_back(std::move(script)); }
  /// Titles of the windows that had opened, in order.
  const QStringList& opened() const noexcept { return opened_; }

 private:
  void look();

  std::deque<Script> scripts_;
  QList<QPointer<QWidget>> known_;
  QStringList opened_;
  QTimer rescue_;
};

/// Six languages, a model with the top-level cell "App", the editor's windows and real message boxes.
class EditorOnScreen : public ::testing::Test, public ModelTestScope {
 protected:
  /// Opens the editor, and lets a person act in it.
  void edit(std::int32_t mode, TextView path, Script script) {
    desk.whenOpen(std::move(script));
    model.Show(mode, path);
  }
  void edit(TextView path, Script script) { edit(full, path, std::move(script)); }
  void answer(Script script) { desk.whenOpen(std::move(script)); }

  static constexpr std::int32_t restricted = 1;
  static constexpr std::int32_t full = 0;

  QtWidgetSet widgets;
  QtMessageBoxes questions;
  KOBModeleTraduction model;
  CellRef app = model.Racine()->AddNoeuds(u"App");
  Desk desk;
};

}  // namespace kob::qt::testing
