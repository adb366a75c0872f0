// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Native.h"

#include <kobtraduction/editor/Slider.h>

namespace kob::win32 {

/// A trackbar between its caption and its value, which stand beside it as controls of their own.
class NativeSlider final : public OnScreen<Slider> {
 public:
  NativeSlider(DialogWindow& window, const WidgetId& id, Surroundings& around, HWND control, HWND caption,
               HWND value);

  HWND captionControl() const noexcept { return caption_; }
  HWND valueControl() const noexcept { return value_; }

  void onScroll() override;
  void enable(bool isEnabled) override;
  void show(bool isShown) override;
  void rescale() override;
  void forget() noexcept override;

 private:
  static LRESULT CALLBACK wheel(HWND trackbar, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                DWORD_PTR self);
  void showCaption(TextView caption) override;
  void showRange(std::int32_t minimum, std::int32_t maximum) override;
  void showValue(std::int32_t value) override;
  void writeValue(std::int32_t value);
  void scaleThumb();

  HWND caption_;
  HWND value_;
};

}  // namespace kob::win32
