// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Placing.h"

#include <algorithm>

namespace kob::win32 {

SIZE insideOf(HWND window) {
  RECT inside = {};
  GetClientRect(window, &inside);
  return {inside.right, inside.bottom};
}

bool Placing::isShown(TextView name, int index) const {
  const Widget* const widget = window_.widget(name, index);
  return widget != nullptr && widget->isVisible();
}

void Placing::put(HWND control, int left, int top, int width, int height) {
  SetWindowPos(control, nullptr, left, top, std::max(0, width), std::max(0, height),
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void Placing::put(TextView name, int index, int left, int top, int width, int height) const {
  put(window_.control(name, index), left, top, width, height);
}

std::wstring Placing::captionOf(TextView name, int index) const {
  return shown(window_.widget(name, index)->caption());
}

int Placing::buttonWidth(TextView name, int index) const {
  return std::max(m.px(75), m.textWidth(captionOf(name, index)) + m.px(24));
}

int Placing::boxWidth(TextView name, int index) const {
  return m.textWidth(captionOf(name, index)) + m.px(26);
}

int Placing::labelWidth(TextView name) const {
  return m.textWidth(captionOf(name, -1)) + m.px(2);
}

void Placing::putLabel(TextView name, int left, int top, int width) const {
  // On the line of the text in the field.
  put(name, left, top + (m.fieldHeight() - m.line()) / 2, width, m.line());
}

void Placing::putKinds(int left, int top) const {
  for (int kind = 0; kind < 3; ++kind) {
    const int width = boxWidth(u"OptTypFeuille", kind);
    put(u"OptTypFeuille", kind, left, top, width, m.fieldHeight());
    left += width + m.gap();
  }
  put(u"chkContexte", left + m.px(12), top, boxWidth(u"chkContexte"), m.fieldHeight());
}

void Placing::putAnswers(TextView ok, int right, int top) const {
  const int cancel = buttonWidth(u"bCancel");
  const int accept = buttonWidth(ok);
  put(u"bCancel", right - cancel, top, cancel, m.buttonHeight());
  put(ok, right - cancel - m.gap() - accept, top, accept, m.buttonHeight());
}

}  // namespace kob::win32
