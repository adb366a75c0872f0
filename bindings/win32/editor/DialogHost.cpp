// SPDX-FileCopyrightText: The KOBTraduction authors
#include "DialogHost.h"

namespace kob::win32 {

namespace {

/// Without controls, menu, class and title.
struct EmptyTemplate {
  DLGTEMPLATE dialog = {};
  WORD menu = 0;
  WORD windowClass = 0;
  WORD title = 0;
};

}  // namespace

DialogHost::~DialogHost() {
  destroy();
}

void DialogHost::createDialog(HINSTANCE module, HWND owner, DWORD style, DWORD extendedStyle) {
  create(module, owner, style, extendedStyle);
}

void DialogHost::createPanel(HINSTANCE module, HWND parent, DWORD style) {
  create(module, parent, style | WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | DS_CONTROL,
         WS_EX_CONTROLPARENT);
}

void DialogHost::create(HINSTANCE module, HWND parent, DWORD style, DWORD extendedStyle) {
  EmptyTemplate empty;
  empty.dialog.style = style;
  empty.dialog.dwExtendedStyle = extendedStyle;
  CreateDialogIndirectParamW(module, &empty.dialog, parent, procedure, reinterpret_cast<LPARAM>(this));
}

void DialogHost::destroy() {
  if (handle_ != nullptr) {
    DestroyWindow(handle_);
  }
}

INT_PTR CALLBACK DialogHost::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    auto* const made = reinterpret_cast<DialogHost*>(lParam);
    made->handle_ = window;
    SetWindowLongPtrW(window, DWLP_USER, lParam);
    return FALSE;
  }
  auto* const host = reinterpret_cast<DialogHost*>(GetWindowLongPtrW(window, DWLP_USER));
  if (host == nullptr) {
    return FALSE;
  }
  LRESULT result = 0;
  const bool isHandled = host->onMessage(message, wParam, lParam, result);
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrW(window, DWLP_USER, 0);
    host->handle_ = nullptr;
  }
  if (isHandled) {
    SetWindowLongPtrW(window, DWLP_MSGRESULT, result);
  }
  return isHandled ? TRUE : FALSE;
}

bool Panel::onMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  const bool isReport = message == WM_COMMAND || message == WM_NOTIFY || message == WM_DRAWITEM ||
                        ((message == WM_HSCROLL || message == WM_VSCROLL) && lParam != 0);
  if (isReport) {
    result = SendMessageW(GetParent(handle()), message, wParam, lParam);
  }
  return isReport;
}

}  // namespace kob::win32
