// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <windows.h>

namespace kob::win32 {

/// While it lives, windows are made that are sharp at every scaling, also in a host that knows nothing of it.
class DpiScope {
 public:
  DpiScope();
  DpiScope(const DpiScope&) = delete;
  DpiScope& operator=(const DpiScope&) = delete;
  ~DpiScope();

 private:
  void* before_;
};

/// Dots per inch of a window; 96 is a scaling of 100 %.
int dpiOf(HWND window);

/// The font of the system's messages.
LOGFONTW messageFont(int dpi);

}  // namespace kob::win32
