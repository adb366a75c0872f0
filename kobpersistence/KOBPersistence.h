// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobpersistence/Export.h>
#include <kobtraduction/persistence/FileManager.h>

#include <memory>

/// The persistence service of KOBTraduction: keeps models in files (docs/file-format.md).
///
/// A file that is damaged, cut short or too new is refused before anything of the object, or of the thread's
/// language count, changes. A save writes beside the file and renames: whatever happens in between, the old
/// file or the new one is there, whole. An object met twice is written once; a cycle, and a nesting deeper
/// than 10 003 objects, is a failure. The same objects always give the same bytes.
namespace kob {

/// The service's file manager. May be called on any thread; the manager stays on the thread that uses it.
KOB_PERSISTENCE_EXPORT std::unique_ptr<FileManager> makeFileManager();

/// Plugs the service into the component for all threads (see setPersistenceService), unless another one is
/// plugged in already.
KOB_PERSISTENCE_EXPORT void usePersistence() noexcept;

}  // namespace kob
