// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/editor/Button.h>
#include <kobtraduction/editor/CheckBox.h>
#include <kobtraduction/editor/ComboBox.h>
#include <kobtraduction/editor/Frame.h>
#include <kobtraduction/editor/ImageList.h>
#include <kobtraduction/editor/Label.h>
#include <kobtraduction/editor/ListBox.h>
#include <kobtraduction/editor/MenuItem.h>
#include <kobtraduction/editor/OptionButton.h>
#include <kobtraduction/editor/PictureBox.h>
#include <kobtraduction/editor/SaveFileDialog.h>
#include <kobtraduction/editor/Slider.h>
#include <kobtraduction/editor/TextBox.h>
#include <kobtraduction/editor/TreeView.h>

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

/// The widgets of a screen that is not there: each keeps what it was told to show.
namespace kob::testing {

template <class Kind>
class Scripted : public Kind {
 public:
  using Kind::Kind;

  Text shownCaption;
  bool isShownVisible = true;
  bool isShownEnabled = true;

 protected:
  void showCaption(TextView caption) override { shownCaption = caption; }
  void showVisible(bool visible) override { isShownVisible = visible; }
  void showEnabled(bool enabled) override { isShownEnabled = enabled; }
};

using ScriptedButton = Scripted<Button>;
using ScriptedFrame = Scripted<Frame>;
using ScriptedLabel = Scripted<Label>;
using ScriptedMenuItem = Scripted<MenuItem>;

class ScriptedTextBox final : public Scripted<TextBox> {
 public:
  using Scripted::Scripted;
  Text shownText;
  bool isShownLocked = false;

 private:
  void showText(TextView text) override { shownText = text; }
  void showLocked(bool locked) override { isShownLocked = locked; }
};

class ScriptedCheckBox final : public Scripted<CheckBox> {
 public:
  using Scripted::Scripted;
  bool isShownChecked = false;

 private:
  void showChecked(bool checked) override { isShownChecked = checked; }
};

class ScriptedOptionButton final : public Scripted<OptionButton> {
 public:
  using Scripted::Scripted;
  bool isShownOn = false;

 private:
  void showOn(bool on) override { isShownOn = on; }
};

class ScriptedSlider final : public Scripted<Slider> {
 public:
  using Scripted::Scripted;
  std::int32_t shownValue = 0;
  std::pair<std::int32_t, std::int32_t> shownRange;
  /// Called when the slider is given another value, before the editor is told of it.
  std::function<void()> whenShown;

 private:
  void showRange(std::int32_t minimum, std::int32_t maximum) override { shownRange = {minimum, maximum}; }
  void showValue(std::int32_t value) override {
    shownValue = value;
    if (whenShown) {
      whenShown();
    }
  }
};

class ScriptedListBox final : public Scripted<ListBox> {
 public:
  using Scripted::Scripted;
  std::vector<Text> shownLines;
  std::int32_t shownIndex = -1;

 private:
  void showCleared() override {
    shownLines.clear();
    shownIndex = -1;
  }
  void showAdded(TextView line) override { shownLines.emplace_back(line); }
  void showListIndex(std::int32_t index) override { shownIndex = index; }
};

class ScriptedComboBox final : public Scripted<ComboBox> {
 public:
  using Scripted::Scripted;
  std::vector<Text> shownLines;
  std::int32_t shownIndex = -1;

 private:
  void showAdded(TextView line) override { shownLines.emplace_back(line); }
  void showListIndex(std::int32_t index) override { shownIndex = index; }
};

class ScriptedPictureBox final : public Scripted<PictureBox> {
 public:
  using Scripted::Scripted;
  MousePointer shownPointer = MousePointer::Default;

 private:
  void showPointer(MousePointer pointer) override { shownPointer = pointer; }
};

class ScriptedImageList final : public ImageList {};

class ScriptedTreeView final : public Scripted<TreeView> {
 public:
  struct ShownNode {
    Text text;
    std::int32_t image = 0;
    Node parent = 0;
    bool isExpanded = false;
  };

  using Scripted::Scripted;
  const ShownNode& shown(Node node) const { return nodes.at(static_cast<std::size_t>(node) - 1); }

  /// Node n is item n - 1.
  std::vector<ShownNode> nodes;
  Node shownSelected = 0;
  ImageList* shownImages = nullptr;
  /// Fills begun, and not ended.
  int open = 0;
  int fills = 0;

 private:
  ShownNode& node(Node number) { return nodes.at(static_cast<std::size_t>(number) - 1); }

  void showImageList(ImageList& images) override { shownImages = &images; }
  void showFilling(bool filling) override {
    open += filling ? 1 : -1;
    fills += filling ? 1 : 0;
  }
  void showCleared() override {
    nodes.clear();
    shownSelected = 0;
  }
  void showAdded(Node /*node*/, Node parent, TextView text, std::int32_t image) override {
    nodes.push_back({Text(text), image, parent, false});
  }
  void showImage(Node number, std::int32_t image) override { node(number).image = image; }
  void showSelected(Node number) override { shownSelected = number; }
  void showExpanded(Node number) override { node(number).isExpanded = true; }
};

/// Answers with the names that it is told, in order; cancels when there is none left.
class ScriptedSaveFileDialog final : public SaveFileDialog {
 public:
  std::vector<Text> answers;
  /// What was proposed each time.
  std::vector<Text> proposals;

 private:
  Text choose() override {
    proposals.push_back(fileName());
    if (answers.empty()) {
      return {};
    }
    Text answer = answers.front();
    answers.erase(answers.begin());
    return answer;
  }
};

}  // namespace kob::testing
