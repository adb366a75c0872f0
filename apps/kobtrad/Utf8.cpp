// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Utf8.h"

#include "Verb.h"

#include <array>
#include <cstdio>

namespace kob::command {

namespace {

constexpr char32_t invalid = 0xFFFFFFFF;

/// The next character, and `at` moved behind it; `invalid`, and `at` one byte further, for what is none.
char32_t nextCharacter(std::string_view bytes, std::size_t& at) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const unsigned char lead = byte(at++);
  if (lead < 0x80) {
    return lead;
  }
  struct Form {
    unsigned char mask, lead;
    std::size_t more;
    char32_t least;
  };
  constexpr std::array<Form, 3> forms{
      {{0xE0, 0xC0, 1, 0x80}, {0xF0, 0xE0, 2, 0x800}, {0xF8, 0xF0, 3, 0x10000}}};
  for (const Form& form : forms) {
    if ((lead & form.mask) != form.lead || bytes.size() - at < form.more) {
      continue;
    }
    char32_t character = lead & static_cast<unsigned char>(~form.mask);
    for (std::size_t i = 0; i < form.more; ++i) {
      if ((byte(at + i) & 0xC0) != 0x80) {
        return invalid;
      }
      character = character << 6 | (byte(at + i) & 0x3F);
    }
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < form.least || character > 0x10FFFF || isSurrogate) {
      return invalid;
    }
    at += form.more;
    return character;
  }
  return invalid;
}

void append(Text& text, char32_t character) {
  if (character < 0x10000) {
    text += static_cast<char16_t>(character);
    return;
  }
  character -= 0x10000;
  text += static_cast<char16_t>(0xD800 + (character >> 10));
  text += static_cast<char16_t>(0xDC00 + (character & 0x3FF));
}

std::string numbered(const char* format, unsigned number) {
  std::array<char, 16> buffer{};
  std::snprintf(buffer.data(), buffer.size(), format, number);
  return buffer.data();
}

}  // namespace

std::optional<Text> fromUtf8(std::string_view bytes) {
  Text text;
  text.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size();) {
    const char32_t character = nextCharacter(bytes, at);
    if (character == invalid) {
      return std::nullopt;
    }
    append(text, character);
  }
  return text;
}

Text argumentText(std::string_view bytes, const char* which) {
  std::optional<Text> text = fromUtf8(bytes);
  if (!text) {
    throw UsageError(std::string(which) + " is not UTF-8");
  }
  return std::move(*text);
}

Text moduleName(std::string_view bytes) {
  Text name = argumentText(bytes, "the module");
  if (name.find(u'\\') != Text::npos) {
    // The component would take it for the name of one cell, which no path could spell.
    throw UsageError("a module is one name, without a \"\\\"");
  }
  return name;
}

std::string visible(TextView text) {
  const std::size_t first = text.find_first_not_of(u' ');
  const std::size_t last = text.find_last_not_of(u' ');
  Text result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    if (unit == u' ') {
      result += first == TextView::npos || i < first || i > last ? u'\u00B7' : u' ';
    } else if (unit == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') {
      continue;
    } else if (unit == u'\n' || unit == u'\r') {
      result += u'\u23CE';
    } else if (unit == u'\t') {
      result += u'\u21E5';
    } else if (unit < 0x20 || (unit >= 0x7F && unit < 0xA0)) {
      for (const char letter : numbered("<U+%04X>", unit)) {
        result += static_cast<char16_t>(letter);
      }
    } else {
      result += unit;
    }
  }
  return toUtf8(result);
}

std::string jsonString(std::string_view utf8) {
  std::string json = "\"";
  for (std::size_t at = 0; at < utf8.size();) {
    const std::size_t start = at;
    const char32_t character = nextCharacter(utf8, at);
    if (character == invalid) {
      json += "\xEF\xBF\xBD";
    } else if (character == U'"' || character == U'\\') {
      json += '\\';
      json += static_cast<char>(character);
    } else if (character < 0x20) {
      json += numbered("\\u%04x", static_cast<unsigned>(character));
    } else {
      json += utf8.substr(start, at - start);
    }
  }
  return json + '"';
}

}  // namespace kob::command
