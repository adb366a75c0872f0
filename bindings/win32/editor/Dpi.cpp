// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Dpi.h"

#include <cstdint>
#include <cstring>

namespace kob::win32 {

namespace {

/// A function of the system that not all versions have; null there.
template <class Function>
Function find(const char* name) {
  const FARPROC found = GetProcAddress(GetModuleHandleW(L"user32.dll"), name);
  Function function = nullptr;
  static_assert(sizeof function == sizeof found);
  std::memcpy(&function, &found, sizeof function);
  return function;
}

using SetContext = void*(WINAPI*)(void*);
using DpiForWindow = UINT(WINAPI*)(HWND);
using ParametersForDpi = BOOL(WINAPI*)(UINT, UINT, PVOID, UINT, UINT);

void* setContext(void* context) {
  static const auto call = find<SetContext>("SetThreadDpiAwarenessContext");
  return call != nullptr ? call(context) : nullptr;
}

/// Every monitor by its own scaling; windows that only know the first monitor's, where that is unknown.
void* sharpest() {
  constexpr std::intptr_t perMonitorV2 = -4;
  constexpr std::intptr_t system = -2;
  void* const before = setContext(reinterpret_cast<void*>(perMonitorV2));
  return before != nullptr ? before : setContext(reinterpret_cast<void*>(system));
}

int dpiOfScreen() {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
  ReleaseDC(nullptr, screen);
  return dpi;
}

}  // namespace

DpiScope::DpiScope() : before_(sharpest()) {}

DpiScope::~DpiScope() {
  if (before_ != nullptr) {
    setContext(before_);
  }
}

int dpiOf(HWND window) {
  static const auto call = find<DpiForWindow>("GetDpiForWindow");
  const UINT dpi = call != nullptr ? call(window) : 0;
  return dpi != 0 ? static_cast<int>(dpi) : dpiOfScreen();
}

LOGFONTW messageFont(int dpi) {
  static const auto call = find<ParametersForDpi>("SystemParametersInfoForDpi");
  NONCLIENTMETRICSW metrics = {};
  metrics.cbSize = sizeof metrics;
  if (call != nullptr &&
      call(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, static_cast<UINT>(dpi)) != FALSE) {
    return metrics.lfMessageFont;
  }
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, dpi, dpiOfScreen());
  return metrics.lfMessageFont;
}

}  // namespace kob::win32
