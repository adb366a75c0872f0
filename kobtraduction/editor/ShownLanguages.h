// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/Text.h>

#include <cstdint>

namespace kob {

/// A language as a toolkit shows it beside its text: the name for tool tips and assistive tools, and a badge.
struct ShownLanguage {
  TextView name;
  TextView code;
  std::uint32_t colour;  ///< 0xrrggbb; white is read on it
};

/// By the language's number, from 1; null for one that the editor does not show.
KOB_EXPORT const ShownLanguage* shownLanguage(std::int32_t language) noexcept;

}  // namespace kob
