// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/Text.h>
#include <kobtraduction/editor/Widget.h>

#include <exception>
#include <utility>

namespace kob {

class Button;
class CheckBox;
class ComboBox;
class Frame;
class ImageList;
class Label;
class ListBox;
class MenuItem;
class OptionButton;
class PictureBox;
class SaveFileDialog;
class Slider;
class TextBox;
class TreeView;

/// The four windows of the editor; a toolkit chooses the layout by it.
enum class DialogKind { Traduction, AddNoeud, AddTrad, Recherche };

/// One window of the editor, that makes and owns the widgets of its dialog. The dialog adds all of them, in
/// the order in which they are read, before it shows the window for the first time; what is added lives as
/// long as the window. Derived from by a toolkit; used on one thread.
class KOB_EXPORT DialogWindow {
 public:
  explicit DialogWindow(DialogKind kind) noexcept : kind_(kind) {}
  DialogWindow(const DialogWindow&) = delete;
  DialogWindow& operator=(const DialogWindow&) = delete;
  /// Reports nothing any more: the dialog is gone already.
  virtual ~DialogWindow();

  DialogKind kind() const noexcept { return kind_; }

  virtual Button& addButton(const WidgetId& id) = 0;
  virtual CheckBox& addCheckBox(const WidgetId& id) = 0;
  virtual ComboBox& addComboBox(const WidgetId& id) = 0;
  virtual Frame& addFrame(const WidgetId& id) = 0;
  virtual Label& addLabel(const WidgetId& id) = 0;
  virtual ListBox& addListBox(const WidgetId& id) = 0;
  /// An entry of the menu bar, or, with a menu entry as container, of that menu.
  virtual MenuItem& addMenuItem(const WidgetId& id) = 0;
  /// An option button that excludes those of `group`: another button of its group, or null for the first.
  virtual OptionButton& addOptionButton(const WidgetId& id, OptionButton* group) = 0;
  virtual PictureBox& addPictureBox(const WidgetId& id) = 0;
  virtual Slider& addSlider(const WidgetId& id) = 0;
  virtual TextBox& addTextBox(const WidgetId& id) = 0;
  virtual TreeView& addTreeView(const WidgetId& id) = 0;
  /// What is not seen in the window itself.
  virtual ImageList& addImageList(const WidgetId& id) = 0;
  virtual SaveFileDialog& addSaveFileDialog(const WidgetId& id) = 0;

  /// The title; "" at first.
  const Text& caption() const noexcept { return caption_; }
  void setCaption(TextView caption);
  /// Whether the title carries the mark by which the window system tells of changes that are not saved.
  bool isModified() const noexcept { return isModified_; }
  void setModified(bool modified);

  /// Shows the window and returns when the dialog has hidden it or a person has closed it; the window can be
  /// shown again, with all its widgets as they are. What a handler raised in between, for an event that a
  /// person caused in this window, ends it and is raised again here. A window that is shown is not shown a
  /// second time over itself.
  void showModal();
  /// Ends showModal; does nothing while the window is not shown.
  void hide() noexcept;
  bool isShown() const noexcept { return isShown_; }

  // For the toolkit and its widgets.

  /// Runs what a person's event does. What it raises is kept for showModal and hides the window; after that,
  /// events do nothing until showModal has returned.
  template <class Event>
  void dispatch(Event&& event) noexcept {
    if (failure_ != nullptr) {
      return;
    }
    try {
      std::forward<Event>(event)();
    } catch (...) {
      failure_ = std::current_exception();
      hide();
    }
  }

 protected:
  virtual void showCaption(TextView caption) = 0;
  virtual void showModified(bool modified) = 0;
  /// Shows the window over its owner and handles events until endModal is called or a person closes the
  /// window, which is hidden then and not destroyed.
  virtual void runModal() = 0;
  /// Lets runModal return once the present event is handled. Called from within an event, or before the
  /// first.
  virtual void endModal() noexcept = 0;

 private:
  DialogKind kind_;
  Text caption_;
  std::exception_ptr failure_;
  bool isModified_ = false;
  bool isShown_ = false;
};

}  // namespace kob
