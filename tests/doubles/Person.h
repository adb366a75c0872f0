// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "ScriptedWidgetSet.h"

#include <kobtraduction/base/Text.h>

#include <cstdint>
#include <vector>

namespace kob::testing {

/// Somebody in front of a scripted window, who can do what a person could do there: what acts on a widget
/// that is hidden, disabled or locked, or on a window that is closed, does nothing and returns false.
class Person {
 public:
  explicit Person(ScriptedWindow& driven) noexcept : window(driven) {}

  bool type(TextView textBox, TextView text) { return type(textBox, -1, text); }
  bool type(TextView textBox, std::int32_t index, TextView text);
  /// A button.
  bool press(TextView button, std::int32_t index = -1);
  bool chooseMenu(TextView item);
  /// Switches a check box over.
  bool check(TextView checkBox, std::int32_t index = -1);
  /// Clicks an option button.
  bool choose(TextView optionButton, std::int32_t index);
  bool move(TextView slider, std::int32_t index, std::int32_t value);
  bool clickLine(TextView listBox, std::int32_t line);
  bool chooseLine(TextView comboBox, std::int32_t line);
  /// The node with that tag; false when there is none.
  bool clickTag(TextView tag);
  bool clickNode(TreeView::Node node);
  /// Over the splitter / over another area.
  bool moveMouse(double x, bool leftOnly = false);
  bool moveMouseOver(TextView widget);

  /// What is on the screen.

  bool sees(TextView name, std::int32_t index = -1) const;
  Text text(TextView textBox, std::int32_t index = -1) const;
  std::vector<Text> texts(TextView textBoxes) const;
  std::vector<Text> lines(TextView listBox) const;
  std::int32_t line(TextView listBox) const;
  bool isChecked(TextView checkBox, std::int32_t index = -1) const;
  /// The option button that is on, -1 for none.
  std::int32_t chosen(TextView optionButtons) const;
  std::int32_t value(TextView slider, std::int32_t index) const;
  Text caption(TextView name, std::int32_t index = -1) const;

  template <class Kind>
  Kind& the(TextView name, std::int32_t index = -1) const {
    return window.get<Kind>(name, index);
  }
  ScriptedTreeView& tree() const { return the<ScriptedTreeView>(u"TV"); }
  /// The selected node's tag; "" for none.
  Text selectedTag() const;

  ScriptedWindow& window;

 private:
  bool reaches(const Widget& widget) const;
};

}  // namespace kob::testing
