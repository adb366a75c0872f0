// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Win32MessageBoxes.h"

#include "VisualStyles.h"
#include "WideText.h"

#include <kobtraduction/component/Global_Util.h>

#include <windows.h>

namespace kob::win32 {

namespace {

int ask(const VisualStyles& styles, TextView text, TextView title, MessageIcon icon, UINT buttons) {
  const VisualStyles::Scope styled(styles);
  const HWND owner = GetActiveWindow();
  const UINT type = buttons | (icon == MessageIcon::Critical ? MB_ICONERROR : 0) |
                    (owner == nullptr ? MB_TASKMODAL : MB_APPLMODAL);
  // An empty title is a title: without one the system would write "Error".
  return MessageBoxW(owner, shown(text).c_str(), shown(title).c_str(), type);
}

}  // namespace

Win32MessageBoxes::Win32MessageBoxes(const VisualStyles& styles)
    : styles_(styles), previous_(Global_Util::setMessageBoxes(this)) {}

Win32MessageBoxes::~Win32MessageBoxes() {
  Global_Util::setMessageBoxes(previous_);
}

void Win32MessageBoxes::notice(TextView text, TextView title, MessageIcon icon) {
  ask(styles_, text, title, icon, MB_OK);
}

bool Win32MessageBoxes::question(TextView text, TextView title, MessageIcon icon) {
  return ask(styles_, text, title, icon, MB_YESNO) == IDYES;
}

}  // namespace kob::win32
