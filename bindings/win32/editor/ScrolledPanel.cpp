// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativePanes.h"

#include <algorithm>

namespace kob::win32 {

namespace {

constexpr int lineStep = 24;

}  // namespace

ScrolledPanel::ScrolledPanel(HINSTANCE module, HWND parent) {
  createPanel(module, parent, WS_VSCROLL);
  content_ = std::make_unique<PlainPanel>(module, handle());
}

SIZE ScrolledPanel::fit(int leastHeight) {
  RECT outer = {};
  GetWindowRect(handle(), &outer);
  page_ = static_cast<int>(outer.bottom - outer.top);
  height_ = std::max(leastHeight, page_);
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE;
  info.nMax = height_ - 1;
  info.nPage = static_cast<UINT>(page_);
  SetScrollInfo(handle(), SB_VERT, &info, TRUE);
  ShowScrollBar(handle(), SB_VERT, height_ > page_ ? TRUE : FALSE);
  RECT inner = {};
  GetClientRect(handle(), &inner);
  place_ = std::clamp(place_, 0, height_ - page_);
  MoveWindow(content_->handle(), 0, -place_, static_cast<int>(inner.right), height_, TRUE);
  scrollTo(place_);
  return {inner.right, height_};
}

void ScrolledPanel::scrollTo(int place) {
  place_ = std::clamp(place, 0, std::max(0, height_ - page_));
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_POS;
  info.nPos = place_;
  SetScrollInfo(handle(), SB_VERT, &info, TRUE);
  SetWindowPos(content_->handle(), nullptr, 0, -place_, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void ScrolledPanel::scrollBy(WORD how) {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_TRACKPOS;
  GetScrollInfo(handle(), SB_VERT, &info);
  switch (how) {
    case SB_LINEUP:
      return scrollTo(place_ - lineStep);
    case SB_LINEDOWN:
      return scrollTo(place_ + lineStep);
    case SB_PAGEUP:
      return scrollTo(place_ - page_);
    case SB_PAGEDOWN:
      return scrollTo(place_ + page_);
    case SB_TOP:
      return scrollTo(0);
    case SB_BOTTOM:
      return scrollTo(height_);
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      return scrollTo(info.nTrackPos);
    default:
      return;
  }
}

void ScrolledPanel::reveal(HWND control) {
  RECT place = {};
  GetWindowRect(control, &place);
  MapWindowPoints(nullptr, handle(), reinterpret_cast<POINT*>(&place), 2);
  if (place.top < 0) {
    scrollTo(place_ + static_cast<int>(place.top));
  } else if (place.bottom > page_) {
    scrollTo(place_ + static_cast<int>(std::min(place.bottom - page_, place.top)));
  }
}

bool ScrolledPanel::onMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  if (message == WM_VSCROLL && lParam == 0) {
    scrollBy(LOWORD(wParam));
    return true;
  }
  if (message == WM_MOUSEWHEEL) {
    scrollTo(place_ - static_cast<short>(HIWORD(wParam)) * 3 * lineStep / WHEEL_DELTA);
    return true;
  }
  return Panel::onMessage(message, wParam, lParam, result);
}

}  // namespace kob::win32
