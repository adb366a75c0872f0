// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/Text.h>

#include <cstdint>

namespace kob {

class KOBModeleTraduction;

/// model.Show(mode, path) for a model that differs from its file already, because the application has
/// harvested or recovered something: the editor's title says so from the start, until the model is saved.
KOB_EXPORT void showUnsaved(KOBModeleTraduction& model, std::int32_t mode = 1, TextView path = {});

}  // namespace kob
