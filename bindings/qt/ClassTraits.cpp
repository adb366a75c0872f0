// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ClassTraits.h"

#include "InternalObjects.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolBar>
#include <QToolBox>
#include <QToolButton>
#include <QWizard>

namespace kob::qt {

namespace {

template <class Widget>
bool is(const QMetaObject& metaObject) {
  return metaObject.inherits(&Widget::staticMetaObject);
}

Kind kindOf(const QMetaObject& metaObject) {
  if (is<QLabel>(metaObject)) {
    return Kind::Label;
  }
  if (is<QToolButton>(metaObject)) {
    return Kind::ToolButton;
  }
  if (is<QAbstractButton>(metaObject)) {
    return Kind::Button;
  }
  if (is<QGroupBox>(metaObject)) {
    return Kind::GroupBox;
  }
  if (is<QLineEdit>(metaObject)) {
    return Kind::LineEdit;
  }
  if (is<QComboBox>(metaObject)) {
    return Kind::ComboBox;
  }
  if (is<QMenu>(metaObject)) {
    return Kind::Menu;
  }
  if (is<QTabWidget>(metaObject)) {
    return Kind::TabWidget;
  }
  if (is<QTabBar>(metaObject)) {
    return Kind::TabBar;
  }
  if (is<QToolBox>(metaObject)) {
    return Kind::ToolBox;
  }
  if (is<QToolBar>(metaObject)) {
    return Kind::ToolBar;
  }
  if (is<QTextEdit>(metaObject)) {
    return Kind::TextEdit;
  }
  if (is<QPlainTextEdit>(metaObject)) {
    return Kind::PlainTextEdit;
  }
  if (is<QWizardPage>(metaObject)) {
    return Kind::WizardPage;
  }
  return Kind::WindowTitle;
}

}  // namespace

ClassTraits traitsOf(const QMetaObject& metaObject) {
  ClassTraits traits;
  traits.kind = kindOf(metaObject);
  traits.internal = isInternalClass(metaObject);
  traits.dockGroup = isDockGroupClass(metaObject);
  traits.subWindow = is<QMdiSubWindow>(metaObject);
  traits.ownedPart = traits.kind == Kind::Menu || traits.kind == Kind::ToolBar || traits.dockGroup ||
                     traits.subWindow || is<QDockWidget>(metaObject);
  traits.scrollArea = is<QAbstractScrollArea>(metaObject);
  traits.scrollBar = is<QScrollBar>(metaObject);
  traits.itemView = is<QAbstractItemView>(metaObject);
  traits.headerView = is<QHeaderView>(metaObject);
  traits.wizard = is<QWizard>(metaObject);
  traits.mainWindow = is<QMainWindow>(metaObject);
  traits.mdiArea = is<QMdiArea>(metaObject);
  traits.menuBar = is<QMenuBar>(metaObject);
  traits.stack = is<QStackedWidget>(metaObject);
  traits.splitter = is<QSplitter>(metaObject);
  traits.spinBox = is<QAbstractSpinBox>(metaObject);
  return traits;
}

const ClassTraits& TraitsCache::of(const QMetaObject* metaObject) {
  const Known::value_type*& recent =
      recent_[(reinterpret_cast<std::uintptr_t>(metaObject) / alignof(QMetaObject)) % recent_.size()];
  if (recent == nullptr || recent->first != metaObject) {
    auto known = known_.find(metaObject);
    if (known == known_.end()) {
      known = known_.emplace(metaObject, traitsOf(*metaObject)).first;
    }
    recent = &*known;
  }
  return recent->second;
}

}  // namespace kob::qt
