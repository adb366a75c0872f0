// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/editor/DialogWindow.h>

#include <QHash>
#include <QPointer>
#include <QString>

#include <memory>
#include <vector>

class QButtonGroup;
class QDialog;
class QEventLoop;
class QMenuBar;
class QWidget;

namespace kob::qt {

/// One of the editor's windows as a QDialog. Where its widgets stand is decided once it is first shown, by
/// their names (Layouts.h). Over `parent`, which may be null and may die first.
class QtDialogWindow final : public DialogWindow {
 public:
  QtDialogWindow(DialogKind kind, QWidget* parent);
  ~QtDialogWindow() override;

  QDialog& dialog() const noexcept { return *dialog_; }
  QMenuBar* menuBar() const noexcept { return menuBar_; }
  /// What shows the widget of that name and, in an array, that index; null when there is none.
  QWidget* shown(const char* name, int index = -1) const;
  template <class Control>
  Control* shown(const char* name, int index = -1) const {
    return dynamic_cast<Control*>(shown(name, index));
  }
  /// What shows the widgets, in the order in which they were added.
  const std::vector<QWidget*>& shown() const noexcept { return order_; }

  Button& addButton(const WidgetId& id) override;
  CheckBox& addCheckBox(const WidgetId& id) override;
  ComboBox& addComboBox(const WidgetId& id) override;
  Frame& addFrame(const WidgetId& id) override;
  Label& addLabel(const WidgetId& id) override;
  ListBox& addListBox(const WidgetId& id) override;
  MenuItem& addMenuItem(const WidgetId& id) override;
  OptionButton& addOptionButton(const WidgetId& id, OptionButton* group) override;
  PictureBox& addPictureBox(const WidgetId& id) override;
  Slider& addSlider(const WidgetId& id) override;
  TextBox& addTextBox(const WidgetId& id) override;
  TreeView& addTreeView(const WidgetId& id) override;
  ImageList& addImageList(const WidgetId& id) override;
  SaveFileDialog& addSaveFileDialog(const WidgetId& id) override;

 protected:
  void showCaption(TextView caption) override;
  void showModified(bool modified) override;
  void runModal() override;
  void endModal() noexcept override;

 private:
  /// The widget in which those stand that name `container` as theirs.
  QWidget* inside(const Widget* container) const;
  template <class Kind, class Control, class... More>
  Kind& keep(const WidgetId& id, Control* control, More... more);
  template <class Kind, class Control, class... More>
  Kind& keepListening(const WidgetId& id, Control* control, More... more);

  std::vector<std::unique_ptr<Widget>> widgets_;
  std::vector<std::unique_ptr<ImageList>> imageLists_;
  std::vector<std::unique_ptr<SaveFileDialog>> fileDialogs_;
  QHash<const Widget*, QWidget*> controls_;
  QHash<QString, QWidget*> byName_;
  std::vector<QWidget*> order_;
  std::unique_ptr<QDialog> dialog_;
  QMenuBar* menuBar_ = nullptr;
  QEventLoop* loop_ = nullptr;
  bool isLaidOut_ = false;
  bool hasEnded_ = false;
  /// Whatever is reported to the dialog is so through this object: with it, the reports end.
  std::unique_ptr<QObject> reports_;
};

}  // namespace kob::qt
