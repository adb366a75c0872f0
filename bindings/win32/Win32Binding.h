// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <windows.h>

#include <memory>

namespace kob::win32 {

/// The component's message boxes and editor on native Windows controls. While an object of this class lives,
/// the thread that made it has them (Global_Util, setWidgetSet); those before it are put back when it dies.
/// Keep one for as long as the component is used on a thread. A thread without a message loop of its own will
/// do: boxes and editor are modal and run one while they are shown. They stand over the thread's active
/// window.
class Win32Binding {
 public:
  /// `module` is what the binding is linked into, a program or a DLL: it holds the binding's resources.
  explicit Win32Binding(HINSTANCE module);
  Win32Binding(const Win32Binding&) = delete;
  Win32Binding& operator=(const Win32Binding&) = delete;
  ~Win32Binding();

 private:
  class Private;
  std::unique_ptr<Private> d_;
};

}  // namespace kob::win32
