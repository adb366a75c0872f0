// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <windows.h>

namespace kob::win32 {

class Win32DialogWindow;

/// Puts the controls of a window into their places at its present size.
void layOut(Win32DialogWindow& window);
/// The size of the inside that a window has at first, and at least, in pixels.
SIZE designedSize(const Win32DialogWindow& window);
SIZE leastSize(const Win32DialogWindow& window);
/// Scrolls until a control is seen, which has just got the focus.
void bringIntoView(const Win32DialogWindow& window, HWND control);

}  // namespace kob::win32
