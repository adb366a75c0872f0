// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/model/EntryChanges.h>

namespace kob {

namespace {

// Loading a model tells of several changes for each cell: it has to cost next to nothing.
#if defined(__ELF__)
[[gnu::tls_model("initial-exec")]]
#endif
thread_local std::uint64_t changes = 0;

}  // namespace

void entriesChanged() noexcept {
  ++changes;
}

std::uint64_t entryChanges() noexcept {
  return changes;
}

}  // namespace kob
