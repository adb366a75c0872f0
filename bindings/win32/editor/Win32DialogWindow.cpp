// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Win32DialogWindow.h"

#include "../VisualStyles.h"
#include "Dpi.h"
#include "LanguageBadge.h"
#include "Layouts.h"
#include "OtherWindows.h"

#include <kobtraduction/editor/ImageList.h>
#include <kobtraduction/editor/SaveFileDialog.h>

namespace kob::win32 {

namespace {

constexpr UINT arrangeMessage = WM_APP + 1;

std::unique_ptr<Metrics> metricsOf(HWND window) {
  return std::make_unique<Metrics>(dpiOf(window));
}

}  // namespace

Win32DialogWindow::Win32DialogWindow(const Toolkit& toolkit, DialogKind kind, HWND owner)
    : DialogWindow(kind), toolkit_(toolkit), owner_(owner) {
  const VisualStyles::Scope styled(toolkit_.styles);
  const DpiScope sharp;
  DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_CLIPCHILDREN;
  style |= kind == DialogKind::Traduction ? WS_MAXIMIZEBOX : 0;
  createDialog(toolkit_.module, owner, style, WS_EX_CONTROLPARENT);
  metrics_ = metricsOf(handle());
  SendMessageW(handle(), WM_SETFONT, reinterpret_cast<WPARAM>(metrics_->font()), FALSE);
}

Win32DialogWindow::~Win32DialogWindow() {
  destroy();
}

Widget* Win32DialogWindow::widget(TextView name, int index) const {
  const auto found = byName_.find({Text(name), index});
  return found != byName_.end() ? entries_[found->second].widget.get() : nullptr;
}

Native* Win32DialogWindow::native(TextView name, int index) const {
  const auto found = byName_.find({Text(name), index});
  return found != byName_.end() ? entries_[found->second].native : nullptr;
}

HWND Win32DialogWindow::control(TextView name, int index) const {
  const Native* const found = native(name, index);
  return found != nullptr ? found->control() : nullptr;
}

bool Win32DialogWindow::answers() const noexcept {
  return isShown() && handle() != nullptr && IsWindowEnabled(handle()) != FALSE;
}

Native* Win32DialogWindow::nativeOf(HWND control) const {
  const auto found = byControl_.find(control);
  return found != byControl_.end() ? found->second : nullptr;
}

void Win32DialogWindow::arrange() {
  isArrangingLater_ = false;
  if (handle() != nullptr) {
    layOut(*this);
  }
}

void Win32DialogWindow::arrangeLater() {
  if (hasBeenShown_ && !isArrangingLater_) {
    isArrangingLater_ = PostMessageW(handle(), arrangeMessage, 0, 0) != FALSE;
  }
}

void Win32DialogWindow::enableAll() {
  for (const Entry& entry : entries_) {
    bool isEnabled = true;
    for (const Widget* at = entry.widget.get(); at != nullptr; at = at->container()) {
      isEnabled = isEnabled && at->isEnabled();
    }
    entry.native->enable(isEnabled);
  }
}

bool Win32DialogWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  switch (message) {
    case WM_COMMAND:
      onCommand(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
      return true;
    case WM_NOTIFY: {
      auto& header = *reinterpret_cast<NMHDR*>(lParam);
      Native* const found = nativeOf(header.hwndFrom);
      result = found != nullptr ? found->onNotify(header) : 0;
      return found != nullptr;
    }
    case WM_HSCROLL:
      if (Native* const found = nativeOf(reinterpret_cast<HWND>(lParam))) {
        found->onScroll();
      }
      return true;
    case WM_DRAWITEM: {
      const auto& drawing = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
      if (const auto* const badge = dynamic_cast<const LanguageBadge*>(nativeOf(drawing.hwndItem))) {
        badge->draw(drawing);
      }
      return true;
    }
    case WM_SIZE:
      if (hasBeenShown_) {
        arrange();
      }
      return true;
    case arrangeMessage:
      arrange();
      return true;
    case WM_GETMINMAXINFO:
      limit(*reinterpret_cast<MINMAXINFO*>(lParam));
      return true;
    case 0x02E0:  // WM_DPICHANGED
      onDpiChanged(HIWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
      return true;
    case WM_CLOSE:
      close();
      return true;
    case WM_NCDESTROY:
      for (const Entry& entry : entries_) {
        entry.native->forget();
      }
      byControl_.clear();
      hasEnded_ = true;
      return false;
    default:
      return false;
  }
}

void Win32DialogWindow::onCommand(WORD command, WORD code, HWND control) {
  if (Native* const found = nativeOf(control)) {
    found->onCommand(code);
  } else if (command == IDCANCEL) {
    // Escape. It never closes the editor itself.
    if (kind() != DialogKind::Traduction) {
      close();
    }
  } else if (menu_ == nullptr || !menu_->choose(command, answers())) {
    if (keys_ != nullptr && answers()) {
      keys_->press(command);
    }
  }
}

void Win32DialogWindow::close() {
  // As a person does, who can only close a window that is not behind another one.
  if (answers()) {
    hasEnded_ = true;
  }
}

void Win32DialogWindow::limit(MINMAXINFO& limits) const {
  if (metrics_ == nullptr || entries_.empty()) {
    return;
  }
  RECT outer = {};
  RECT inner = {};
  GetWindowRect(handle(), &outer);
  GetClientRect(handle(), &inner);
  const SIZE least = leastSize(*this);
  limits.ptMinTrackSize.x = least.cx + (outer.right - outer.left) - inner.right;
  limits.ptMinTrackSize.y = least.cy + (outer.bottom - outer.top) - inner.bottom;
}

void Win32DialogWindow::onDpiChanged(int dpi, const RECT& place) {
  const std::unique_ptr<Metrics> before = std::exchange(metrics_, std::make_unique<Metrics>(dpi));
  for (const Entry& entry : entries_) {
    entry.native->rescale();
  }
  SetWindowPos(handle(), nullptr, static_cast<int>(place.left), static_cast<int>(place.top),
               static_cast<int>(place.right - place.left), static_cast<int>(place.bottom - place.top),
               SWP_NOZORDER | SWP_NOACTIVATE);
  arrange();
}

void Win32DialogWindow::writeTitle() {
  SetWindowTextW(handle(), (shown(caption()) + (isModified() ? L"*" : L"")).c_str());
}

void Win32DialogWindow::showCaption(TextView /*caption*/) {
  writeTitle();
}

void Win32DialogWindow::showModified(bool /*modified*/) {
  writeTitle();
}

void Win32DialogWindow::showFirst() {
  if (std::exchange(hasBeenShown_, true)) {
    return;
  }
  const SIZE wanted = designedSize(*this);
  RECT outer = {};
  RECT inner = {};
  GetWindowRect(handle(), &outer);
  GetClientRect(handle(), &inner);
  const int width = static_cast<int>(wanted.cx + (outer.right - outer.left) - inner.right);
  const int height = static_cast<int>(wanted.cy + (outer.bottom - outer.top) - inner.bottom);
  const RECT place = placeOver(owner_, width, height);
  SetWindowPos(handle(), nullptr, static_cast<int>(place.left), static_cast<int>(place.top),
               static_cast<int>(place.right - place.left), static_cast<int>(place.bottom - place.top),
               SWP_NOZORDER | SWP_NOACTIVATE);
  if (kind() == DialogKind::Traduction) {
    keys_ = std::make_unique<WorkingKeys>(*this);
  }
  arrange();
}

void Win32DialogWindow::runModal() {
  if (handle() == nullptr) {
    return;
  }
  const VisualStyles::Scope styled(toolkit_.styles);
  const DpiScope sharp;
  hasEnded_ = false;
  showFirst();
  OtherWindows others(handle());
  ShowWindow(handle(), SW_SHOW);
  SetActiveWindow(handle());
  if (const HWND focus = GetFocus(); focus == nullptr || IsChild(handle(), focus) == FALSE) {
    SetFocus(GetNextDlgTabItem(handle(), nullptr, FALSE));
  }
  handleMessages();
  // Enabled before this window goes, or another program's would come to the front.
  others.enable();
  if (handle() != nullptr) {
    ShowWindow(handle(), SW_HIDE);
    SetActiveWindow(owner_);
  }
}

void Win32DialogWindow::handleMessages() {
  MSG message = {};
  while (!hasEnded_ && handle() != nullptr) {
    const BOOL isThere = GetMessageW(&message, nullptr, 0, 0);
    if (isThere == FALSE) {
      // The program ends: the loops around this one have to know, too.
      PostQuitMessage(static_cast<int>(message.wParam));
    }
    if (isThere <= 0) {
      return;
    }
    const bool isKey = keys_ != nullptr && keys_->translate(message);
    if (!isKey && IsDialogMessageW(handle(), &message) == FALSE) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    followFocus();
  }
}

void Win32DialogWindow::followFocus() {
  if (const HWND focus = GetFocus(); focus != focus_) {
    focus_ = focus;
    if (handle() != nullptr && focus != nullptr && IsChild(handle(), focus) != FALSE) {
      bringIntoView(*this, focus);
    }
  }
}

void Win32DialogWindow::endModal() noexcept {
  hasEnded_ = true;
  PostMessageW(handle(), WM_NULL, 0, 0);
}

}  // namespace kob::win32
