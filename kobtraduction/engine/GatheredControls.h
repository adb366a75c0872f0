// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/engine/HostObject.h>

#include <vector>

namespace kob {

/// Whether the records of tool bar buttons write through to their buttons.
enum class RecordBinding { Unbound, Bound };

/// What a form offers for translation, in the host's order: each control, the members of its own "Controls"
/// (one level), and for a tool bar a record of each button, followed by a record of each entry of the
/// button's menu. A form whose "Controls" cannot be read has none; a tool bar that does not answer what it
/// should fails. Internal.
std::vector<HostRef> gatherControls(const HostRef& form, RecordBinding binding);

}  // namespace kob
