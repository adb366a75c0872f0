// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "NativePerson.h"

#include <bindings/win32/VisualStyles.h>
#include <bindings/win32/editor/Win32WidgetSet.h>

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

namespace kob::testing {

/// What somebody does while a native window is open. Keys that a step has pressed have arrived before the
/// next one; after the last one the person closes the window, unless the dialog has hidden it before.
using NativeScript = std::function<void(NativePerson&)>;
using NativeSteps = std::deque<NativeScript>;

/// The native widget set as the thread's own while it lives, and the scripts for its windows to come. A
/// window without a script is closed at once, and one that stays open for too long is a failure.
class NativeDesk final : public WidgetSet {
 public:
  NativeDesk();
  NativeDesk(const NativeDesk&) = delete;
  NativeDesk& operator=(const NativeDesk&) = delete;
  ~NativeDesk() override;

  std::unique_ptr<DialogWindow> makeWindow(DialogKind kind, DialogWindow* owner) override;

  void whenShown(DialogKind kind, NativeScript script) { scripts_[kind].push_back({std::move(script)}); }
  void whenShown(DialogKind kind, NativeSteps steps) { scripts_[kind].push_back(std::move(steps)); }
  void dropScripts(DialogKind kind) { scripts_[kind].clear(); }
  /// What is done with the next window of the system's own, a box or the dialog for a file name.
  void whenSystemShown(std::function<void(HWND)> script) { systemScripts_.push_back(std::move(script)); }

 private:
  static void CALLBACK onTimer(HWND window, UINT message, UINT_PTR timer, DWORD time);
  void look();
  void lookAt(win32::Win32DialogWindow& window);
  void rescue();

  win32::VisualStyles styles_{GetModuleHandleW(nullptr)};
  std::unique_ptr<win32::Win32WidgetSet> native_;
  WidgetSet* previous_;
  /// Those that were made last with that handle.
  std::map<HWND, win32::Win32DialogWindow*> windows_;
  std::map<DialogKind, std::deque<NativeSteps>> scripts_;
  std::map<HWND, NativeSteps> begunSteps_;
  std::set<HWND> busy_;
  std::deque<std::function<void(HWND)>> systemScripts_;
  std::set<HWND> systemSeen_;
  UINT_PTR timer_;
  ULONGLONG begun_;
};

}  // namespace kob::testing
