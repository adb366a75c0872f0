// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/editor/Widget.h>

namespace kob {

/// A text that cannot be edited, and says nothing.
class KOB_EXPORT Label : public Widget {
 public:
  using Widget::Widget;
  ~Label() override;
};

}  // namespace kob
