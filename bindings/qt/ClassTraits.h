// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QMetaObject>

#include <array>
#include <cstdint>
#include <unordered_map>
#include <utility>

namespace kob::qt {

/// Which text of a widget is its Caption, and which properties it has besides those of every widget.
enum class Kind : std::uint8_t {
  WindowTitle,  ///< no text on the widget itself: windows, dock widgets, sub-windows and plain containers
  Label,
  Button,
  ToolButton,
  GroupBox,
  Menu,
  WizardPage,
  LineEdit,
  TextEdit,
  PlainTextEdit,
  ComboBox,
  ToolBar,
  TabWidget,
  TabBar,
  ToolBox,
};

/// What the walk over a form has to know about a widget's class.
struct ClassTraits {
  Kind kind = Kind::WindowTitle;
  bool internal : 1 = false;   ///< a class that a toolkit widget makes for itself
  bool ownedPart : 1 = false;  ///< may be a window of its own and still is a part of the form it belongs to
  bool dockGroup : 1 = false;  ///< the frame around dock widgets that float together
  bool scrollArea : 1 = false;
  bool scrollBar : 1 = false;
  bool itemView : 1 = false;
  bool headerView : 1 = false;
  bool wizard : 1 = false;
  bool mainWindow : 1 = false;
  bool mdiArea : 1 = false;
  bool subWindow : 1 = false;
  bool menuBar : 1 = false;
  bool stack : 1 = false;
  bool splitter : 1 = false;
  bool spinBox : 1 = false;
};

ClassTraits traitsOf(const QMetaObject& metaObject);

/// Asks for each class once. What `of` returns lives as long as the cache.
class TraitsCache {
 public:
  const ClassTraits& of(const QMetaObject* metaObject);

 private:
  using Known = std::unordered_map<const QMetaObject*, ClassTraits>;

  Known known_;
  // A form has many widgets of few classes: the class asked for last of those that share a place here.
  std::array<const Known::value_type*, 16> recent_ = {};
};

}  // namespace kob::qt
