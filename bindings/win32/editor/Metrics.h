// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <windows.h>

#include <string>

namespace kob::win32 {

/// The fonts of a window at its scaling, and what follows from them for places and sizes, in pixels.
class Metrics {
 public:
  explicit Metrics(int dpi);
  Metrics(const Metrics&) = delete;
  Metrics& operator=(const Metrics&) = delete;
  ~Metrics();

  int dpi() const noexcept { return dpi_; }
  HFONT font() const noexcept { return font_; }
  HFONT boldFont() const noexcept { return boldFont_; }

  /// So many pixels of a scaling of 100 %.
  int px(int pixels) const noexcept { return MulDiv(pixels, dpi_, 96); }
  /// What the editor counts in: 1/15 of a pixel at a scaling of 100 %.
  double units(int pixels) const noexcept { return pixels * 15.0 * 96 / dpi_; }
  int pixels(double units) const noexcept;

  int line() const noexcept { return line_; }
  int textWidth(const std::wstring& text, bool isBold = false) const;
  /// How high a text is that is broken at a width.
  int textHeight(const std::wstring& text, int width, bool isBold) const;

  int margin() const noexcept { return px(9); }
  int gap() const noexcept { return px(6); }
  int buttonHeight() const noexcept { return line_ + px(10); }
  /// Of a field of one line, and of one of more.
  int fieldHeight(int lines = 1) const noexcept;

 private:
  int dpi_;
  HFONT font_;
  HFONT boldFont_;
  int line_;
};

}  // namespace kob::win32
