// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>

namespace kob {

/// What a control's tag says: its context, and whether its caption or its tool tip stays as the host has it.
/// Only one marker counts, "[T]" being tested first; letter case matters. Internal.
struct TagMarkers {
  TextView context;
  bool keepCaption = false;
  bool keepToolTip = false;
};

/// The context is a view of `tag`.
inline TagMarkers readMarkers(TextView tag) {
  if (tag.ends_with(u"[T]")) {
    return {tag.substr(0, tag.size() - 3), true, false};
  }
  if (tag.ends_with(u"[C]")) {
    return {tag.substr(0, tag.size() - 3), false, true};
  }
  return {tag, false, false};
}

/// Whether a context excludes its control from translation.
inline bool isExcluded(TextView context) {
  return equalUpper(context, u"PAS TRADUIT");
}

}  // namespace kob
