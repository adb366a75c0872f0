// SPDX-FileCopyrightText: The KOBTraduction authors
#include "BoxWatcher.h"

#include "Com.h"

#include <tests/doubles/Lines.h>

#include <array>
#include <chrono>
#include <utility>

namespace kob::hosts {

namespace {

Text textOfWindow(HWND window) {
  const auto length = static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0));
  std::wstring text(length + 1, L'\0');
  SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  return hosts::textOf(text.c_str());
}

std::wstring classOf(HWND window) {
  std::array<wchar_t, 64> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return name.data();
}

/// The text and the icon among what stands in a box.
struct BoxContent {
  Text text;
  bool isCritical = false;
};

BOOL CALLBACK readPart(HWND part, LPARAM content) {
  auto& box = *reinterpret_cast<BoxContent*>(content);
  if (classOf(part) != L"Static") {
    return TRUE;
  }
  const LONG_PTR kind = GetWindowLongPtrW(part, GWL_STYLE) & SS_TYPEMASK;
  if (kind == SS_ICON) {
    const LRESULT icon = SendMessageW(part, STM_GETICON, 0, 0);
    box.isCritical = icon != 0 && icon == reinterpret_cast<LRESULT>(LoadIconW(nullptr, IDI_HAND));
  } else {
    box.text = textOfWindow(part);
  }
  return TRUE;
}

BOOL CALLBACK findBox(HWND window, LPARAM found) {
  const bool isBox = classOf(window) == L"#32770" && IsWindowVisible(window) != FALSE &&
                     (GetDlgItem(window, IDOK) != nullptr || GetDlgItem(window, IDYES) != nullptr);
  if (isBox) {
    *reinterpret_cast<HWND*>(found) = window;
  }
  return isBox ? FALSE : TRUE;
}

}  // namespace

BoxWatcher::BoxWatcher() : thread_(GetCurrentThreadId()), watcher_([this] { watch(); }) {}

BoxWatcher::~BoxWatcher() {
  isOver_ = true;
  watcher_.join();
}

void BoxWatcher::answer(bool yes) {
  const std::lock_guard<std::mutex> lock(mutex_);
  answers_.push_back(yes);
}

bool BoxWatcher::hasUnusedAnswers() {
  const std::lock_guard<std::mutex> lock(mutex_);
  return !answers_.empty();
}

std::string BoxWatcher::take() {
  const std::lock_guard<std::mutex> lock(mutex_);
  return std::exchange(shown_, {});
}

void BoxWatcher::watch() {
  while (!isOver_) {
    HWND box = nullptr;
    EnumThreadWindows(thread_, findBox, reinterpret_cast<LPARAM>(&box));
    if (box != nullptr) {
      handle(box);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(3));
  }
}

void BoxWatcher::handle(HWND box) {
  const Text title = textOfWindow(box);
  BoxContent content;
  EnumChildWindows(box, readPart, reinterpret_cast<LPARAM>(&content));
  const bool isQuestion = GetDlgItem(box, IDYES) != nullptr;
  int button = IDOK;
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    shown_ += (isQuestion ? "question " : "notice ") + testing::quoted(content.text);
    shown_ += title.empty() ? "" : " title=" + testing::quoted(title);
    shown_ += content.isCritical ? " critical" : "";
    if (isQuestion) {
      const bool has = !answers_.empty();
      const bool yes = has && answers_.front();
      shown_ += !has ? " -> unanswered" : yes ? " -> Yes" : " -> No";
      button = yes ? IDYES : IDNO;
      if (has) {
        answers_.pop_front();
      }
    }
    shown_ += "\n";
  }
  SendMessageW(box, WM_COMMAND, static_cast<WPARAM>(button),
               reinterpret_cast<LPARAM>(GetDlgItem(box, button)));
  // One box is answered once: it goes away when its own thread has seen the answer.
  while (!isOver_ && IsWindow(box) != FALSE && IsWindowVisible(box) != FALSE) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

}  // namespace kob::hosts
