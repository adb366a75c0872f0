// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Content.h>
#include <kobtraduction/persistence/PersistStream.h>

namespace kob::persistence {

/// Reads a file's content into the object; throws a PersistFailure, and neither the object nor the thread's
/// language count has changed then.
void load(Content content, IKOBVBPersistStream& object);

}  // namespace kob::persistence
