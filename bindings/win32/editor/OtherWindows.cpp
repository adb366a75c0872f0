// SPDX-FileCopyrightText: The KOBTraduction authors
#include "OtherWindows.h"

#include <algorithm>
#include <utility>

namespace kob::win32 {

OtherWindows::OtherWindows(HWND modal) : modal_(modal) {
  EnumThreadWindows(GetCurrentThreadId(), disable, reinterpret_cast<LPARAM>(this));
}

BOOL CALLBACK OtherWindows::disable(HWND window, LPARAM self) {
  auto& others = *reinterpret_cast<OtherWindows*>(self);
  // Also hidden ones, which a timer of the host may show.
  if (window != others.modal_ && GetWindow(window, GW_OWNER) != others.modal_ &&
      IsWindowEnabled(window) != FALSE) {
    EnableWindow(window, FALSE);
    others.disabled_.push_back(window);
  }
  return TRUE;
}

void OtherWindows::enable() {
  for (const HWND window : std::exchange(disabled_, {})) {
    EnableWindow(window, TRUE);
  }
}

RECT placeOver(HWND window, int width, int height) {
  MONITORINFO monitor = {};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor);
  const RECT& area = monitor.rcWork;
  RECT around = area;
  if (window != nullptr && IsWindowVisible(window) != FALSE && IsIconic(window) == FALSE) {
    GetWindowRect(window, &around);
  }
  const LONG shownWidth = std::min<LONG>(width, area.right - area.left);
  const LONG shownHeight = std::min<LONG>(height, area.bottom - area.top);
  const LONG left =
      std::clamp<LONG>((around.left + around.right - shownWidth) / 2, area.left, area.right - shownWidth);
  const LONG top =
      std::clamp<LONG>((around.top + around.bottom - shownHeight) / 2, area.top, area.bottom - shownHeight);
  return {left, top, left + shownWidth, top + shownHeight};
}

}  // namespace kob::win32
