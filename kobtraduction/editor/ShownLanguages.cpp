// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/ShownLanguages.h>

#include <array>
#include <cstddef>

namespace kob {

namespace {

constexpr std::array<ShownLanguage, 6> languages{{
    {u"Français", u"FR", 0x2f5fb3},
    {u"English", u"EN", 0x9b2d3f},
    {u"Nederlands", u"NL", 0xb0560f},
    {u"Deutsch", u"DE", 0x5f6673},
    {u"Italiano", u"IT", 0x2a7a4b},
    {u"Español", u"ES", 0x7f6200},
}};

}  // namespace

const ShownLanguage* shownLanguage(std::int32_t language) noexcept {
  const auto index = static_cast<std::size_t>(language) - 1;
  return index < languages.size() ? &languages[index] : nullptr;
}

}  // namespace kob
