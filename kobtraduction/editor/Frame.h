// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/editor/Widget.h>

namespace kob {

/// Groups widgets, so that they can be shown, hidden and disabled together. Its caption may be empty.
class KOB_EXPORT Frame : public Widget {
 public:
  using Widget::Widget;
  ~Frame() override;
};

}  // namespace kob
