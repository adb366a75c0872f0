// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

namespace kob::qt {

/// A dynamic property that tells the component's own message boxes from the application's windows: they are
/// no forms of the application, and a box about a failing translation must not be translated itself.
inline constexpr const char* ownMessageBoxProperty = "_kob_messageBox";

}  // namespace kob::qt
