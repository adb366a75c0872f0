// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>

#include <cstddef>
#include <cstdint>
#include <span>

namespace kob {

/// Texts that lie one behind the other: the first begins at `units`, each other one where the one before it
/// ends. A view of them.
struct TextRun {
  const char16_t* units = nullptr;
  /// Where each text ends, in units from the beginning of the first.
  std::span<const std::uint32_t> ends;

  std::size_t size() const noexcept { return ends.size(); }
  std::uint32_t start(std::size_t text) const noexcept { return text > 0 ? ends[text - 1] : 0; }
  TextView operator[](std::size_t text) const noexcept {
    return {units + start(text), ends[text] - start(text)};
  }
};

}  // namespace kob
