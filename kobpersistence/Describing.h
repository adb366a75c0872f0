// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>
#include <kobtraduction/persistence/FileManager.h>

#include <cstdint>
#include <initializer_list>

/// The sentences that a person reads when a file cannot be saved or loaded.
namespace kob::persistence {

/// The pieces one behind the other.
Text joined(std::initializer_list<TextView> pieces);

/// A failure with the joined pieces as its description.
PersistFailure failure(std::initializer_list<TextView> pieces);

/// The objects are nested deeper than a file may be.
PersistFailure tooDeep();

/// The file is not what was written: bytes changed or are missing.
PersistFailure damaged(std::initializer_list<TextView> what);

/// The file is as it was written, and was not written as it has to be.
PersistFailure badFile(std::uint64_t offset, TextView what);
PersistFailure badRecord(std::uint32_t record, std::uint64_t offset, TextView what);

}  // namespace kob::persistence
