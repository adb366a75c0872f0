// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NativeMenu.h"

#include <cwctype>

namespace kob::win32 {

namespace {

constexpr UINT firstCommand = 0x4000;

bool isLetter(wchar_t unit) {
  return std::iswalpha(static_cast<std::wint_t>(unit)) != 0;
}

wchar_t small(wchar_t unit) {
  return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(unit)));
}

/// A caption with the mark of a letter by which its entry is reached, which is none of those that are taken.
std::wstring withMnemonic(TextView caption, std::wstring& taken) {
  const std::wstring text = shown(caption);
  // The beginning of a word is found sooner.
  for (const bool onlyInitials : {true, false}) {
    for (std::size_t i = 0; i < text.size(); ++i) {
      const bool isInitial = i == 0 || text[i - 1] == L' ';
      if (isLetter(text[i]) && (isInitial || !onlyInitials) &&
          taken.find(small(text[i])) == std::wstring::npos) {
        taken += small(text[i]);
        return plainCaption(caption.substr(0, i)) + L'&' + plainCaption(caption.substr(i));
      }
    }
  }
  return plainCaption(caption);
}

}  // namespace

NativeMenuItem::NativeMenuItem(DialogWindow& window, const WidgetId& id, NativeMenu& menu)
    : MenuItem(window, id), menu_(menu) {}

void NativeMenuItem::showCaption(TextView /*caption*/) {
  menu_.write();
}

void NativeMenuItem::showVisible(bool /*visible*/) {
  menu_.write();
}

void NativeMenuItem::showEnabled(bool /*enabled*/) {
  menu_.write();
}

NativeMenu::NativeMenu(HWND window) : window_(window), bar_(CreateMenu()) {
  SetMenu(window, bar_);
}

NativeMenu::~NativeMenu() {
  // The bar goes with the window; menus that are not on it just now do not.
  for (const Entry& entry : entries_) {
    if (entry.popup != nullptr && !entry.item->isVisible()) {
      DestroyMenu(entry.popup);
    }
  }
}

NativeMenuItem& NativeMenu::add(DialogWindow& window, const WidgetId& id) {
  Entry entry;
  entry.item = std::make_unique<NativeMenuItem>(window, id, *this);
  entry.popup = id.container == nullptr ? CreatePopupMenu() : nullptr;
  entries_.push_back(std::move(entry));
  return *entries_.back().item;
}

void NativeMenu::setKey(TextView name, const wchar_t* key) {
  for (Entry& entry : entries_) {
    if (entry.item->name() == name) {
      entry.key = key;
    }
  }
}

UINT NativeMenu::command(TextView name) const {
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    if (entries_[i].item->name() == name) {
      return firstCommand + static_cast<UINT>(i);
    }
  }
  return 0;
}

bool NativeMenu::choose(UINT command, bool isReachable) {
  const std::size_t index = command - firstCommand;
  if (command < firstCommand || index >= entries_.size()) {
    return false;
  }
  NativeMenuItem& item = *entries_[index].item;
  if (isReachable && item.isVisible() && item.isEnabled()) {
    item.personClicked();
  }
  return true;
}

void NativeMenu::write() {
  for (const Entry& entry : entries_) {
    if (entry.popup != nullptr) {
      writeEntries(entry.popup, entry.item.get());
    }
  }
  writeEntries(bar_, nullptr);
  DrawMenuBar(window_);
}

void NativeMenu::writeEntries(HMENU menu, const Widget* container) {
  // Menus in it are kept.
  while (RemoveMenu(menu, 0, MF_BYPOSITION) != FALSE) {
  }
  std::wstring taken;
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const Entry& entry = entries_[i];
    if (entry.item->container() != container || !entry.item->isVisible()) {
      continue;
    }
    std::wstring text = withMnemonic(entry.item->caption(), taken);
    if (!entry.key.empty()) {
      text += L'\t' + entry.key;
    }
    const UINT state = entry.item->isEnabled() ? MF_ENABLED : MF_GRAYED;
    const UINT_PTR id = entry.popup != nullptr ? reinterpret_cast<UINT_PTR>(entry.popup)
                                               : firstCommand + static_cast<UINT_PTR>(i);
    AppendMenuW(menu, state | (entry.popup != nullptr ? MF_POPUP : MF_STRING), id, text.c_str());
  }
}

}  // namespace kob::win32
