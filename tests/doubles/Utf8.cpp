// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Utf8.h"

#include <stdexcept>

namespace kob::testing {

namespace {

constexpr char32_t replacement = 0xFFFD;

bool isHighSurrogate(char32_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}

bool isLowSurrogate(char32_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

void append(std::string& utf8, char32_t point) {
  const auto put = [&utf8](char32_t byte) { utf8.push_back(static_cast<char>(byte)); };
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

void append(Text& text, char32_t point) {
  if (point < 0x10000) {
    text.push_back(static_cast<char16_t>(point));
  } else {
    text.push_back(static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10)));
    text.push_back(static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF)));
  }
}

}  // namespace

Text fromUtf8(std::string_view utf8) {
  Text text;
  for (std::size_t i = 0; i < utf8.size();) {
    const auto first = static_cast<unsigned char>(utf8[i]);
    const std::size_t length = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (length == 0 || i + length > utf8.size()) {
      throw std::runtime_error("not UTF-8: " + std::string(utf8));
    }
    char32_t point = length == 1 ? first : first & (0xFFU >> (length + 1));
    for (std::size_t k = 1; k < length; ++k) {
      const auto next = static_cast<unsigned char>(utf8[i + k]);
      if ((next & 0xC0) != 0x80) {
        throw std::runtime_error("not UTF-8: " + std::string(utf8));
      }
      point = (point << 6) | (next & 0x3F);
    }
    append(text, point);
    i += length;
  }
  return text;
}

std::string toUtf8(TextView text) {
  std::string utf8;
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t point = text[i];
    if (isHighSurrogate(point) && i + 1 < text.size() && isLowSurrogate(text[i + 1])) {
      point = 0x10000 + ((point - 0xD800) << 10) + (text[++i] - 0xDC00);
    } else if (isHighSurrogate(point) || isLowSurrogate(point)) {
      point = replacement;
    }
    append(utf8, point);
  }
  return utf8;
}

}  // namespace kob::testing
