// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "ClassTraits.h"
#include "LiveObject.h"
#include "Naming.h"
#include "ObjectBlock.h"

#include <QAction>
#include <QWidget>

#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <vector>

class QMenu;
class QToolBar;
class QToolButton;

namespace kob::qt {

class ButtonObject;
class ToolBarObject;

/// One walk over a form in tree order: its controls as they are now, named and numbered. The time is linear
/// in the number of objects below the form.
class FormWalk {
 public:
  FormWalk(QWidget& form, HostRef formObject);

  /// The members of the form's Controls; the walk has none of them afterwards.
  std::vector<HostRef> takeControls();

  /// The object of a control, of a tool bar's button or of an entry of such a button's menu, with its owners;
  /// null for anything else.
  HostRef find(const QObject& live) const;

 private:
  // A control and the object that its path leads through: the form, or another control.
  struct Facts {
    LiveObject* object = nullptr;
    const void* container = nullptr;
  };
  struct Menu {
    std::shared_ptr<LiveObject> object;
    std::size_t button;
  };
  struct Button {
    std::shared_ptr<ButtonObject> object;
    std::shared_ptr<ToolBarObject> toolBar;
  };
  // Whose child an action is.
  enum class Owner : std::uint8_t { Form, OtherForm, Nobody };
  // What the walk knows of a widget before it comes to it among its siblings.
  enum class Met : std::uint8_t { Button, Page };
  // What the widgets met next stand in.
  struct Place {
    QWidget* parent;
    const ClassTraits* parentTraits;
    const HostRef* container;
    const ClassTraits* containerTraits;
  };

  void visitBelow(QWidget& parent, const Place& place);
  void visitChild(QObject& child, const Place& place);
  void visitWidget(QWidget& widget, const Place& place);
  void visitPlainObject(const QObject& object);
  void visitPages(QWidget& parent, const Place& place);
  void visitPage(QWidget* page, const Place& place);
  void visitOwnedAction(QAction& action);
  void visitShownActions(const QWidget& widget, const Place& place);
  /// The object stays the last of the controls until the next one is added.
  LiveObject& expose(QWidget& widget, const QString& name, const ClassTraits& traits, const Place& place);
  void add(std::shared_ptr<LiveObject> object, const HostRef& owner, const QString& name);
  void takeToolBar(QToolBar& bar, const std::shared_ptr<ToolBarObject>& object);
  void takeMenus(QToolButton& button, ButtonObject& object);
  Owner ownerOf(const QAction& action);
  HostRef owned(const Button& button) const;
  void dropTakenActions();
  void number();

  QWidget& form_;
  HostRef formObject_;
  TraitsCache traits_;
  ObjectBlocks blocks_;
  std::vector<HostRef> controls_;
  /// The same controls.
  std::vector<Facts> facts_;
  PathHashes paths_;
  std::vector<Button> buttons_;
  std::vector<Menu> menus_;
  std::unordered_map<const QWidget*, Met> met_;
  std::unordered_set<const QObject*> takenActions_;
  std::unordered_set<const QObject*> shownOnly_;
  std::unordered_set<const QWidget*> looseMenus_;
};

}  // namespace kob::qt
