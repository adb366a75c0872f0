// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Mirrors.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QDockWidget>
#include <QMenu>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolBox>
#include <QToolButton>

namespace kob::fidelity {

namespace {

bool isMirrorAction(const QAction& action) {
  const QObject* owner = action.parent();
  if (const auto* menu = qobject_cast<const QMenu*>(owner)) {
    return menu->menuAction() == &action;
  }
  if (const auto* dock = qobject_cast<const QDockWidget*>(owner)) {
    return dock->toggleViewAction() == &action;
  }
  if (const auto* bar = qobject_cast<const QToolBar*>(owner)) {
    return bar->toggleViewAction() == &action;
  }
  return false;
}

}  // namespace

bool isMirror(const QObject& object) {
  const QObject* owner = object.parent();
  if (const auto* action = qobject_cast<const QAction*>(&object)) {
    return isMirrorAction(*action);
  }
  if (qobject_cast<const QComboBox*>(owner) != nullptr ||
      qobject_cast<const QAbstractSpinBox*>(owner) != nullptr) {
    return true;
  }
  if (qobject_cast<const QTabBar*>(&object) != nullptr) {
    return qobject_cast<const QTabWidget*>(owner) != nullptr;
  }
  if (const auto* button = qobject_cast<const QToolButton*>(&object)) {
    return qobject_cast<const QToolBar*>(owner) != nullptr && button->defaultAction() != nullptr;
  }
  // The button on which a tool box shows the name of a page is the box's own.
  return object.objectName() == QLatin1String("qt_toolbox_toolboxbutton") &&
         qobject_cast<const QToolBox*>(owner) != nullptr;
}

}  // namespace kob::fidelity
