// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/component/MessageBoxes.h>

#include <cstdint>

/// The per-thread globals of the component: each thread has values of its own, and nothing is locked.
namespace kob::Global_Util {

/// The language count of the thread, shared by every model, cell and entry made on it; 0 until something sets
/// it.
KOB_EXPORT std::int32_t NbLangues() noexcept;
KOB_EXPORT void setNbLangues(std::int32_t count) noexcept;

/// Whether every record of the present or last save or load succeeded. Save and Load set it; a record that
/// fails clears it.
KOB_EXPORT bool PersistOk() noexcept;
KOB_EXPORT void setPersistOk(bool ok) noexcept;

/// Where the component shows its messages. Never null: without a binding, notices go to standard error and a
/// question is answered No, which leaves everything as it was.
KOB_EXPORT MessageBoxes& messageBoxes() noexcept;
/// Sets the thread's message boxes and returns the previous ones (null for the default). The caller keeps
/// ownership and must set others before the boxes die; null restores the default.
KOB_EXPORT MessageBoxes* setMessageBoxes(MessageBoxes* boxes) noexcept;

}  // namespace kob::Global_Util
