// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/Text.h>

namespace kob {

/// Looks for one text in many, case ignored: the text sought is upper-cased once. Internal.
class KOB_EXPORT UpperSearch {
 public:
  explicit UpperSearch(TextView sought);

  /// Whether the upper-cased `text` contains the upper-cased text sought; an empty one is in every text.
  bool isIn(TextView text) const noexcept;

 private:
  Text sought_;
};

}  // namespace kob
