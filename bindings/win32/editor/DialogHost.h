// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <windows.h>

namespace kob::win32 {

/// A dialog of the system, or a part of one that holds controls: background, keys and default buttons are the
/// system's. It starts empty and hidden.
class DialogHost {
 public:
  DialogHost() = default;
  DialogHost(const DialogHost&) = delete;
  DialogHost& operator=(const DialogHost&) = delete;
  virtual ~DialogHost();

  /// Null once the window has died, which it may do by itself with its owner.
  HWND handle() const noexcept { return handle_; }

 protected:
  /// Over an owner, which may be null.
  void createDialog(HINSTANCE module, HWND owner, DWORD style, DWORD extendedStyle);
  void createPanel(HINSTANCE module, HWND parent, DWORD style);
  void destroy();

  /// Handles a message and says so; what the system does with one that is not is right otherwise.
  virtual bool onMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) = 0;

 private:
  static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void create(HINSTANCE module, HWND parent, DWORD style, DWORD extendedStyle);

  HWND handle_ = nullptr;
};

/// A part of a dialog. What its controls report goes on to the window that it stands in.
class Panel : public DialogHost {
 protected:
  bool onMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
};

}  // namespace kob::win32
