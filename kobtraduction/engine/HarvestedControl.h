// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>
#include <kobtraduction/engine/HostObject.h>

#include <cstdint>
#include <vector>

namespace kob {

class KOBCellTraduction;

/// The progress marker of one harvest: a number that grows a digit with the nesting of the block it stands
/// for. A failure is reported as "ERREUR " and the number. Internal.
using StepMarker = std::int32_t;

/// Which texts of the items to come stay unrecorded. Set by the markers of a tag, and never cleared within a
/// call: once a marked control was met, the tabs of every later one are harvested accordingly. Internal.
struct KeptTexts {
  bool caption = false;
  bool toolTip = false;
};

/// What harvesting reads of one control. Internal.
struct HarvestedControl {
  Text caption;
  Text toolTip;
  /// With its index when it is an element of a control array.
  Text name;
  Text context;
  std::int32_t left = -1;
  std::int32_t width = -1;

  bool isToBeSkipped() const noexcept { return name.empty() || (caption.empty() && toolTip.empty()); }
};

/// 1 when the control's "left" or "width" is greater than 0, else -1, also when it cannot be read.
std::int32_t positionIndicator(std::optional<double> value) noexcept;

/// Reads a control, in skip mode; a marker of its tag sets `kept`.
HarvestedControl readControl(const HostRef& control, KeptTexts& kept);

/// Whether a control is harvested with its form or alone: alone, the steps of the form's pass are not told.
enum class HarvestScope : std::uint8_t { Form, Control };

/// Records a control below the cell that stands for the root of `chain` (its containers' names, outermost
/// first), creating the container cells that are missing. Fails like a procedure in handler mode, with `step`
/// telling where.
void recordControl(const HostRef& control, HarvestedControl harvested, const std::vector<Text>& chain,
                   std::shared_ptr<KOBCellTraduction> top, const KeptTexts& kept, HarvestScope scope,
                   StepMarker& step);

}  // namespace kob
