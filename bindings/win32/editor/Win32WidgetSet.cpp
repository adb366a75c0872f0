// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Win32WidgetSet.h"

#include "Win32DialogWindow.h"

namespace kob::win32 {

Win32WidgetSet::Win32WidgetSet(HINSTANCE module, const VisualStyles& styles)
    : module_(module), styles_(styles), controls_(styles), previous_(setWidgetSet(this)) {}

Win32WidgetSet::~Win32WidgetSet() {
  setWidgetSet(previous_);
}

std::unique_ptr<DialogWindow> Win32WidgetSet::makeWindow(DialogKind kind, DialogWindow* owner) {
  const HWND over = owner != nullptr ? static_cast<Win32DialogWindow*>(owner)->handle() : GetActiveWindow();
  return std::make_unique<Win32DialogWindow>(Win32DialogWindow::Toolkit{module_, styles_, controls_}, kind,
                                             over);
}

}  // namespace kob::win32
