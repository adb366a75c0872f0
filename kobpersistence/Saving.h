// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Storage.h>
#include <kobtraduction/persistence/PersistStream.h>

namespace kob::persistence {

/// Writes the object and everything that its record leads to; throws a PersistFailure.
void save(WritableFile& file, IKOBVBPersistStream& object);

}  // namespace kob::persistence
