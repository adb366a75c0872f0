// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FormWalk.h"

#include "ActionObject.h"
#include "FetchObject.h"
#include "InternalObjects.h"
#include "TabbedObject.h"
#include "ToolBarObject.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolBox>
#include <QToolButton>
#include <QWidgetAction>

#include <algorithm>

namespace kob::qt {

using Link = LiveObject::Link;

namespace {

template <class T>
void makeRoom(std::vector<T>& items, std::size_t more) {
  if (items.capacity() - items.size() < more) {
    items.reserve(std::max(items.capacity() * 2, items.size() + more));
  }
}

}  // namespace

FormWalk::FormWalk(QWidget& form, HostRef formObject) : form_(form), formObject_(std::move(formObject)) {
  const ClassTraits& traits = traits_.of(form.metaObject());
  const Place place{&form, &traits, &formObject_, &traits};
  if (traits.kind != Kind::WindowTitle) {
    expose(form, form.objectName(), traits, place).setSecondFace();
  }
  visitBelow(form, place);
  dropTakenActions();
  number();
}

std::vector<HostRef> FormWalk::takeControls() {
  facts_.clear();
  return std::exchange(controls_, {});
}

void FormWalk::visitBelow(QWidget& parent, const Place& place) {
  visitPages(parent, place);
  const QObjectList& children = parent.children();
  // Widgets lie apart in memory: counted first, they are waited for together and not one by one.
  const auto widgets = std::count_if(children.begin(), children.end(),
                                     [](const QObject* child) { return child->isWidgetType(); });
  makeRoom(controls_, static_cast<std::size_t>(widgets));
  makeRoom(facts_, static_cast<std::size_t>(widgets));
  for (qsizetype i = 0; i < children.size(); ++i) {
    fetchSiblings(children, i);
    visitChild(*children[i], place);
  }
  visitShownActions(parent, place);
}

void FormWalk::visitChild(QObject& child, const Place& place) {
  if (child.isWidgetType()) {
    visitWidget(static_cast<QWidget&>(child), place);
  } else if (auto* const action = qobject_cast<QAction*>(&child)) {
    visitOwnedAction(*action);
  } else {
    visitPlainObject(child);
  }
}

// Showing a page, or activating a sub-window, moves it among its siblings: they are taken by the container's
// own numbers, which stay.
void FormWalk::visitPages(QWidget& parent, const Place& place) {
  if (place.parentTraits->stack) {
    const auto& stack = static_cast<QStackedWidget&>(parent);
    for (int i = 0; i < stack.count(); ++i) {
      visitPage(stack.widget(i), place);
    }
  } else if (place.parentTraits->kind == Kind::ToolBox) {
    const auto& box = static_cast<QToolBox&>(parent);
    for (int i = 0; i < box.count(); ++i) {
      visitPage(box.widget(i), place);
    }
  } else if (place.parentTraits->splitter) {
    const auto& splitter = static_cast<QSplitter&>(parent);
    for (int i = 0; i < splitter.count(); ++i) {
      visitPage(splitter.widget(i), place);
    }
  } else if (place.parentTraits->mdiArea) {
    const QList<QMdiSubWindow*> subWindows = static_cast<QMdiArea&>(parent).subWindowList();
    for (QMdiSubWindow* const subWindow : subWindows) {
      visitPage(subWindow, place);
    }
  }
}

void FormWalk::visitPage(QWidget* page, const Place& place) {
  if (page != nullptr) {
    visitWidget(*page, place);
    met_.emplace(page, Met::Page);
  }
}

void FormWalk::visitWidget(QWidget& widget, const Place& place) {
  const ClassTraits& traits = traits_.of(widget.metaObject());
  Place inside{&widget, &traits, place.container, place.containerTraits};
  HostRef object;
  const auto met = met_.empty() ? met_.end() : met_.find(&widget);
  if (met == met_.end()) {
    const QString name = widget.objectName();
    const Exposure exposure =
        exposureOf({&widget, name, traits, place.parent, *place.parentTraits, *place.containerTraits});
    if (exposure == Exposure::Closed) {
      return;
    }
    if (exposure == Exposure::Control) {
      expose(widget, name, traits, place);
      if (widget.children().isEmpty() && widget.actions().isEmpty()) {
        return;
      }
      if (traits.kind == Kind::Menu) {
        // Menus are no containers: what stands in one is the form's.
        inside.container = &formObject_;
        inside.containerTraits = &traits_.of(form_.metaObject());
      } else {
        object = controls_.back();
        inside.container = &object;
        inside.containerTraits = &traits;
      }
    }
  } else if (met->second == Met::Page) {
    return;
  }
  visitBelow(widget, inside);
}

// Action groups and the like: only their actions matter.
void FormWalk::visitPlainObject(const QObject& object) {
  for (QObject* const child : object.children()) {
    if (auto* const action = qobject_cast<QAction*>(child)) {
      visitOwnedAction(*action);
    } else if (!child->isWidgetType()) {
      visitPlainObject(*child);
    }
  }
}

void FormWalk::visitOwnedAction(QAction& action) {
  if (isInternalAction(&action) || shownOnly_.count(&action) != 0) {
    return;
  }
  add(std::make_shared<ActionObject>(action, ActionObject::Role::Control, formObject_, Link::Parent),
      formObject_, ownName(action));
}

void FormWalk::add(std::shared_ptr<LiveObject> object, const HostRef& owner, const QString& name) {
  facts_.push_back({object.get(), owner.get()});
  paths_.add(owner.get(), name);
  controls_.push_back(std::move(object));
}

// Actions and menus that are nobody's children are part of each form that shows them.
void FormWalk::visitShownActions(const QWidget& widget, const Place& place) {
  const QList<QAction*> actions = widget.actions();
  for (QAction* const action : actions) {
    if (auto* const menu = action->menu<QMenu*>();
        menu != nullptr && menu->parentWidget() == nullptr && looseMenus_.insert(menu).second) {
      visitWidget(*menu, place);
    }
    if (ownerOf(*action) == Owner::Nobody && !isInternalAction(action) && shownOnly_.count(action) == 0) {
      visitOwnedAction(*action);
      shownOnly_.insert(action);
    }
  }
}

FormWalk::Owner FormWalk::ownerOf(const QAction& action) {
  const QObject* owner = action.parent();
  while (owner != nullptr && !owner->isWidgetType()) {
    owner = owner->parent();
  }
  const auto* widget = static_cast<const QWidget*>(owner);
  while (widget != nullptr) {
    if (widget == &form_) {
      return Owner::Form;
    }
    if (looseMenus_.count(widget) != 0) {
      return Owner::Form;
    }
    const QWidget* const parent = widget->parentWidget();
    const ClassTraits& traits = traits_.of(widget->metaObject());
    if (widget->isWindow() && !traits.ownedPart) {
      return Owner::OtherForm;
    }
    if (parent == nullptr) {
      return traits.kind == Kind::Menu ? Owner::Nobody : Owner::OtherForm;
    }
    widget = parent;
  }
  return Owner::Nobody;
}

LiveObject& FormWalk::expose(QWidget& widget, const QString& name, const ClassTraits& traits,
                             const Place& place) {
  const bool isMenu = traits.kind == Kind::Menu;
  const HostRef& owner = isMenu ? formObject_ : *place.container;
  std::shared_ptr<LiveObject> object;
  switch (traits.kind) {
    case Kind::ToolBar: {
      auto bar = std::make_shared<ToolBarObject>(widget, owner);
      takeToolBar(static_cast<QToolBar&>(widget), bar);
      object = std::move(bar);
      break;
    }
    case Kind::TabWidget:
    case Kind::TabBar:
    case Kind::ToolBox:
      object = std::make_shared<TabbedObject>(widget, traits.kind, owner, Link::Container);
      break;
    default:
      object = std::allocate_shared<WidgetObject>(InBlocks<WidgetObject>(blocks_), widget, traits.kind, owner,
                                                  isMenu ? Link::Parent : Link::Container);
      break;
  }
  if (name.isEmpty()) {
    add(std::move(object), owner, ownName(widget));
  } else {
    add(std::move(object), owner, name);
  }
  return *facts_.back().object;
}

void FormWalk::takeToolBar(QToolBar& bar, const std::shared_ptr<ToolBarObject>& object) {
  std::vector<HostRef> buttons;
  const QList<QAction*> actions = bar.actions();
  for (QAction* const action : actions) {
    auto* const widgetAction = qobject_cast<QWidgetAction*>(action);
    auto* const button =
        widgetAction != nullptr ? qobject_cast<QToolButton*>(widgetAction->defaultWidget()) : nullptr;
    if (button == nullptr || button->parentWidget() != &bar || !met_.emplace(button, Met::Button).second) {
      continue;
    }
    auto buttonObject = std::make_shared<ButtonObject>(*button, nullptr);
    buttons_.push_back({buttonObject, object});
    takeMenus(*button, *buttonObject);
    buttons.push_back(std::move(buttonObject));
  }
  object->setButtons(std::move(buttons));
}

void FormWalk::takeMenus(QToolButton& button, ButtonObject& object) {
  std::vector<HostRef> entries;
  const QList<QAction*> actions = button.menu() != nullptr ? button.menu()->actions() : button.actions();
  for (QAction* const action : actions) {
    if (action == button.defaultAction() || isInternalAction(action) ||
        ownerOf(*action) == Owner::OtherForm || !takenActions_.insert(action).second) {
      continue;
    }
    auto entry = std::make_shared<ActionObject>(*action, ActionObject::Role::ButtonMenu, nullptr, Link::None);
    menus_.push_back({entry, buttons_.size() - 1});
    entries.push_back(std::move(entry));
  }
  object.setMenus(std::move(entries));
}

void FormWalk::dropTakenActions() {
  if (takenActions_.empty()) {
    return;
  }
  std::size_t kept = 0;
  for (std::size_t i = 0; i < facts_.size(); ++i) {
    if (takenActions_.count(facts_[i].object->live()) == 0) {
      std::swap(controls_[kept], controls_[i]);
      std::swap(facts_[kept], facts_[i]);
      ++kept;
    }
  }
  controls_.resize(kept);
  facts_.resize(kept);
}

void FormWalk::number() {
  const auto eachPart = [this](auto use) {
    for (const Button& button : buttons_) {
      use(*button.object, static_cast<const HostObject*>(button.toolBar.get()));
    }
    for (const Menu& menu : menus_) {
      use(*menu.object, static_cast<const HostObject*>(buttons_[menu.button].object.get()));
    }
  };
  eachPart([this](LiveObject& part, const void* container) { paths_.add(container, ownName(*part.live())); });
  if (!paths_.mayCollide()) {
    return;
  }
  std::vector<NamedObject> named;
  const auto name = [&named](LiveObject& object, const void* container) {
    named.push_back({&object, container, ownName(*object.live())});
  };
  named.reserve(facts_.size() + buttons_.size() + menus_.size());
  for (const Facts& control : facts_) {
    name(*control.object, control.container);
  }
  eachPart(name);
  numberEqualNames(named);
}

HostRef FormWalk::find(const QObject& live) const {
  for (std::size_t i = 0; i < facts_.size(); ++i) {
    if (facts_[i].object->live() == &live) {
      return controls_[i];
    }
  }
  for (const Button& button : buttons_) {
    if (button.object->live() == &live) {
      return owned(button);
    }
  }
  for (const Menu& menu : menus_) {
    if (menu.object->live() == &live) {
      auto entry = std::make_shared<ActionObject>(static_cast<QAction&>(*menu.object->live()),
                                                  ActionObject::Role::ButtonMenu,
                                                  owned(buttons_[menu.button]), Link::Container);
      entry->setIndex(menu.object->number());
      return entry;
    }
  }
  return nullptr;
}

// A button that holds its tool bar, for a caller that was not given the tool bar first.
HostRef FormWalk::owned(const Button& button) const {
  auto object = std::make_shared<ButtonObject>(static_cast<QWidget&>(*button.object->live()), button.toolBar);
  object->setIndex(button.object->number());
  std::vector<HostRef> entries;
  for (const Menu& menu : menus_) {
    if (buttons_[menu.button].object == button.object) {
      entries.push_back(menu.object);
    }
  }
  object->setMenus(std::move(entries));
  return object;
}

}  // namespace kob::qt
