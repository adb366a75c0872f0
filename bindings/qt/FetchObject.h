// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <QObject>
#include <QPointer>

namespace kob::qt {

// Objects of the toolkit lie apart in memory, and all but a few words of each behind a pointer, in memory of
// their own. Here the processor is told what is read soon, so that nobody waits for it then. Functions that
// take an address read nothing there: what it was the address of may be gone.

/// Where a widget's or an action's own data are.
const char* dataOf(const QObject& object) noexcept;

/// Fetches an object's own data.
void fetchData(const char* data) noexcept;

/// Fetches the object that a guarded pointer leads to, and the guard that tells whether it lives.
void fetchGuarded(const QPointer<QObject>& pointer) noexcept;

/// Fetches the siblings that a walk comes to some places behind `at`, and what stands in them.
void fetchSiblings(const QObjectList& siblings, qsizetype at) noexcept;

}  // namespace kob::qt
