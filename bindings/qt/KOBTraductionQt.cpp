// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobpersistence/KOBPersistence.h>
#include <kobtraductionqt/KOBTraductionQt.h>

#include "ClassTraits.h"
#include "FormObject.h"
#include "FormWalk.h"

#include <QAction>
#include <QMenu>
#include <QWidget>

namespace kob::qt {

namespace {

/// An application that shows forms keeps its models in files by default; it may plug in another service.
const bool isPersistenceUsed = [] {
  usePersistence();
  return true;
}();

QWidget* formOf(QWidget* widget);

// The form of a widget that shows the action, `menu` aside.
QWidget* formShowing(const QAction& action, const QWidget* menu) {
  for (QObject* const shown : action.associatedObjects()) {
    if (shown != menu && shown->isWidgetType()) {
      return formOf(static_cast<QWidget*>(shown));
    }
  }
  return nullptr;
}

QWidget* formOf(QWidget* widget) {
  for (;;) {
    if (widget->isWindow() && !traitsOf(*widget->metaObject()).ownedPart) {
      return widget;
    }
    if (widget->parentWidget() == nullptr) {
      break;
    }
    widget = widget->parentWidget();
  }
  const auto* const menu = qobject_cast<QMenu*>(widget);
  QWidget* const shownIn = menu != nullptr ? formShowing(*menu->menuAction(), menu) : nullptr;
  return shownIn != nullptr ? shownIn : widget;
}

QWidget* formOf(const QAction& action) {
  QObject* owner = action.parent();
  while (owner != nullptr && !owner->isWidgetType()) {
    owner = owner->parent();
  }
  return owner != nullptr ? formOf(static_cast<QWidget*>(owner)) : formShowing(action, nullptr);
}

HostRef controlIn(QWidget* form, const QObject& control) {
  return form == nullptr ? nullptr : FormWalk(*form, std::make_shared<FormObject>(*form)).find(control);
}

}  // namespace

HostRef hostForm(QWidget* form) {
  return form == nullptr ? nullptr : std::make_shared<FormObject>(*form);
}

HostRef hostControl(QWidget* control, QWidget* form) {
  if (control == nullptr) {
    return nullptr;
  }
  QWidget* const holder = form != nullptr ? form : formOf(control);
  return control == holder ? hostForm(holder) : controlIn(holder, *control);
}

HostRef hostControl(QAction* action, QWidget* form) {
  return action == nullptr ? nullptr : controlIn(form != nullptr ? form : formOf(*action), *action);
}

}  // namespace kob::qt
