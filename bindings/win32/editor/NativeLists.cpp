// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativeLists.h"

namespace kob::win32 {

namespace {

bool isReachingKey(WPARAM key) {
  return key == VK_RETURN || key == VK_SPACE;
}

}  // namespace

NativeListBox::NativeListBox(DialogWindow& window, const WidgetId& id, Surroundings& around, HWND control,
                             bool returnReaches)
    : OnScreen(window, id, around, control), returnReaches_(returnReaches) {
  around.controls().subclass(control, events, this);
}

void NativeListBox::onCommand(WORD code) {
  if (code == LBN_SELCHANGE && (isMouse_ || !returnReaches_)) {
    reach();
  }
}

void NativeListBox::reach() {
  const auto index = static_cast<std::int32_t>(send(LB_GETCURSEL));
  if (index >= 0 && answers()) {
    personClicked(index);
  }
}

bool NativeListBox::isOnLine(LPARAM place) const {
  const LRESULT at = send(LB_ITEMFROMPOINT, 0, place);
  return HIWORD(at) == 0 && send(LB_GETCOUNT) > 0;
}

LRESULT CALLBACK NativeListBox::events(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                       DWORD_PTR self) {
  auto& box = *reinterpret_cast<NativeListBox*>(self);
  const Controls& controls = box.around().controls();
  switch (message) {
    case WM_LBUTTONDOWN:
      // Below the last line there is nothing to click.
      if (!box.isOnLine(lParam)) {
        SetFocus(list);
        return 0;
      }
      break;
    case WM_LBUTTONUP: {
      const Quiet mouse(box.isMouse_);
      return controls.call(list, message, wParam, lParam);
    }
    case WM_GETDLGCODE: {
      const auto* const key = reinterpret_cast<const MSG*>(lParam);
      const LRESULT wanted = controls.call(list, message, wParam, lParam);
      const bool isOwn = key != nullptr && box.returnReaches_ && isReachingKey(key->wParam);
      return isOwn ? wanted | DLGC_WANTMESSAGE : wanted;
    }
    case WM_KEYDOWN:
      if (box.returnReaches_ && isReachingKey(wParam)) {
        box.reach();
        return 0;
      }
      break;
    case WM_NCDESTROY:
      controls.release(list, events);
      break;
    default:
      break;
  }
  return controls.call(list, message, wParam, lParam);
}

void NativeListBox::showCleared() {
  send(LB_RESETCONTENT);
}

void NativeListBox::showAdded(TextView line) {
  sendText(LB_ADDSTRING, 0, shown(line));
}

void NativeListBox::showListIndex(std::int32_t index) {
  send(LB_SETCURSEL, static_cast<WPARAM>(index));
}

void NativeComboBox::onCommand(WORD code) {
  // Also when the list is folded in again without a choice: what it shows counts.
  if ((code == CBN_SELCHANGE || code == CBN_CLOSEUP) && answers()) {
    personChose(static_cast<std::int32_t>(send(CB_GETCURSEL)));
  }
}

void NativeComboBox::showAdded(TextView line) {
  sendText(CB_ADDSTRING, 0, shown(line));
}

void NativeComboBox::showListIndex(std::int32_t index) {
  send(CB_SETCURSEL, static_cast<WPARAM>(index));
}

}  // namespace kob::win32
