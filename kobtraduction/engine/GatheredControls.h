// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Fetch.h>
#include <kobtraduction/engine/HostObject.h>

#include <cstddef>
#include <vector>

namespace kob {

/// Whether the records of tool bar buttons write through to their buttons.
enum class RecordBinding { Unbound, Bound };

/// What a form offers for translation, in the host's order: each control, the members of its own "Controls"
/// (one level), and for a tool bar a record of each button, followed by a record of each entry of the
/// button's menu. A form whose "Controls" cannot be read has none; a tool bar that does not answer what it
/// should fails. Internal.
std::vector<HostRef> gatherControls(const HostRef& form, RecordBinding binding);

/// Lets a host fetch the control that stands some places behind `control`, one of `controls`; what leads
/// there is fetched before that. Internal.
inline void fetchBehind(const std::vector<HostRef>& controls, const HostRef& control) noexcept {
  constexpr std::ptrdiff_t places = 8;
  constexpr std::size_t usualObject = 96;
  const std::ptrdiff_t left = controls.data() + controls.size() - &control;
  if (left > 4 * places) {
    fetch(&control + 4 * places);
  }
  if (left > 2 * places) {
    fetchBytes((&control)[2 * places].get(), usualObject);
  }
  if (left > places && (&control)[places] != nullptr) {
    (&control)[places]->fetch();
  }
}

}  // namespace kob
