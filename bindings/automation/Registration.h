// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

/// What makes the classes and the type library known to the system.
namespace kob::automation {

/// For whom.
enum class Scope { Machine, User };

/// Writes everything or, when a step fails, leaves the registry as it was and throws a SystemFailure.
void registerServer(Scope scope);

/// Removes everything that registerServer writes; what is not there is fine. A type library that the DLL for
/// the other processor registered stays.
void unregisterServer(Scope scope);

}  // namespace kob::automation
