// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/editor/Widget.h>

#include <cstdint>
#include <utility>

namespace kob {

/// An integer between two bounds. Its caption stands beside it.
class KOB_EXPORT Slider : public Widget {
 public:
  using Widget::Widget;
  ~Slider() override;

  /// The bounds, both included; 0 and 100 at first. Set before the value is; no event.
  std::int32_t minimum() const noexcept { return minimum_; }
  std::int32_t maximum() const noexcept { return maximum_; }
  void setRange(std::int32_t minimum, std::int32_t maximum);

  /// The lower bound at first. A value outside is brought to the nearer bound; assigning another value than
  /// the present one raises Change.
  std::int32_t value() const noexcept { return value_; }
  void setValue(std::int32_t value);

  /// The one handler of Change.
  void onChange(WidgetHandler handler) { onChange_ = std::move(handler); }

  /// A person has moved the slider to a value within the bounds: reported for every value on the way.
  void personMoved(std::int32_t value) noexcept;

 protected:
  virtual void showRange(std::int32_t minimum, std::int32_t maximum) = 0;
  virtual void showValue(std::int32_t value) = 0;

 private:
  WidgetHandler onChange_;
  std::int32_t minimum_ = 0;
  std::int32_t maximum_ = 100;
  std::int32_t value_ = 0;
};

}  // namespace kob
