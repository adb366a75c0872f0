// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativeDesk.h"

#include <gtest/gtest.h>

#include <exception>
#include <string>
#include <utility>

namespace kob::testing {

namespace {

constexpr ULONGLONG patience = 60'000;

NativeDesk* desk = nullptr;

/// A window of the thread that answers, and belongs to the system.
BOOL CALLBACK findSystem(HWND window, LPARAM into) {
  wchar_t name[16] = L"";
  GetClassNameW(window, name, 16);
  if (std::wstring(name) == L"#32770" && IsWindowVisible(window) != FALSE &&
      IsWindowEnabled(window) != FALSE) {
    reinterpret_cast<std::vector<HWND>*>(into)->push_back(window);
  }
  return TRUE;
}

}  // namespace

NativeDesk::NativeDesk()
    : native_(std::make_unique<win32::Win32WidgetSet>(GetModuleHandleW(nullptr), styles_)),
      previous_(setWidgetSet(this)),
      timer_(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &NativeDesk::onTimer)),
      begun_(GetTickCount64()) {
  desk = this;
}

NativeDesk::~NativeDesk() {
  desk = nullptr;
  KillTimer(nullptr, timer_);
  EXPECT_TRUE(systemScripts_.empty()) << systemScripts_.size() << " windows did not open";
  for (const auto& [kind, scripts] : scripts_) {
    EXPECT_TRUE(scripts.empty()) << "a window of kind " << static_cast<int>(kind) << " did not open";
  }
  setWidgetSet(previous_);
}

std::unique_ptr<DialogWindow> NativeDesk::makeWindow(DialogKind kind, DialogWindow* owner) {
  auto window = native_->makeWindow(kind, owner);
  auto* const made = static_cast<win32::Win32DialogWindow*>(window.get());
  windows_[made->handle()] = made;
  return window;
}

void CALLBACK NativeDesk::onTimer(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) {
  if (desk != nullptr) {
    desk->look();
  }
}

void NativeDesk::look() {
  if (GetTickCount64() - begun_ > patience) {
    rescue();
    return;
  }
  std::vector<HWND> open;
  EnumThreadWindows(GetCurrentThreadId(), findSystem, reinterpret_cast<LPARAM>(&open));
  for (const HWND window : open) {
    if (const auto own = windows_.find(window); own != windows_.end()) {
      lookAt(*own->second);
    } else if (!systemScripts_.empty() && systemSeen_.insert(window).second) {
      const auto script = std::move(systemScripts_.front());
      systemScripts_.pop_front();
      script(window);
    }
  }
}

void NativeDesk::lookAt(win32::Win32DialogWindow& window) {
  const HWND handle = window.handle();
  if (!window.isShown() || !busy_.insert(handle).second) {
    return;
  }
  NativeSteps& steps = begunSteps_[handle];
  auto& scripts = scripts_[window.kind()];
  if (steps.empty() && !scripts.empty()) {
    steps = std::move(scripts.front());
    scripts.pop_front();
  }
  if (!steps.empty()) {
    const NativeScript step = std::move(steps.front());
    steps.pop_front();
    try {
      NativePerson person(window);
      step(person);
    } catch (const std::exception& failure) {
      ADD_FAILURE() << failure.what();
    }
  }
  busy_.erase(handle);
  if (!window.isShown()) {
    begunSteps_.erase(handle);
  } else if (begunSteps_[handle].empty()) {
    PostMessageW(handle, WM_CLOSE, 0, 0);
  }
}

void NativeDesk::rescue() {
  ADD_FAILURE() << "a window stayed open";
  begun_ = GetTickCount64();
  std::vector<HWND> open;
  EnumThreadWindows(GetCurrentThreadId(), findSystem, reinterpret_cast<LPARAM>(&open));
  for (const HWND window : open) {
    PostMessageW(window, WM_CLOSE, 0, 0);
  }
}

}  // namespace kob::testing
