// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>

#include <array>
#include <cstdint>

namespace kob {

/// A language as a toolkit shows it beside its text: the name for tool tips and assistive tools, and a badge.
struct ShownLanguage {
  TextView name;
  TextView code;
  std::uint32_t colour;  ///< 0xrrggbb; white is read on it
};

/// Language n is item n - 1.
inline constexpr std::array<ShownLanguage, 6> shownLanguageList{{
    {u"Français", u"FR", 0x2f5fb3},
    {u"English", u"EN", 0x9b2d3f},
    {u"Nederlands", u"NL", 0xb0560f},
    {u"Deutsch", u"DE", 0x5f6673},
    {u"Italiano", u"IT", 0x2a7a4b},
    {u"Español", u"ES", 0x7f6200},
}};

}  // namespace kob
