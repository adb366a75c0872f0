// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "../WideText.h"
#include "Controls.h"
#include "Metrics.h"

#include <kobtraduction/editor/Widget.h>

#include <windows.h>

#include <string>

namespace kob::win32 {

/// What a window offers to the controls in it. It outlives them.
class Surroundings {
 public:
  virtual ~Surroundings() = default;
  virtual const Controls& controls() const noexcept = 0;
  virtual const Metrics& metrics() const noexcept = 0;
  /// Something was shown, hidden or given another text: everything finds its place again soon.
  virtual void arrangeLater() = 0;
  /// Something was enabled or disabled, with all that it holds.
  virtual void enableAll() = 0;
  /// Whether the window answers to a person: it is not shown otherwise, or another one is modal over it.
  virtual bool answers() const noexcept = 0;
};

/// What the system knows of a widget. The window passes on what happened to its control.
class Native {
 public:
  Native(Surroundings& around, HWND control) noexcept : around_(around), control_(control) {}
  Native(const Native&) = delete;
  Native& operator=(const Native&) = delete;
  virtual ~Native() = default;

  /// Null once it has died with its window.
  HWND control() const noexcept { return control_; }

  virtual void onCommand(WORD /*code*/) {}
  virtual LRESULT onNotify(NMHDR& /*header*/) { return 0; }
  virtual void onScroll() {}

  virtual void enable(bool isEnabled) { EnableWindow(control_, isEnabled ? TRUE : FALSE); }
  virtual void show(bool isShown) { ShowWindow(control_, isShown ? SW_SHOWNA : SW_HIDE); }
  /// The metrics of the window are others than before.
  virtual void rescale() { setFont(control_); }
  virtual void forget() noexcept { control_ = nullptr; }

 protected:
  Surroundings& around() const noexcept { return around_; }
  /// Whether a person can reach the control just now.
  bool answers() const noexcept {
    return around_.answers() && IsWindowVisible(control_) != FALSE && IsWindowEnabled(control_) != FALSE;
  }
  void setFont(HWND control) const {
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(around_.metrics().font()), TRUE);
  }
  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(control_, message, wParam, lParam);
  }
  LRESULT sendText(UINT message, WPARAM wParam, const std::wstring& text) const {
    return SendMessageW(control_, message, wParam, reinterpret_cast<LPARAM>(text.c_str()));
  }

 private:
  Surroundings& around_;
  HWND control_;
};

/// A caption for what takes "&" as the mark of a key: the editor's captions have no such marks.
inline std::wstring plainCaption(TextView caption) {
  std::wstring plain;
  for (const wchar_t unit : shown(caption)) {
    plain.append(unit == L'&' ? 2 : 1, unit);
  }
  return plain;
}

/// The text of a control.
inline std::wstring windowText(HWND control) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(control)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(control, text.data(), static_cast<int>(text.size()))));
  return text;
}

/// Keeps the reports of a control away while a program changes it.
class Quiet {
 public:
  explicit Quiet(bool& isQuiet) noexcept : isQuiet_(isQuiet), before_(isQuiet) { isQuiet = true; }
  Quiet(const Quiet&) = delete;
  Quiet& operator=(const Quiet&) = delete;
  ~Quiet() { isQuiet_ = before_; }

 private:
  bool& isQuiet_;
  bool before_;
};

/// One of the editor's widgets as a control of the system.
template <class Kind>
class OnScreen : public Kind, public Native {
 public:
  template <class... More>
  OnScreen(DialogWindow& window, const WidgetId& id, Surroundings& around, HWND control, More... more)
      : Kind(window, id, more...), Native(around, control) {
    setFont(control);
  }

 protected:
  void showCaption(TextView caption) override {
    SetWindowTextW(control(), plainCaption(caption).c_str());
    around().arrangeLater();
  }
  void showVisible(bool visible) override {
    show(visible);
    around().arrangeLater();
  }
  void showEnabled(bool /*enabled*/) override { around().enableAll(); }
};

}  // namespace kob::win32
