// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <bindings/win32/editor/Win32DialogWindow.h>
#include <kobtraduction/editor/TreeView.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace kob::testing {

/// Somebody in front of a native window, who acts by the messages that the system sends for a mouse or keys:
/// what acts on a control that is hidden, disabled or locked, or on a window that is closed, does nothing and
/// returns false. What is seen is read from the controls.
class NativePerson {
 public:
  explicit NativePerson(win32::Win32DialogWindow& driven) noexcept : window(driven) {}

  /// Replaces the text of a field, as pasting does / letter by letter.
  bool type(TextView textBox, TextView text) { return type(textBox, -1, text); }
  bool type(TextView textBox, std::int32_t index, TextView text);
  bool typeLetters(TextView textBox, std::int32_t index, TextView text);
  bool press(TextView button, std::int32_t index = -1);
  bool chooseMenu(TextView item);
  bool check(TextView checkBox, std::int32_t index = -1) { return press(checkBox, index); }
  bool choose(TextView optionButton, std::int32_t index) { return press(optionButton, index); }
  bool move(TextView slider, std::int32_t index, std::int32_t value);
  bool clickLine(TextView listBox, std::int32_t line);
  bool chooseLine(TextView comboBox, std::int32_t line);
  bool clickNode(TreeView::Node node);
  bool clickTag(TextView tag);
  /// A key with the modifiers (VK_...) that are held, to the control with the focus; it arrives once the
  /// window handles its messages again.
  void key(WPARAM key, const std::vector<int>& modifiers = {}) const;
  void focus(TextView name, std::int32_t index = -1) const { SetFocus(control(name, index)); }
  void mouse(HWND at, UINT message, WPARAM buttons, int x, int y) const;

  HWND control(TextView name, std::int32_t index = -1) const;
  bool sees(TextView name, std::int32_t index = -1) const;
  std::wstring shownText(TextView name, std::int32_t index = -1) const;
  /// As the editor's fields say what they hold.
  Text text(TextView textBox, std::int32_t index = -1) const;
  std::vector<Text> lines(TextView listBox) const;
  std::int32_t line(TextView listBox) const;
  bool isChecked(TextView box, std::int32_t index = -1) const;
  std::int32_t chosen(TextView optionButtons) const;
  std::int32_t value(TextView slider, std::int32_t index) const;

  template <class Kind>
  Kind& the(TextView name, std::int32_t index = -1) const {
    auto* const widget = dynamic_cast<Kind*>(window.widget(name, index));
    if (widget == nullptr) {
      throw std::logic_error("no such widget");
    }
    return *widget;
  }
  TreeView& tree() const { return the<TreeView>(u"TV"); }
  /// What the tree itself shows of a node; the selected one of its own, 0 for none.
  std::wstring nodeText(TreeView::Node node) const;
  std::int32_t nodeImage(TreeView::Node node) const;
  TreeView::Node selectedNode() const;

  win32::Win32DialogWindow& window;

 private:
  bool reaches(HWND control) const;
};

}  // namespace kob::testing
