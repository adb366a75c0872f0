// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Native.h"

#include <kobtraduction/editor/ComboBox.h>
#include <kobtraduction/editor/ListBox.h>

namespace kob::win32 {

class NativeListBox final : public OnScreen<ListBox> {
 public:
  NativeListBox(DialogWindow& window, const WidgetId& id, Surroundings& around, HWND control,
                bool returnReaches);

  void onCommand(WORD code) override;

 private:
  static LRESULT CALLBACK events(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                 DWORD_PTR self);
  bool isOnLine(LPARAM place) const;
  void reach();
  void showCleared() override;
  void showAdded(TextView line) override;
  void showListIndex(std::int32_t index) override;

  /// Walking by keys only moves; Return and Space reach the line. A click always does.
  bool returnReaches_;
  bool isMouse_ = false;
};

class NativeComboBox final : public OnScreen<ComboBox> {
 public:
  using OnScreen::OnScreen;
  void onCommand(WORD code) override;

 private:
  void showAdded(TextView line) override;
  void showListIndex(std::int32_t index) override;
};

}  // namespace kob::win32
