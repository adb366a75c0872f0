// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "WidgetForm.h"

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <vector>

namespace bench {

/// The host objects of a form's controls, in the order of its parts.
std::vector<kob::HostRef> hostControls(const WidgetForm& form);

/// Records a form in a model and fills in languages 2 and 3.
void recordTranslated(kob::KOBModeleTraduction& model, const WidgetForm& form);

/// Whether every caption and tool tip of a form is the one of `language`; what was timed must also be right.
bool showsLanguage(const WidgetForm& form, int language);

}  // namespace bench
