// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/persistence/PersistStream.h>

namespace kob {

PersistStream::~PersistStream() = default;

std::shared_ptr<const void> PersistStream::image() const {
  return nullptr;
}

IKOBVBPersistStream::~IKOBVBPersistStream() = default;

}  // namespace kob
