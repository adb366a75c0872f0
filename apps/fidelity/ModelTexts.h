// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "TsCatalog.h"
#include "UiKeys.h"

#include <kobtraduction/model/KOBCellTraduction.h>

#include <QString>

#include <cstdint>

namespace kob::fidelity {

/// Fills one language of everything below a form's cell from the application's translations. Only what the
/// designer marked translatable is filled, and the toolkit's own buttons are looked up in the toolkit's
/// context.
void fillLanguage(const KOBCellTraduction& formCell, const UiKeys& keys, const TsCatalog& catalog,
                  std::int32_t langue);

/// The whole state of a cell and of all below it, a line for each cell: equal texts mean equal trees.
QString printCells(const KOBCellTraduction& cell);

}  // namespace kob::fidelity
