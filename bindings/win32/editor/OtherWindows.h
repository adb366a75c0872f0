// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <windows.h>

#include <vector>

namespace kob::win32 {

/// The thread's other windows do not answer while a window is modal over them.
class OtherWindows {
 public:
  explicit OtherWindows(HWND modal);
  OtherWindows(const OtherWindows&) = delete;
  OtherWindows& operator=(const OtherWindows&) = delete;
  ~OtherWindows() { enable(); }

  /// Those that answered before do so again.
  void enable();

 private:
  static BOOL CALLBACK disable(HWND window, LPARAM self);

  HWND modal_;
  std::vector<HWND> disabled_;
};

/// In the middle of a window, or of the screen's work area for null, and no larger than that area.
RECT placeOver(HWND window, int width, int height);

}  // namespace kob::win32
