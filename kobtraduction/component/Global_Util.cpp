// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/component/Global_Util.h>

#include <cstdio>
#include <string>

namespace kob::Global_Util {

namespace {

/// What a program without a binding gets.
class StandardErrorBoxes final : public MessageBoxes {
 public:
  void notice(TextView text, TextView title, MessageIcon /*icon*/) override { print(text, title, "\n"); }

  bool question(TextView text, TextView title, MessageIcon /*icon*/) override {
    print(text, title, " [No]\n");
    return false;
  }

 private:
  static void print(TextView text, TextView title, const char* end) {
    const std::string line = (title.empty() ? std::string() : toUtf8(title) + ": ") + toUtf8(text) + end;
    std::fputs(line.c_str(), stderr);
  }
};

thread_local std::int32_t languageCount = 0;
thread_local bool persistOk = false;
thread_local MessageBoxes* boxesOfThread = nullptr;

}  // namespace

std::int32_t NbLangues() noexcept {
  return languageCount;
}

void setNbLangues(std::int32_t count) noexcept {
  languageCount = count;
}

bool PersistOk() noexcept {
  return persistOk;
}

void setPersistOk(bool ok) noexcept {
  persistOk = ok;
}

MessageBoxes& messageBoxes() noexcept {
  static StandardErrorBoxes fallback;
  return boxesOfThread != nullptr ? *boxesOfThread : fallback;
}

MessageBoxes* setMessageBoxes(MessageBoxes* boxes) noexcept {
  MessageBoxes* const previous = boxesOfThread;
  boxesOfThread = boxes;
  return previous;
}

}  // namespace kob::Global_Util
