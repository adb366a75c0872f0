// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LanguageBadge.h"

#include <kobtraduction/editor/ShownLanguages.h>

namespace kob::win32 {

namespace {

constexpr int horizontalMargin = 5;
constexpr int verticalMargin = 2;
constexpr int corner = 3;

COLORREF colourOf(const ShownLanguage& language, bool isEnabled) {
  const auto channel = [&](unsigned shift) {
    const std::uint32_t value = (language.colour >> shift) & 0xff;
    return isEnabled ? value : (value + 0xff) / 2;
  };
  return RGB(channel(16), channel(8), channel(0));
}

}  // namespace

LanguageBadge::LanguageBadge(DialogWindow& window, const WidgetId& id, Surroundings& around, HWND control,
                             int language)
    : OnScreen(window, id, around, control), language_(language) {
  // For assistive tools, which read it as the name of the field that follows.
  if (const ShownLanguage* const found = shownLanguage(language)) {
    SetWindowTextW(control, shown(found->name).c_str());
  }
}

SIZE LanguageBadge::size(const Metrics& metrics) {
  // Equally wide for all.
  return {metrics.textWidth(L"NN", true) + 2 * metrics.px(horizontalMargin),
          metrics.line() + 2 * metrics.px(verticalMargin)};
}

void LanguageBadge::draw(const DRAWITEMSTRUCT& drawing) const {
  const ShownLanguage* const found = shownLanguage(language_);
  if (found == nullptr) {
    return;
  }
  const HDC context = drawing.hDC;
  RECT place = drawing.rcItem;
  FillRect(context, &place, GetSysColorBrush(COLOR_BTNFACE));
  const HBRUSH brush = CreateSolidBrush(colourOf(*found, (drawing.itemState & ODS_DISABLED) == 0));
  const HGDIOBJ brushBefore = SelectObject(context, brush);
  const HGDIOBJ penBefore = SelectObject(context, GetStockObject(NULL_PEN));
  const int round = 2 * around().metrics().px(corner);
  // Without a pen, the right and the lower edge are not drawn.
  RoundRect(context, place.left, place.top, place.right + 1, place.bottom + 1, round, round);
  const HGDIOBJ fontBefore = SelectObject(context, around().metrics().boldFont());
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, RGB(255, 255, 255));
  DrawTextW(context, shown(found->code).c_str(), -1, &place,
            DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
  SelectObject(context, fontBefore);
  SelectObject(context, penBefore);
  SelectObject(context, brushBefore);
  DeleteObject(brush);
}

}  // namespace kob::win32
