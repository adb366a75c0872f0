// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativeTextBox.h"

#include <kobtraduction/editor/LineEnds.h>

#include <string_view>

namespace kob::win32 {

namespace {

/// Where a field of one line shows a line end.
constexpr wchar_t lineEndInLine = 0x2424;

/// A text with its line ends as the control needs them.
std::wstring forControl(TextView text, bool hasLines) {
  std::wstring result;
  for (const char16_t unit : shownInDocument(text)) {
    if (unit != paragraphSeparator) {
      result += static_cast<wchar_t>(unit);
    } else if (hasLines) {
      result += L"\r\n";
    } else {
      result += lineEndInLine;
    }
  }
  return result;
}

/// What a control shows, with one unit for a line end.
Text asDocument(std::wstring_view text, bool hasLines) {
  Text result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isPair = text[i] == L'\r' && i + 1 < text.size() && text[i + 1] == L'\n';
    i += isPair ? 1 : 0;
    const bool isEnd = text[i] == L'\r' || text[i] == L'\n' || (!hasLines && text[i] == lineEndInLine);
    result += isEnd ? paragraphSeparator : static_cast<char16_t>(text[i]);
  }
  return result;
}

/// Whether the first letter that has a direction is read from right to left.
bool isRightToLeft(const std::wstring& text) {
  if (text.empty()) {
    return false;
  }
  std::wstring kinds(text.size(), L'\0');
  GetStringTypeW(CT_CTYPE2, text.c_str(), static_cast<int>(text.size()),
                 reinterpret_cast<WORD*>(kinds.data()));
  for (const wchar_t kind : kinds) {
    if (kind == C2_LEFTTORIGHT || kind == C2_RIGHTTOLEFT) {
      return kind == C2_RIGHTTOLEFT;
    }
  }
  return false;
}

bool isEditingKey(const MSG& key) {
  return key.message == WM_KEYDOWN && (key.wParam == VK_TAB || key.wParam == VK_ESCAPE);
}

}  // namespace

NativeTextBox::NativeTextBox(DialogWindow& window, const WidgetId& id, Surroundings& around, HWND control)
    : OnScreen(window, id, around, control) {
  constexpr WPARAM unlimited = 0x7ffffffe;
  send(EM_SETLIMITTEXT, unlimited);
  around.controls().subclass(control, keys, this);
}

bool NativeTextBox::hasLines() const {
  return (GetWindowLongW(control(), GWL_STYLE) & ES_MULTILINE) != 0;
}

void NativeTextBox::onCommand(WORD code) {
  // A locked text can change by no key, but by what programs send.
  if (code != EN_CHANGE || isQuiet_ || isLocked() || !answers()) {
    return;
  }
  const std::wstring text = windowText(control());
  showDirection(text);
  fitScrollBar();
  personTyped(editedInDocument(TextBox::text(), asDocument(text, hasLines()), u"\r\n"));
}

void NativeTextBox::showText(TextView text) {
  const Quiet quiet(isQuiet_);
  const std::wstring native = forControl(text, hasLines());
  // First the direction: lines that are there already do not follow it.
  showDirection(native);
  SetWindowTextW(control(), native.c_str());
  fitScrollBar();
}

void NativeTextBox::showLocked(bool locked) {
  send(EM_SETREADONLY, locked ? TRUE : FALSE);
}

void NativeTextBox::showDirection(const std::wstring& text) {
  const bool isMirrored = isRightToLeft(text);
  const auto mirror = [&](int which, LONG bits) {
    const auto before = GetWindowLongW(control(), which);
    const auto after = isMirrored ? before | bits : before & ~bits;
    if (before != after) {
      SetWindowLongW(control(), which, after);
      InvalidateRect(control(), nullptr, TRUE);
    }
  };
  // Some versions of the control look at the one, some at the other.
  mirror(GWL_EXSTYLE, WS_EX_RTLREADING | WS_EX_RIGHT);
  mirror(GWL_STYLE, ES_RIGHT);
}

void NativeTextBox::fitScrollBar() {
  // Showing the bar changes the size.
  if (!hasLines() || isFitting_) {
    return;
  }
  const Quiet fitting(isFitting_);
  const auto fits = [this] {
    RECT inside = {};
    send(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&inside));
    const LRESULT height = send(EM_GETLINECOUNT) * around().metrics().line();
    return height <= inside.bottom - inside.top || send(EM_GETLINECOUNT) == 1;
  };
  const auto show = [this](bool isScrolled) {
    isScrolled_ = isScrolled;
    ShowScrollBar(control(), SB_VERT, isScrolled ? TRUE : FALSE);
  };
  if (isScrolled_) {
    show(false);
  }
  if (!fits()) {
    show(true);
  }
}

LRESULT CALLBACK NativeTextBox::keys(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                     DWORD_PTR self) {
  auto& box = *reinterpret_cast<NativeTextBox*>(self);
  const Controls& controls = box.around().controls();
  if (message == WM_GETDLGCODE) {
    // The control's own answer takes Tab and Escape from the dialog, and closes its parent on the latter.
    const auto* const key = reinterpret_cast<const MSG*>(lParam);
    const bool isDialogs = key != nullptr && isEditingKey(*key);
    const LRESULT wanted = DLGC_HASSETSEL | DLGC_WANTARROWS | DLGC_WANTCHARS;
    return box.hasLines() && key != nullptr && !isDialogs ? wanted | DLGC_WANTALLKEYS : wanted;
  }
  constexpr WPARAM controlA = 1;
  if (message == WM_CHAR && wParam == controlA) {
    SendMessageW(edit, EM_SETSEL, 0, -1);
    return 0;
  }
  if (message == WM_NCDESTROY) {
    controls.release(edit, keys);
  } else if (message == WM_SIZE) {
    const LRESULT result = controls.call(edit, message, wParam, lParam);
    box.fitScrollBar();
    return result;
  }
  return controls.call(edit, message, wParam, lParam);
}

}  // namespace kob::win32
