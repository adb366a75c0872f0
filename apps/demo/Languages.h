// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <array>
#include <cstdint>

namespace kob::demo {

struct Language {
  std::int32_t number;
  const char* code;
  const char16_t* ownName;
};

/// Every language of the demo. The forms are written in the first one, which is the model's reference
/// language.
inline constexpr std::array<Language, 6> languages{{
    {1, "fr", u"Français"},
    {2, "en", u"English"},
    {3, "nl", u"Nederlands"},
    {4, "de", u"Deutsch"},
    {5, "it", u"Italiano"},
    {6, "es", u"Español"},
}};

inline constexpr const char* referenceCode = languages.front().code;

}  // namespace kob::demo
