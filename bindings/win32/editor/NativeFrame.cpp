// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativeFrame.h"

#include <uxtheme.h>
#include <vssym32.h>

namespace kob::win32 {

FramePanel::FramePanel(HINSTANCE module, HWND parent, const Surroundings& around) : around_(around) {
  createPanel(module, parent, 0);
}

void FramePanel::setCaption(TextView caption) {
  caption_ = shown(caption);
  InvalidateRect(handle(), nullptr, TRUE);
}

int FramePanel::top() const {
  const Metrics& metrics = around_.metrics();
  return caption_.empty() ? metrics.margin() : metrics.line() + metrics.gap();
}

bool FramePanel::onMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  if (message == WM_PAINT) {
    paint();
    return true;
  }
  return Panel::onMessage(message, wParam, lParam, result);
}

void FramePanel::paint() const {
  const Metrics& metrics = around_.metrics();
  PAINTSTRUCT painting = {};
  const HDC context = BeginPaint(handle(), &painting);
  RECT border = {};
  GetClientRect(handle(), &border);
  RECT text = border;
  if (!caption_.empty()) {
    text.left += metrics.margin();
    text.right = text.left + metrics.textWidth(caption_) + metrics.px(6);
    text.bottom = metrics.line();
    border.top += metrics.line() / 2;
    ExcludeClipRect(context, text.left, text.top, text.right, text.bottom);
  }
  const HTHEME theme = OpenThemeData(handle(), L"BUTTON");
  if (theme != nullptr) {
    DrawThemeBackground(theme, context, BP_GROUPBOX, GBS_NORMAL, &border, nullptr);
    CloseThemeData(theme);
  } else {
    DrawEdge(context, &border, EDGE_ETCHED, BF_RECT);
  }
  if (!caption_.empty()) {
    SelectClipRgn(context, nullptr);
    const HGDIOBJ before = SelectObject(context, metrics.font());
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, GetSysColor(IsWindowEnabled(handle()) != FALSE ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    DrawTextW(context, caption_.c_str(), -1, &text, DT_NOPREFIX | DT_SINGLELINE | DT_CENTER | DT_TOP);
    SelectObject(context, before);
  }
  EndPaint(handle(), &painting);
}

NativeFrame::NativeFrame(DialogWindow& window, const WidgetId& id, Surroundings& around,
                         std::unique_ptr<FramePanel> panel)
    : OnScreen(window, id, around, panel->handle()), panel_(std::move(panel)) {}

void NativeFrame::showCaption(TextView caption) {
  panel_->setCaption(caption);
  around().arrangeLater();
}

void NativeLabel::emphasise() {
  isBold_ = true;
  rescale();
}

void NativeLabel::rescale() {
  const Metrics& metrics = around().metrics();
  send(WM_SETFONT, reinterpret_cast<WPARAM>(isBold_ ? metrics.boldFont() : metrics.font()), TRUE);
}

void NativeLabel::showCaption(TextView caption) {
  // A label is made so that "&" has no meaning on it.
  SetWindowTextW(control(), shown(caption).c_str());
  around().arrangeLater();
}

}  // namespace kob::win32
