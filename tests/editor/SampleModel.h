// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

namespace kob::testing {

/// Fills a model with what an application of some size has: controls with and without a context, messages,
/// texts of several lines, and texts that are read from right to left. "App\FrmClient\btnEnregistrer" has a
/// position, "App\Messages\Confirmation" several lines, "App\FrmClient\lblArabe" right-to-left texts.
void fillSample(KOBModeleTraduction& model);

}  // namespace kob::testing
