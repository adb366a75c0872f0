// SPDX-FileCopyrightText: The KOBTraduction authors
#include "InternalObjects.h"

#include "ClassTraits.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QComboBox>
#include <QDockWidget>
#include <QFocusFrame>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QMenu>
#include <QRubberBand>
#include <QScrollArea>
#include <QScrollBar>
#include <QSizeGrip>
#include <QTabWidget>
#include <QToolBar>
#include <QToolBox>
#include <QToolButton>
#include <QWidgetAction>
#include <QWizard>

#include <cstring>

namespace kob::qt {

namespace {

// Classes that are private to the toolkit, so only their names are known. Pop-ups are not among them: they
// are windows.
constexpr const char* internalClassNames[] = {
    "QLineEditIconButton",  // the buttons inside a line edit; their actions are the controls
    "QTableCornerButton",
    "CloseButton",        // on a tab
    "QMovableTabWidget",  // the picture of a tab that is dragged
    "QToolBoxButton",
    "QToolBarExtension",
    "QToolBarSeparator",
    "QDockWidgetTitleButton",
    "QSplitterHandle",
    "QTornOffMenu",
    "QMdi::ControlContainer",  // the buttons of a maximised sub-window
    "QMdi::ControlLabel",
    "QMdi::ControllerWidget",
};

bool hasInternalName(const QString& name) {
  // Nearly every name is ruled out by its first letter.
  if (name.isEmpty() || (name.front() != u'q' && name.front() != u'_')) {
    return false;
  }
  return name.startsWith(u"qt_") || name.startsWith(u"_q_") || name.startsWith(u"__qt__");
}

// Internal objects below which everything is the toolkit's, whatever its name.
bool isClosedName(const QString& name) {
  return name.startsWith(u"qt_calendar_") || name == u"qt_toolbar_ext_button" ||
         name == u"qt_menubar_ext_button";
}

bool isInternalMenu(const WidgetPlace& place) {
  if (place.parentTraits.subWindow) {
    return static_cast<QMdiSubWindow*>(place.parent)->systemMenu() == place.widget;
  }
  if (place.parentTraits.menuBar) {
    auto* const extension =
        place.parent->findChild<QToolButton*>(u"qt_menubar_ext_button"_qs, Qt::FindDirectChildrenOnly);
    return extension != nullptr && extension->menu() == place.widget;
  }
  return false;
}

// A tool bar shows its actions by buttons of its own making. Buttons that were put there are not asked about.
bool isMadeForAction(const QToolButton& button, QWidget& toolBar) {
  const QAction* const action = button.defaultAction();
  return action != nullptr && action->associatedObjects().contains(&toolBar);
}

// Parts of a widget that carry no mark of their own but the place where they stand.
bool isPartOfParent(const WidgetPlace& place) {
  const Kind parentKind = place.parentTraits.kind;
  if (place.parentTraits.scrollArea) {
    if (static_cast<QAbstractScrollArea*>(place.parent)->viewport() == place.widget) {
      return true;
    }
    if (place.traits.headerView && place.parentTraits.itemView) {
      return true;
    }
  }
  if (place.traits.scrollBar) {
    return place.parent->objectName().startsWith(u"qt_scrollarea_");
  }
  switch (place.traits.kind) {
    case Kind::LineEdit:
      return place.parentTraits.spinBox ||
             (parentKind == Kind::ComboBox &&
              static_cast<QComboBox*>(place.parent)->lineEdit() == place.widget);
    case Kind::TabBar:
      if (parentKind == Kind::TabWidget) {
        return static_cast<QTabWidget*>(place.parent)->tabBar() == place.widget;
      }
      // The tabs of dock widgets and sub-windows repeat the titles of those.
      return (place.parentTraits.mdiArea || place.parentTraits.mainWindow) && place.name.isEmpty() &&
             !(place.parentTraits.mainWindow &&
               static_cast<QMainWindow*>(place.parent)->centralWidget() == place.widget);
    case Kind::ToolButton:
      if (parentKind == Kind::ToolBar) {
        return isMadeForAction(static_cast<QToolButton&>(*place.widget), *place.parent);
      }
      return parentKind == Kind::TabBar &&
             (place.name == u"ScrollLeftButton" || place.name == u"ScrollRightButton");
    default:
      break;
  }
  if (parentKind == Kind::ToolBox && place.traits.scrollArea) {
    const auto* const area = qobject_cast<QScrollArea*>(place.widget);
    return area != nullptr && static_cast<QToolBox*>(place.parent)->indexOf(area->widget()) >= 0;
  }
  return false;
}

// What stands without a name in an item view (editors, widgets on items) or in the frame of a wizard.
bool isNamelessFiller(const WidgetPlace& place) {
  if (!place.name.isEmpty()) {
    return false;
  }
  if (place.containerTraits.itemView) {
    return true;
  }
  return place.containerTraits.wizard && place.traits.kind != Kind::WizardPage;
}

}  // namespace

bool isInternalClass(const QMetaObject& metaObject) {
  if (metaObject.inherits(&QSizeGrip::staticMetaObject) ||
      metaObject.inherits(&QRubberBand::staticMetaObject) ||
      metaObject.inherits(&QFocusFrame::staticMetaObject)) {
    return true;
  }
  for (const QMetaObject* meta = &metaObject; meta != nullptr; meta = meta->superClass()) {
    for (const char* const name : internalClassNames) {
      if (std::strcmp(meta->className(), name) == 0) {
        return true;
      }
    }
  }
  return false;
}

bool isDockGroupClass(const QMetaObject& metaObject) {
  return std::strcmp(metaObject.className(), "QDockWidgetGroupWindow") == 0;
}

Exposure exposureOf(const WidgetPlace& place) {
  if (place.traits.dockGroup) {
    return Exposure::Passed;
  }
  if (place.widget->isWindow() && !place.traits.ownedPart) {
    return Exposure::Closed;
  }
  const QString& name = place.name;
  if (place.traits.kind == Kind::Menu) {
    return place.traits.internal || hasInternalName(name) || isInternalMenu(place) ? Exposure::Closed
                                                                                   : Exposure::Control;
  }
  if (hasInternalName(name)) {
    return isClosedName(name) ? Exposure::Closed : Exposure::Passed;
  }
  if (place.traits.internal || isPartOfParent(place) || isNamelessFiller(place)) {
    return Exposure::Passed;
  }
  return Exposure::Control;
}

bool isInternalAction(QAction* action) {
  if (hasInternalName(action->objectName())) {
    return true;
  }
  if (action->isSeparator() && action->text().isEmpty()) {
    return true;
  }
  QObject* const owner = action->parent();
  if (owner == nullptr) {
    return qobject_cast<QWidgetAction*>(action) != nullptr;
  }
  if (owner == static_cast<QObject*>(action->menu<QMenu*>())) {
    return true;
  }
  if (const auto* const dock = qobject_cast<QDockWidget*>(owner)) {
    return dock->toggleViewAction() == action;
  }
  if (const auto* const bar = qobject_cast<QToolBar*>(owner);
      bar != nullptr && bar->toggleViewAction() == action) {
    return true;
  }
  return qobject_cast<QWidgetAction*>(action) != nullptr;
}

}  // namespace kob::qt
