// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

namespace kob {

/// What a control's left or width is multiplied by in one language; 1 leaves it as it is. A factor remembers
/// whether it still is the small integer 1 that a list is made with, or a double that was assigned: the two
/// are stored differently.
class Factor {
 public:
  /// The small integer 1.
  constexpr Factor() noexcept = default;
  constexpr explicit Factor(double value) noexcept : value_(value), isDouble_(true) {}

  constexpr double value() const noexcept { return value_; }
  constexpr bool isDouble() const noexcept { return isDouble_; }

 private:
  double value_ = 1.0;
  bool isDouble_ = false;
};

}  // namespace kob
