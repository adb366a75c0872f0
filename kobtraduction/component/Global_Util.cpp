// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/component/Global_Util.h>

#include <cstdio>
#include <string>

namespace kob::Global_Util {

namespace {

/// UTF-8 for standard error; an unpaired surrogate becomes U+FFFD.
std::string toUtf8(TextView text) {
  std::string result;
  const auto put = [&result](unsigned byte) { result.push_back(static_cast<char>(byte)); };
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t point = text[i];
    if (point >= 0xD800 && point <= 0xDFFF) {
      const bool isPair =
          point < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF;
      point = isPair ? 0x10000 + ((point - 0xD800) << 10) + (text[i + 1] - 0xDC00) : 0xFFFD;
      i += isPair ? 1 : 0;
    }
    if (point < 0x80) {
      put(point);
    } else if (point < 0x800) {
      put(0xC0 | (point >> 6));
      put(0x80 | (point & 0x3F));
    } else if (point < 0x10000) {
      put(0xE0 | (point >> 12));
      put(0x80 | ((point >> 6) & 0x3F));
      put(0x80 | (point & 0x3F));
    } else {
      put(0xF0 | (point >> 18));
      put(0x80 | ((point >> 12) & 0x3F));
      put(0x80 | ((point >> 6) & 0x3F));
      put(0x80 | (point & 0x3F));
    }
  }
  return result;
}

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
thread_local MessageBoxes* boxesOfThread = nullptr;

}  // namespace

std::int32_t NbLangues() noexcept {
  return languageCount;
}

void setNbLangues(std::int32_t count) noexcept {
  languageCount = count;
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
