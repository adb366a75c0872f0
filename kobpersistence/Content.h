// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Bytes.h>
#include <kobpersistence/LargePages.h>

#include <cstddef>

namespace kob::persistence {

/// A file's content, followed by `slack` bytes that count for nothing.
struct Content {
  LargeArray<Byte> bytes;
  std::size_t size = 0;
};

}  // namespace kob::persistence
