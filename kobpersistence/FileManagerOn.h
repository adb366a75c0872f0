// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Export.h>
#include <kobpersistence/Storage.h>
#include <kobtraduction/persistence/FileManager.h>

#include <memory>

namespace kob::persistence {

/// The service's file manager on other files than those of the machine; the storage must outlive it.
KOB_PERSISTENCE_EXPORT std::unique_ptr<FileManager> makeFileManagerOn(Storage& storage);

}  // namespace kob::persistence
