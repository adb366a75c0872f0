// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "ScriptedWidgets.h"

#include <kobtraduction/editor/WidgetSet.h>

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <vector>

namespace kob::testing {

class Person;
class ScriptedWidgetSet;

/// What a person does while a window is open; when it returns, the person closes the window, unless the
/// dialog has hidden it before.
using Script = std::function<void(Person&)>;

/// A window that is shown to a script.
class ScriptedWindow final : public DialogWindow {
 public:
  ScriptedWindow(ScriptedWidgetSet& set, DialogKind kind, DialogWindow* owner);
  ~ScriptedWindow() override;

  /// The widget of that name and, for one of an array, that index; a test that asks for one that is not
  /// there, or is of another kind, has failed.
  template <class Kind>
  Kind& get(TextView name, std::int32_t index = -1) const {
    auto* const widget = dynamic_cast<Kind*>(widgets_.at({Text(name), index}).get());
    if (widget == nullptr) {
      throw std::logic_error("a widget of another kind");
    }
    return *widget;
  }
  /// All widgets, in the order in which they were added.
  const std::vector<Widget*>& widgets() const noexcept { return order_; }
  ScriptedSaveFileDialog& saveFileDialog() const { return *saveFileDialog_; }
  ImageList& imageList() const { return *imageList_; }
  DialogWindow* owner() const noexcept { return owner_; }

  Text shownCaption;
  bool isShownModified = false;

  Button& addButton(const WidgetId& id) override { return add<ScriptedButton>(id); }
  CheckBox& addCheckBox(const WidgetId& id) override { return add<ScriptedCheckBox>(id); }
  ComboBox& addComboBox(const WidgetId& id) override { return add<ScriptedComboBox>(id); }
  Frame& addFrame(const WidgetId& id) override { return add<ScriptedFrame>(id); }
  Label& addLabel(const WidgetId& id) override { return add<ScriptedLabel>(id); }
  ListBox& addListBox(const WidgetId& id) override { return add<ScriptedListBox>(id); }
  MenuItem& addMenuItem(const WidgetId& id) override { return add<ScriptedMenuItem>(id); }
  OptionButton& addOptionButton(const WidgetId& id, OptionButton* group) override {
    return add<ScriptedOptionButton>(id, group);
  }
  PictureBox& addPictureBox(const WidgetId& id) override { return add<ScriptedPictureBox>(id); }
  Slider& addSlider(const WidgetId& id) override { return add<ScriptedSlider>(id); }
  TextBox& addTextBox(const WidgetId& id) override { return add<ScriptedTextBox>(id); }
  TreeView& addTreeView(const WidgetId& id) override { return add<ScriptedTreeView>(id); }
  ImageList& addImageList(const WidgetId& id) override;
  SaveFileDialog& addSaveFileDialog(const WidgetId& id) override;

 protected:
  void showCaption(TextView caption) override { shownCaption = caption; }
  void showModified(bool modified) override { isShownModified = modified; }
  void runModal() override;
  void endModal() noexcept override {}

 private:
  template <class Kind, class... More>
  Kind& add(const WidgetId& id, More... more) {
    auto widget = std::make_unique<Kind>(*this, id, more...);
    Kind& added = *widget;
    if (!widgets_.emplace(std::pair(Text(id.name), id.index), std::move(widget)).second) {
      throw std::logic_error("two widgets of one name");
    }
    order_.push_back(&added);
    return added;
  }

  ScriptedWidgetSet& set_;
  DialogWindow* owner_;
  std::map<std::pair<Text, std::int32_t>, std::unique_ptr<Widget>> widgets_;
  std::vector<Widget*> order_;
  std::unique_ptr<ScriptedSaveFileDialog> saveFileDialog_;
  std::unique_ptr<ScriptedImageList> imageList_;
};

/// The thread's widget set while it lives, and the scripts for the windows to come.
class ScriptedWidgetSet final : public WidgetSet {
 public:
  ScriptedWidgetSet();
  ScriptedWidgetSet(const ScriptedWidgetSet&) = delete;
  ScriptedWidgetSet& operator=(const ScriptedWidgetSet&) = delete;
  ~ScriptedWidgetSet() override;

  std::unique_ptr<DialogWindow> makeWindow(DialogKind kind, DialogWindow* owner) override;

  /// What the person does when a window of that kind is shown next; in order. A window without a script is
  /// closed at once.
  void whenShown(DialogKind kind, Script script) { scripts_[kind].push_back(std::move(script)); }
  /// Forgets what was to be done in windows of that kind.
  void dropScripts(DialogKind kind) { scripts_[kind].clear(); }
  /// Which windows were shown, in order.
  std::vector<DialogKind> shown;
  /// Windows that are alive.
  int windows = 0;

 private:
  friend class ScriptedWindow;
  Script nextScript(DialogKind kind);

  WidgetSet* previous_;
  std::map<DialogKind, std::deque<Script>> scripts_;
};

}  // namespace kob::testing
