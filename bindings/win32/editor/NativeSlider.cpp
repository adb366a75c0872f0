// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativeSlider.h"

namespace kob::win32 {

namespace {

constexpr LPARAM bigStep = 10;
constexpr int thumbLength = 14;

}  // namespace

NativeSlider::NativeSlider(DialogWindow& window, const WidgetId& id, Surroundings& around, HWND control,
                           HWND caption, HWND value)
    : OnScreen(window, id, around, control), caption_(caption), value_(value) {
  setFont(caption_);
  setFont(value_);
  send(TBM_SETPAGESIZE, 0, bigStep);
  scaleThumb();
  around.controls().subclass(control, wheel, this);
}

void NativeSlider::onScroll() {
  const auto value = static_cast<std::int32_t>(send(TBM_GETPOS));
  if (!answers()) {
    showValue(Slider::value());
  } else if (value != Slider::value()) {
    writeValue(value);
    personMoved(value);
  }
}

void NativeSlider::enable(bool isEnabled) {
  for (const HWND part : {control(), caption_, value_}) {
    EnableWindow(part, isEnabled ? TRUE : FALSE);
  }
}

void NativeSlider::show(bool isShown) {
  for (const HWND part : {control(), caption_, value_}) {
    ShowWindow(part, isShown ? SW_SHOWNA : SW_HIDE);
  }
}

void NativeSlider::rescale() {
  for (const HWND part : {control(), caption_, value_}) {
    setFont(part);
  }
  scaleThumb();
}

void NativeSlider::scaleThumb() {
  // By itself it keeps its size at any scaling.
  send(TBM_SETTHUMBLENGTH, static_cast<WPARAM>(around().metrics().px(thumbLength)));
}

void NativeSlider::forget() noexcept {
  Native::forget();
  caption_ = nullptr;
  value_ = nullptr;
}

void NativeSlider::showCaption(TextView caption) {
  SetWindowTextW(caption_, shown(caption).c_str());
  around().arrangeLater();
}

void NativeSlider::showRange(std::int32_t minimum, std::int32_t maximum) {
  send(TBM_SETRANGEMIN, FALSE, minimum);
  send(TBM_SETRANGEMAX, TRUE, maximum);
}

void NativeSlider::showValue(std::int32_t value) {
  send(TBM_SETPOS, TRUE, value);
  writeValue(value);
}

void NativeSlider::writeValue(std::int32_t value) {
  SetWindowTextW(value_, (std::to_wstring(value) + L" %").c_str());
}

LRESULT CALLBACK NativeSlider::wheel(HWND trackbar, UINT message, WPARAM wParam, LPARAM lParam,
                                     UINT_PTR /*id*/, DWORD_PTR self) {
  const Controls& controls = reinterpret_cast<NativeSlider*>(self)->around().controls();
  // Somebody who scrolls the pane must not change what comes under the mouse.
  if (message == WM_MOUSEWHEEL && GetFocus() != trackbar) {
    return SendMessageW(GetParent(trackbar), message, wParam, lParam);
  }
  if (message == WM_NCDESTROY) {
    controls.release(trackbar, wheel);
  }
  return controls.call(trackbar, message, wParam, lParam);
}

}  // namespace kob::win32
