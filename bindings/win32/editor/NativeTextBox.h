// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Native.h"

#include <kobtraduction/editor/TextBox.h>

namespace kob::win32 {

/// A field of one line or, with ES_MULTILINE, of more.
class NativeTextBox final : public OnScreen<TextBox> {
 public:
  NativeTextBox(DialogWindow& window, const WidgetId& id, Surroundings& around, HWND control);

  void onCommand(WORD code) override;

 private:
  static LRESULT CALLBACK keys(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                               DWORD_PTR self);
  void showText(TextView text) override;
  void showLocked(bool locked) override;
  void showDirection(const std::wstring& text);
  bool hasLines() const;
  /// A bar to scroll by stands beside a text that has not the room for all its lines.
  void fitScrollBar();

  bool isQuiet_ = false;
  bool isScrolled_ = false;
  bool isFitting_ = false;
};

}  // namespace kob::win32
