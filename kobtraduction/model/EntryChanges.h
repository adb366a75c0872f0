// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>

#include <cstdint>

namespace kob {

/// Tells that in some tree of the calling thread a walk may meet other entries now, or an entry has another
/// reference text or another list: what somebody has gathered from the entries is void from now on. Other
/// texts and names do not count. An entry without an item 1 may get one untold. Internal.
KOB_EXPORT void entriesChanged() noexcept;

/// How often that was told on the calling thread. Internal.
KOB_EXPORT std::uint64_t entryChanges() noexcept;

/// For a list of entries: its changes are told. Internal.
struct WatchedEntries {
  static void changed() noexcept { entriesChanged(); }
};

}  // namespace kob
