// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativeButtons.h"

namespace kob::win32 {

void NativeButton::onCommand(WORD code) {
  if (code == BN_CLICKED && answers()) {
    personClicked();
  }
}

void NativeCheckBox::onCommand(WORD code) {
  if (code == BN_CLICKED && answers()) {
    personClicked(send(BM_GETCHECK) == BST_CHECKED);
  }
  // The answer may have been another state.
  showChecked(isChecked());
}

void NativeCheckBox::showChecked(bool checked) {
  send(BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED);
}

void NativeOptionButton::onCommand(WORD code) {
  // The system also tells of a click when the focus comes to the button.
  if (code == BN_CLICKED && answers() && !isOn()) {
    personChose();
  }
  showOn(isOn());
}

void NativeOptionButton::showOn(bool on) {
  send(BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED);
  // Tab goes to the button that is on.
  const auto style = GetWindowLongW(control(), GWL_STYLE);
  SetWindowLongW(control(), GWL_STYLE, on ? style | WS_TABSTOP : style & ~WS_TABSTOP);
}

}  // namespace kob::win32
