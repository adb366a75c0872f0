// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

class QObject;

namespace kob::fidelity {

/// Whether the object only shows what another object of the form holds, so that its texts are that object's:
/// buttons that a tool bar makes for actions, the actions that menus, docks and tool bars make of themselves,
/// the tab bar inside a tab widget, and the parts of combo and spin boxes.
bool isMirror(const QObject& object);

}  // namespace kob::fidelity
