// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Native.h"

#include <kobtraduction/editor/MenuItem.h>

#include <memory>
#include <string>
#include <vector>

namespace kob::win32 {

class NativeMenu;

/// An entry of the menu bar, which is a menu, or of one of those.
class NativeMenuItem final : public MenuItem {
 public:
  NativeMenuItem(DialogWindow& window, const WidgetId& id, NativeMenu& menu);

 private:
  void showCaption(TextView caption) override;
  void showVisible(bool visible) override;
  void showEnabled(bool enabled) override;

  NativeMenu& menu_;
};

/// The menu bar of a window. It is written anew whenever something about an entry changes.
class NativeMenu {
 public:
  explicit NativeMenu(HWND window);
  NativeMenu(const NativeMenu&) = delete;
  NativeMenu& operator=(const NativeMenu&) = delete;
  ~NativeMenu();

  NativeMenuItem& add(DialogWindow& window, const WidgetId& id);
  /// The key that stands beside an entry, as its name is written.
  void setKey(TextView name, const wchar_t* key);
  /// The command by which the system tells of an entry; 0 for none.
  UINT command(TextView name) const;
  /// Whether the command is that of an entry, which is told then.
  bool choose(UINT command, bool isReachable);
  void write();

 private:
  struct Entry {
    std::unique_ptr<NativeMenuItem> item;
    HMENU popup = nullptr;
    std::wstring key;
  };
  void writeEntries(HMENU menu, const Widget* container);

  HWND window_;
  HMENU bar_;
  std::vector<Entry> entries_;
};

}  // namespace kob::win32
