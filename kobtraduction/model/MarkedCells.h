// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace kob {

class KOBCellTraduction;

/// The cells of a short list, each with a byte that is the same for names that are equal, case ignored, and
/// tells most others apart: a look-up reads one name and not all. Right until the list is changed or one of
/// the cells is renamed. Internal.
struct MarkedCells {
  static constexpr std::size_t most = 15;

  /// Null: not marked yet.
  const std::shared_ptr<KOBCellTraduction>* cells = nullptr;
  std::uint8_t count = 0;
  std::array<std::uint8_t, most> marks = {};

  static std::uint8_t markOf(TextView name) noexcept;
  /// The first cell whose upper-cased name equals the upper-cased `name`, or null.
  KOBCellTraduction* find(TextView name) const noexcept;
};

}  // namespace kob
