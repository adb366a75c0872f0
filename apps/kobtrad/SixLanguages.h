// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <string>

namespace kob::command {

/// Makes a model fit for the editor, which shows six languages and fails with fewer or more: a smaller count
/// is raised to six, and a sentence for the person says so; "" when nothing was done. A larger count is a
/// UsageError. `file` is where the model comes from.
std::string makeSixLanguages(KOBModeleTraduction& model, const std::string& file);

}  // namespace kob::command
