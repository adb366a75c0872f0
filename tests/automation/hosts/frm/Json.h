// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>

#include <array>
#include <cstdio>
#include <string>

namespace kob::hosts {

/// The members of a JSON array or object, written one after the other. The result is ASCII.
class Json {
 public:
  void add(TextView text) { addRaw(quoted(text)); }
  /// A value, or `"name": value`, that is JSON already.
  void addRaw(const std::string& json) { members_ += (members_.empty() ? "" : ", ") + json; }

  std::string array() const { return "[" + members_ + "]"; }
  std::string object() const { return "{" + members_ + "}"; }

  static std::string quoted(TextView text) {
    std::string result = "\"";
    for (const char16_t unit : text) {
      if (unit >= u' ' && unit < 0x7F && unit != u'"' && unit != u'\\') {
        result += static_cast<char>(unit);
      } else {
        std::array<char, 8> escape{};
        std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(unit));
        result += escape.data();
      }
    }
    return result + "\"";
  }

 private:
  std::string members_;
};

}  // namespace kob::hosts
