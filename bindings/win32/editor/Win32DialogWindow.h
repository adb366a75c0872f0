// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "DialogHost.h"
#include "Native.h"
#include "NativeMenu.h"
#include "WorkingKeys.h"

#include <kobtraduction/editor/DialogWindow.h>

#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace kob::win32 {

class VisualStyles;

/// One window of the editor as a dialog of the system. Its owner is the thread's active window, or that of
/// the dialog that it belongs to; when that dies, the window closes as if a person had closed it.
class Win32DialogWindow final : public DialogWindow, private DialogHost, private Surroundings {
 public:
  struct Toolkit {
    HINSTANCE module;
    const VisualStyles& styles;
    const Controls& controls;
  };

  Win32DialogWindow(const Toolkit& toolkit, DialogKind kind, HWND owner);
  ~Win32DialogWindow() override;

  /// Null once it has died with its owner.
  HWND handle() const noexcept { return DialogHost::handle(); }

  /// A widget by its name, and what shows it; null for one that there is not.
  Widget* widget(TextView name, int index = -1) const;
  Native* native(TextView name, int index = -1) const;
  HWND control(TextView name, int index = -1) const;
  NativeMenu* menu() const noexcept { return menu_.get(); }
  const Metrics& metrics() const noexcept override { return *metrics_; }
  /// Whether the window answers to a person.
  bool answers() const noexcept override;

  /// Puts everything into its place now.
  void arrange();

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

 private:
  struct Entry {
    std::unique_ptr<Widget> widget;
    Native* native;
  };

  template <class Kind, class... More>
  Kind& keep(const WidgetId& id, HWND control, More... more);
  HWND make(const WidgetId& id, const wchar_t* windowClass, DWORD style, DWORD extendedStyle = 0);
  HWND makeIn(HWND parent, const wchar_t* windowClass, DWORD style, DWORD extendedStyle = 0);
  HWND inside(const Widget* container) const;
  Native* nativeOf(HWND control) const;
  void explain(HWND control, const std::wstring& text);

  bool onMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
  void onCommand(WORD command, WORD code, HWND control);
  void onDpiChanged(int dpi, const RECT& place);
  void limit(MINMAXINFO& limits) const;
  void close();

  const Controls& controls() const noexcept override { return toolkit_.controls; }
  void arrangeLater() override;
  void enableAll() override;

  void writeTitle();
  void showCaption(TextView caption) override;
  void showModified(bool modified) override;
  void runModal() override;
  void endModal() noexcept override;
  void showFirst();
  void handleMessages();
  void followFocus();

  Toolkit toolkit_;
  HWND owner_;
  std::unique_ptr<Metrics> metrics_;
  std::unique_ptr<NativeMenu> menu_;
  std::unique_ptr<WorkingKeys> keys_;
  std::vector<Entry> entries_;
  std::map<std::pair<Text, int>, std::size_t> byName_;
  std::map<HWND, Native*> byControl_;
  std::map<const Widget*, HWND> insides_;
  std::vector<std::unique_ptr<ImageList>> imageLists_;
  std::vector<std::unique_ptr<SaveFileDialog>> fileDialogs_;
  HWND hints_ = nullptr;
  HWND focus_ = nullptr;
  int lastId_ = 100;
  bool isArrangingLater_ = false;
  bool hasBeenShown_ = false;
  bool hasEnded_ = false;
};

}  // namespace kob::win32
