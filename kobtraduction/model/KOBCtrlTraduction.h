// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/Text.h>
#include <kobtraduction/engine/HostObject.h>

#include <cstdint>
#include <optional>

namespace kob {

/// Stands for one toolbar button or one entry of a button's menu in the list of controls that harvesting and
/// applying walk. It is a host object itself, so paths and texts are read from it as from a control. While it
/// is bound to its host object (m_Ctrl), assigning Caption, ToolTipText, left or width writes the value
/// through; a host that refuses is ignored, and the record keeps the new value all the same. It reads nothing
/// from the host.
class KOB_EXPORT KOBCtrlTraduction final : public HostObject {
 public:
  KOBCtrlTraduction();

  // The fields; assigning one of them directly writes nothing through. Paths and harvesting read Name, Index,
  // Container and tag by these names. Nothing assigns Index or tag after creation: a record is never an
  // element of a control array and carries neither context nor marker.
  Text m_Caption;
  Text m_ToolTipText;
  Text Name;
  std::int32_t Index = -1;
  HostRef Container;
  std::int32_t m_left = -1;
  std::int32_t m_width = -1;
  Text tag;
  HostRef m_Ctrl;

  const Text& Caption() const noexcept { return m_Caption; }
  void setCaption(TextView caption);
  const Text& ToolTipText() const noexcept { return m_ToolTipText; }
  void setToolTipText(TextView toolTip);
  std::int32_t left() const noexcept { return m_left; }
  void setleft(std::int32_t value);
  std::int32_t width() const noexcept { return m_width; }
  void setwidth(std::int32_t value);

  // As a host object.
  std::optional<Value> get(Property property) override;
  bool set(Property property, const Value& value) override;
};

}  // namespace kob
