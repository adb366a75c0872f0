// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/editor/Slider.h>

#include <algorithm>

namespace kob {

Slider::~Slider() = default;

void Slider::setRange(std::int32_t minimum, std::int32_t maximum) {
  minimum_ = minimum;
  maximum_ = maximum;
  value_ = std::clamp(value_, minimum_, maximum_);
  showRange(minimum_, maximum_);
  showValue(value_);
}

void Slider::setValue(std::int32_t value) {
  const std::int32_t within = std::clamp(value, minimum_, maximum_);
  if (value_ != within) {
    value_ = within;
    showValue(value_);
    raise(onChange_);
  }
}

void Slider::personMoved(std::int32_t value) noexcept {
  if (value_ != value) {
    value_ = value;
    raiseForPerson(onChange_);
  }
}

}  // namespace kob
