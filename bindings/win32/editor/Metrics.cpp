// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Metrics.h"

#include "Dpi.h"

#include <cmath>

namespace kob::win32 {

namespace {

HFONT makeFont(int dpi, bool isBold) {
  LOGFONTW font = messageFont(dpi);
  if (isBold) {
    font.lfWeight = FW_BOLD;
  }
  return CreateFontIndirectW(&font);
}

/// Something to measure texts in.
class Measuring {
 public:
  explicit Measuring(HFONT font) : context_(GetDC(nullptr)), before_(SelectObject(context_, font)) {}
  Measuring(const Measuring&) = delete;
  Measuring& operator=(const Measuring&) = delete;
  ~Measuring() {
    SelectObject(context_, before_);
    ReleaseDC(nullptr, context_);
  }

  HDC context() const noexcept { return context_; }

 private:
  HDC context_;
  HGDIOBJ before_;
};

int lineOf(HFONT font) {
  const Measuring measuring(font);
  TEXTMETRICW metrics = {};
  GetTextMetricsW(measuring.context(), &metrics);
  return static_cast<int>(metrics.tmHeight);
}

}  // namespace

Metrics::Metrics(int dpi)
    : dpi_(dpi), font_(makeFont(dpi, false)), boldFont_(makeFont(dpi, true)), line_(lineOf(font_)) {}

Metrics::~Metrics() {
  DeleteObject(font_);
  DeleteObject(boldFont_);
}

int Metrics::pixels(double units) const noexcept {
  return static_cast<int>(std::lround(units * dpi_ / (15.0 * 96)));
}

int Metrics::fieldHeight(int lines) const noexcept {
  // The text stands at the top of the room within the edge, which does not grow with the letters.
  return lines * line_ + 2 * GetSystemMetrics(SM_CYEDGE) + 4;
}

int Metrics::textWidth(const std::wstring& text, bool isBold) const {
  const Measuring measuring(isBold ? boldFont_ : font_);
  SIZE size = {};
  GetTextExtentPoint32W(measuring.context(), text.c_str(), static_cast<int>(text.size()), &size);
  return static_cast<int>(size.cx);
}

int Metrics::textHeight(const std::wstring& text, int width, bool isBold) const {
  const Measuring measuring(isBold ? boldFont_ : font_);
  RECT place = {0, 0, width, 0};
  DrawTextW(measuring.context(), text.c_str(), static_cast<int>(text.size()), &place,
            DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
  return static_cast<int>(place.bottom);
}

}  // namespace kob::win32
