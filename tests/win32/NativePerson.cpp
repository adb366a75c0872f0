// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativePerson.h"

#include <bindings/win32/editor/NativeTree.h>

namespace kob::testing {

namespace {

win32::NativeTree& nativeTree(const NativePerson& person) {
  return person.the<win32::NativeTree>(u"TV");
}

void click(HWND control, int x, int y) {
  const LPARAM place = MAKELPARAM(x, y);
  // The tree waits for the button to come up while it handles it going down.
  PostMessageW(control, WM_LBUTTONUP, 0, place);
  SendMessageW(control, WM_LBUTTONDOWN, MK_LBUTTON, place);
  MSG message = {};
  while (PeekMessageW(&message, control, WM_LBUTTONUP, WM_LBUTTONUP, PM_REMOVE) != FALSE) {
    DispatchMessageW(&message);
  }
}

TVITEMW itemOf(const NativePerson& person, TreeView::Node node, UINT mask, std::wstring* text = nullptr) {
  TVITEMW item = {};
  item.mask = mask;
  item.hItem = nativeTree(person).item(node);
  if (text != nullptr) {
    text->assign(256, L'\0');
    item.pszText = text->data();
    item.cchTextMax = static_cast<int>(text->size());
  }
  SendMessageW(person.control(u"TV"), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
  return item;
}

}  // namespace

HWND NativePerson::control(TextView name, std::int32_t index) const {
  const HWND found = window.control(name, index);
  if (found == nullptr) {
    throw std::logic_error("no such control");
  }
  return found;
}

bool NativePerson::reaches(HWND control) const {
  return window.isShown() && IsWindowEnabled(window.handle()) != FALSE && IsWindowVisible(control) != FALSE &&
         IsWindowEnabled(control) != FALSE;
}

bool NativePerson::type(TextView textBox, std::int32_t index, TextView text) {
  const HWND box = control(textBox, index);
  const auto style = GetWindowLongW(box, GWL_STYLE);
  if (!reaches(box) || (style & ES_READONLY) != 0) {
    return false;
  }
  std::wstring pasted = win32::shown(text);
  if ((style & ES_MULTILINE) == 0) {
    // A field of one line shows a line end by a sign, which can be typed, too.
    for (std::size_t at = pasted.find(L"\r\n"); at != std::wstring::npos; at = pasted.find(L"\r\n")) {
      pasted.replace(at, 2, L"\u2424");
    }
  }
  SendMessageW(box, EM_SETSEL, 0, -1);
  SendMessageW(box, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(pasted.c_str()));
  return true;
}

bool NativePerson::typeLetters(TextView textBox, std::int32_t index, TextView text) {
  const HWND box = control(textBox, index);
  if (!reaches(box)) {
    return false;
  }
  SetFocus(box);
  SendMessageW(box, EM_SETSEL, 0, -1);
  for (const char16_t unit : text) {
    SendMessageW(box, WM_CHAR, unit == u'\n' ? u'\r' : unit, 0);
  }
  return true;
}

bool NativePerson::press(TextView button, std::int32_t index) {
  const HWND pressed = control(button, index);
  const bool can = reaches(pressed);
  if (can) {
    SendMessageW(pressed, BM_CLICK, 0, 0);
  }
  return can;
}

bool NativePerson::chooseMenu(TextView item) {
  const bool can = window.isShown() && IsWindowEnabled(window.handle()) != FALSE;
  if (can) {
    SendMessageW(window.handle(), WM_COMMAND, window.menu()->command(item), 0);
  }
  return can;
}

bool NativePerson::move(TextView slider, std::int32_t index, std::int32_t value) {
  const HWND trackbar = control(slider, index);
  const bool can = reaches(trackbar);
  if (can) {
    SendMessageW(trackbar, TBM_SETPOS, TRUE, value);
    SendMessageW(GetParent(trackbar), WM_HSCROLL, MAKEWPARAM(TB_THUMBTRACK, value),
                 reinterpret_cast<LPARAM>(trackbar));
  }
  return can;
}

bool NativePerson::clickLine(TextView listBox, std::int32_t line) {
  const HWND list = control(listBox);
  RECT place = {};
  if (!reaches(list) || line < 0 || SendMessageW(list, LB_GETCOUNT, 0, 0) <= line) {
    return false;
  }
  SendMessageW(list, LB_SETTOPINDEX, static_cast<WPARAM>(line), 0);
  SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(&place));
  click(list, static_cast<int>(place.left) + 2, static_cast<int>(place.top) + 2);
  return true;
}

bool NativePerson::chooseLine(TextView comboBox, std::int32_t line) {
  const HWND combo = control(comboBox);
  const bool can = reaches(combo);
  if (can) {
    SendMessageW(combo, WM_KEYDOWN, VK_HOME, 0);
    for (; line > 0; --line) {
      SendMessageW(combo, WM_KEYDOWN, VK_DOWN, 0);
    }
  }
  return can;
}

bool NativePerson::clickNode(TreeView::Node node) {
  const HWND tree = control(u"TV");
  const HTREEITEM item = nativeTree(*this).item(node);
  if (!reaches(tree) || item == nullptr) {
    return false;
  }
  SendMessageW(tree, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
  union {
    RECT place;
    HTREEITEM item;
  } asked = {};
  asked.item = item;
  if (SendMessageW(tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&asked)) == FALSE) {
    throw std::logic_error("a node that is not seen");
  }
  // On the picture: the text may be empty.
  click(tree, static_cast<int>(asked.place.left) - 8,
        static_cast<int>(asked.place.top + asked.place.bottom) / 2);
  return true;
}

bool NativePerson::clickTag(TextView tag) {
  return clickNode(tree().find(tag));
}

void NativePerson::key(WPARAM key, const std::vector<int>& modifiers) const {
  BYTE state[256] = {};
  for (const int modifier : modifiers) {
    state[modifier] = 0x80;
  }
  SetKeyboardState(state);
  if (GetFocus() == nullptr) {
    // Another program came to the front; the window knows where the focus was.
    SetForegroundWindow(window.handle());
  }
  PostMessageW(GetFocus(), WM_KEYDOWN, key, 0);
}

void NativePerson::mouse(HWND at, UINT message, WPARAM buttons, int x, int y) const {
  SendMessageW(at, message, buttons, MAKELPARAM(x, y));
}

bool NativePerson::sees(TextView name, std::int32_t index) const {
  return IsWindowVisible(control(name, index)) != FALSE;
}

std::wstring NativePerson::shownText(TextView name, std::int32_t index) const {
  return win32::windowText(control(name, index));
}

Text NativePerson::text(TextView textBox, std::int32_t index) const {
  return win32::textOf(shownText(textBox, index));
}

std::vector<Text> NativePerson::lines(TextView listBox) const {
  const HWND list = control(listBox);
  std::vector<Text> all;
  const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
  for (LRESULT i = 0; i < count; ++i) {
    const auto line = static_cast<WPARAM>(i);
    std::wstring text(static_cast<std::size_t>(SendMessageW(list, LB_GETTEXTLEN, line, 0)) + 1, L'\0');
    SendMessageW(list, LB_GETTEXT, line, reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    all.push_back(win32::textOf(text));
  }
  return all;
}

std::int32_t NativePerson::line(TextView listBox) const {
  return static_cast<std::int32_t>(SendMessageW(control(listBox), LB_GETCURSEL, 0, 0));
}

bool NativePerson::isChecked(TextView box, std::int32_t index) const {
  return SendMessageW(control(box, index), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

std::int32_t NativePerson::chosen(TextView optionButtons) const {
  for (std::int32_t i = 0; i < 3; ++i) {
    if (isChecked(optionButtons, i)) {
      return i;
    }
  }
  return -1;
}

std::int32_t NativePerson::value(TextView slider, std::int32_t index) const {
  return static_cast<std::int32_t>(SendMessageW(control(slider, index), TBM_GETPOS, 0, 0));
}

std::wstring NativePerson::nodeText(TreeView::Node node) const {
  std::wstring text;
  const TVITEMW item = itemOf(*this, node, TVIF_TEXT, &text);
  return item.pszText;
}

std::int32_t NativePerson::nodeImage(TreeView::Node node) const {
  return itemOf(*this, node, TVIF_IMAGE).iImage + 1;
}

TreeView::Node NativePerson::selectedNode() const {
  return nativeTree(*this).nodeOf(
      reinterpret_cast<HTREEITEM>(SendMessageW(control(u"TV"), TVM_GETNEXTITEM, TVGN_CARET, 0)));
}

}  // namespace kob::testing
