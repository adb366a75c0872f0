// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativePanes.h"

#include <algorithm>

namespace kob::win32 {

namespace {

constexpr int stripWidth = 6;
constexpr int keyStep = 10;
/// What the splitter leaves to the panes, in the units of the editor.
constexpr double leastTreeWidth = 2000;
constexpr double leastPaneWidth = 4100;
/// The share of the tree: one of so many parts, at first and of what is added.
constexpr int parts = 3;

int widthOf(HWND window) {
  RECT place = {};
  GetWindowRect(window, &place);
  return static_cast<int>(place.right - place.left);
}

}  // namespace

bool PlainPanel::onMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  if (message == WM_MOUSEMOVE && moved_) {
    moved_(static_cast<short>(LOWORD(lParam)));
  }
  return Panel::onMessage(message, wParam, lParam, result);
}

NativePane::NativePane(DialogWindow& window, const WidgetId& id, Surroundings& around,
                       std::unique_ptr<ScrolledPanel> panel)
    : OnScreen(window, id, around, panel->handle()), panel_(std::move(panel)) {
  panel_->content().onMouseMove([this](int x) {
    if (answers()) {
      personMovedMouse(this->around().metrics().units(x), false);
    }
  });
}

double NativePane::left() const {
  RECT place = {};
  GetWindowRect(control(), &place);
  MapWindowPoints(nullptr, GetParent(control()), reinterpret_cast<POINT*>(&place), 2);
  return around().metrics().units(static_cast<int>(place.left));
}

double NativePane::width() const {
  return around().metrics().units(widthOf(control()));
}

NativeArea::NativeArea(DialogWindow& window, const WidgetId& id, Surroundings& around,
                       std::unique_ptr<PlainPanel> panel)
    : OnScreen(window, id, around, panel->handle()), panel_(std::move(panel)) {}

void NativeArea::setTree(NativeTree& tree, HWND strip) {
  tree_ = &tree;
  strip_ = strip;
  around().controls().subclass(strip, events, this);
  tree.onSetWidth([this](int pixels) { divideAt(pixels); });
}

double NativeArea::width() const {
  return around().metrics().units(widthOf(control()));
}

void NativeArea::divideAt(int pixels) {
  left_ = pixels;
  arrange();
  around().arrangeLater();
}

void NativeArea::arrange() {
  if (tree_ == nullptr || pane_ == nullptr) {
    return;
  }
  const Metrics& metrics = around().metrics();
  RECT area = {};
  GetClientRect(control(), &area);
  const int width = static_cast<int>(area.right);
  const int height = static_cast<int>(area.bottom);
  const int strip = metrics.px(stripWidth);
  left_ = arrangedWidth_ == 0 ? width / parts : left_ + (width - arrangedWidth_) / parts;
  arrangedWidth_ = width;
  const int most = width - strip - metrics.pixels(leastPaneWidth);
  left_ = std::max(std::min(left_, most), metrics.pixels(leastTreeWidth));
  MoveWindow(tree_->control(), 0, 0, left_, height, TRUE);
  MoveWindow(strip_, left_, 0, strip, height, TRUE);
  MoveWindow(pane_->control(), left_ + strip, 0, std::max(0, width - left_ - strip), height, TRUE);
}

void NativeArea::moved(int x, bool leftOnly) {
  if (answers()) {
    personMovedMouse(around().metrics().units(x), leftOnly);
  }
}

void NativeArea::showPointer(MousePointer pointer) {
  if (GetCapture() == strip_) {
    SetCursor(LoadCursorW(nullptr, pointer == MousePointer::SizeWestEast ? IDC_SIZEWE : IDC_ARROW));
  }
}

void NativeArea::paintStrip() const {
  PAINTSTRUCT painting = {};
  const HDC context = BeginPaint(strip_, &painting);
  RECT place = {};
  GetClientRect(strip_, &place);
  FillRect(context, &place, GetSysColorBrush(COLOR_BTNFACE));
  if (GetFocus() == strip_) {
    InflateRect(&place, -around().metrics().px(2), 0);
    FillRect(context, &place, GetSysColorBrush(COLOR_HIGHLIGHT));
  }
  EndPaint(strip_, &painting);
}

bool NativeArea::onStrip(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  switch (message) {
    case WM_NCHITTEST:
      result = HTCLIENT;
      return true;
    case WM_SETCURSOR:
      SetCursor(LoadCursorW(nullptr, pointer() == MousePointer::SizeWestEast ? IDC_SIZEWE : IDC_ARROW));
      result = TRUE;
      return true;
    case WM_GETDLGCODE:
      result = DLGC_WANTARROWS;
      return true;
    case WM_LBUTTONDOWN:
      SetCapture(strip_);
      return true;
    case WM_LBUTTONUP:
      ReleaseCapture();
      return true;
    case WM_MOUSEMOVE: {
      constexpr WPARAM buttons = MK_LBUTTON | MK_RBUTTON | MK_MBUTTON | MK_XBUTTON1 | MK_XBUTTON2;
      POINT place = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
      MapWindowPoints(strip_, control(), &place, 1);
      moved(static_cast<int>(place.x), (wParam & buttons) == MK_LBUTTON);
      return true;
    }
    case WM_KEYDOWN:
      if (wParam == VK_LEFT || wParam == VK_RIGHT) {
        const int step = around().metrics().px(keyStep);
        moved(left_ + (wParam == VK_LEFT ? -step : step), true);
        return true;
      }
      return false;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      InvalidateRect(strip_, nullptr, FALSE);
      if (message == WM_KILLFOCUS && answers()) {
        personLeft();
      }
      return true;
    case WM_PAINT:
      paintStrip();
      return true;
    default:
      return false;
  }
}

LRESULT CALLBACK NativeArea::events(HWND strip, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                    DWORD_PTR self) {
  auto& area = *reinterpret_cast<NativeArea*>(self);
  const Controls& controls = area.around().controls();
  LRESULT result = 0;
  if (message == WM_NCDESTROY) {
    controls.release(strip, events);
  } else if (area.onStrip(message, wParam, lParam, result)) {
    return result;
  }
  return controls.call(strip, message, wParam, lParam);
}

}  // namespace kob::win32
