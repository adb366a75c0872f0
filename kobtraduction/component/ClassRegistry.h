// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/ObjectPool.h>
#include <kobtraduction/base/Text.h>
#include <kobtraduction/persistence/PersistStream.h>

namespace kob {

/// Makes a new object of one class, in the pool's room where a file holds many of them.
using MakeObject = PersistRef (*)(ObjectPool& pool);

/// The maker of a class by its identifier ("KOBTraduction.KOBCellTraduction"; letter case counts), or null
/// for an identifier that the component does not know.
KOB_EXPORT MakeObject findClass(TextView progId) noexcept;

}  // namespace kob
