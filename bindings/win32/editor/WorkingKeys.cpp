// SPDX-FileCopyrightText: The KOBTraduction authors
#include "WorkingKeys.h"

#include "NativeTree.h"
#include "Win32DialogWindow.h"

#include <vector>

namespace kob::win32 {

namespace {

constexpr WORD down = 0x5000;
constexpr WORD up = 0x5001;
constexpr WORD otherSide = 0x5002;
constexpr WORD closing = 0x5003;
constexpr WORD firstText = 0x5010;
constexpr WORD texts = 6;

constexpr BYTE control = FVIRTKEY | FCONTROL;

}  // namespace

WorkingKeys::WorkingKeys(Win32DialogWindow& window) : window_(window) {
  NativeMenu& menu = *window.menu();
  menu.setKey(u"m_Save", L"Ctrl+S");
  menu.setKey(u"m_SaveAs", L"Ctrl+Shift+S");
  menu.setKey(u"m_Search", L"Ctrl+F");
  menu.write();
  const auto chosen = [&menu](TextView name) { return static_cast<WORD>(menu.command(name)); };
  std::vector<ACCEL> keys = {
      {control, 'S', chosen(u"m_Save")},
      {control | FSHIFT, 'S', chosen(u"m_SaveAs")},
      {control, 'F', chosen(u"m_Search")},
      {control, VK_NEXT, down},
      {control, VK_PRIOR, up},
      {control, 'W', closing},
      {FVIRTKEY, VK_F6, otherSide},
  };
  for (WORD i = 0; i < texts; ++i) {
    keys.push_back({control, static_cast<WORD>('1' + i), static_cast<WORD>(firstText + i)});
  }
  table_ = CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size()));
  tree().onInsert([this] { pressButton(u"bAdd"); });
  tree().onDelete([this] { pressButton(u"bSupp"); });
}

WorkingKeys::~WorkingKeys() {
  DestroyAcceleratorTable(table_);
}

NativeTree& WorkingKeys::tree() const {
  return dynamic_cast<NativeTree&>(*window_.widget(u"TV"));
}

bool WorkingKeys::translate(MSG& message) const {
  return IsChild(window_.handle(), message.hwnd) != FALSE &&
         TranslateAcceleratorW(window_.handle(), table_, &message) != 0;
}

void WorkingKeys::press(WORD command) {
  if (command == down) {
    tree().stepDown();
  } else if (command == up) {
    tree().stepUp();
  } else if (command == closing) {
    SendMessageW(window_.handle(), WM_CLOSE, 0, 0);
  } else if (command == otherSide && GetFocus() == tree().control()) {
    focusText(1);
  } else if (command == otherSide) {
    SetFocus(tree().control());
  } else if (command >= firstText && command < firstText + texts) {
    focusText(command - firstText);
  }
}

void WorkingKeys::focusText(int index) const {
  for (const TextView name : {TextView(u"tbTradMessage"), TextView(u"tbTradCtrl")}) {
    if (const HWND text = window_.control(name, index); IsWindowVisible(text) != FALSE) {
      SetFocus(text);
    }
  }
}

void WorkingKeys::pressButton(TextView name) const {
  if (Native* const button = window_.native(name)) {
    button->onCommand(BN_CLICKED);
  }
}

}  // namespace kob::win32
