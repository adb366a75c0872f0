// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Person.h"

#include <algorithm>

namespace kob::testing {

namespace {

/// Arrays have an item per language or per kind; none has more.
constexpr std::int32_t longestArray = 6;

bool isSeen(const Widget& widget) {
  return widget.isVisible() && (widget.container() == nullptr || isSeen(*widget.container()));
}

bool answers(const Widget& widget) {
  return widget.isEnabled() && (widget.container() == nullptr || answers(*widget.container()));
}

}  // namespace

bool Person::reaches(const Widget& widget) const {
  return window.isShown() && isSeen(widget) && answers(widget);
}

bool Person::type(TextView textBox, std::int32_t index, TextView text) {
  auto& box = the<ScriptedTextBox>(textBox, index);
  const bool can = reaches(box) && !box.isLocked();
  if (can) {
    box.shownText = text;
    box.personTyped(text);
  }
  return can;
}

bool Person::press(TextView button, std::int32_t index) {
  auto& pressed = the<Button>(button, index);
  const bool can = reaches(pressed);
  if (can) {
    pressed.personClicked();
  }
  return can;
}

bool Person::chooseMenu(TextView item) {
  auto& chosen = the<MenuItem>(item);
  const bool can = reaches(chosen);
  if (can) {
    chosen.personClicked();
  }
  return can;
}

bool Person::check(TextView checkBox, std::int32_t index) {
  auto& box = the<ScriptedCheckBox>(checkBox, index);
  const bool can = reaches(box);
  if (can) {
    box.isShownChecked = !box.isShownChecked;
    box.personClicked(box.isShownChecked);
  }
  return can;
}

bool Person::choose(TextView optionButton, std::int32_t index) {
  auto& button = the<ScriptedOptionButton>(optionButton, index);
  const bool can = reaches(button);
  if (can && !button.isOn()) {
    button.isShownOn = true;
    button.personChose();
  }
  return can;
}

bool Person::move(TextView slider, std::int32_t index, std::int32_t value) {
  auto& moved = the<ScriptedSlider>(slider, index);
  const bool can = reaches(moved);
  if (can) {
    moved.shownValue = std::clamp(value, moved.minimum(), moved.maximum());
    moved.personMoved(moved.shownValue);
  }
  return can;
}

bool Person::clickLine(TextView listBox, std::int32_t line) {
  auto& list = the<ScriptedListBox>(listBox);
  const bool can = reaches(list) && line < list.count();
  if (can) {
    list.shownIndex = line;
    list.personClicked(line);
  }
  return can;
}

bool Person::chooseLine(TextView comboBox, std::int32_t line) {
  auto& box = the<ScriptedComboBox>(comboBox);
  const bool can = reaches(box) && line < box.count();
  if (can) {
    box.shownIndex = line;
    box.personChose(line);
  }
  return can;
}

bool Person::clickTag(TextView tag) {
  return clickNode(tree().find(tag));
}

bool Person::clickNode(TreeView::Node node) {
  ScriptedTreeView& shown = tree();
  const bool can = reaches(shown) && node >= 1 && node <= shown.count();
  if (can) {
    shown.shownSelected = node;
    shown.personClicked(node);
  }
  return can;
}

bool Person::moveMouse(double x, bool leftOnly) {
  auto& area = the<PictureBox>(u"pConteneur");
  const bool can = reaches(area);
  if (can) {
    area.personMovedMouse(x, leftOnly);
  }
  return can;
}

bool Person::moveMouseOver(TextView widget) {
  if (widget == u"TV") {
    const bool can = reaches(tree());
    if (can) {
      tree().personMovedMouse();
    }
    return can;
  }
  auto& area = the<PictureBox>(widget);
  const bool can = reaches(area);
  if (can) {
    area.personMovedMouse(0, false);
  }
  return can;
}

bool Person::sees(TextView name, std::int32_t index) const {
  return window.isShown() && isSeen(the<Widget>(name, index));
}

Text Person::text(TextView textBox, std::int32_t index) const {
  return the<TextBox>(textBox, index).text();
}

std::vector<Text> Person::texts(TextView textBoxes) const {
  std::vector<Text> found;
  found.reserve(longestArray);
  for (std::int32_t i = 0; i < longestArray; ++i) {
    found.push_back(text(textBoxes, i));
  }
  return found;
}

std::vector<Text> Person::lines(TextView listBox) const {
  return the<ScriptedListBox>(listBox).shownLines;
}

std::int32_t Person::line(TextView listBox) const {
  return the<ListBox>(listBox).listIndex();
}

bool Person::isChecked(TextView checkBox, std::int32_t index) const {
  return the<CheckBox>(checkBox, index).isChecked();
}

std::int32_t Person::chosen(TextView optionButtons) const {
  for (std::int32_t i = 0; i < 3; ++i) {
    if (the<OptionButton>(optionButtons, i).isOn()) {
      return i;
    }
  }
  return -1;
}

std::int32_t Person::value(TextView slider, std::int32_t index) const {
  return the<Slider>(slider, index).value();
}

Text Person::caption(TextView name, std::int32_t index) const {
  return the<Widget>(name, index).caption();
}

Text Person::selectedTag() const {
  const TreeView::Node node = tree().selected();
  return node == 0 ? Text() : tree().tag(node);
}

}  // namespace kob::testing
