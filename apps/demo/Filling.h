// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "TextTable.h"

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <QStringList>

namespace kob::demo {

struct Filled {
  /// Cells that hold texts, texts of the reference language, and texts of the other languages that were put
  /// in.
  int cells = 0;
  int references = 0;
  int texts = 0;
  int factors = 0;
  QStringList errors;
};

/// Whether what the model holds in another language already stays, and only the rest is filled in.
enum class Fill { All, Gaps };

/// Fills every language of every text that the model holds. What is to be filled and the table lacks, and
/// what in it fits nothing, is an error.
Filled fill(KOBModeleTraduction& model, TextTable& table, Fill what = Fill::All);

/// How many cells hold texts, and how many texts there are in language 1.
Filled countTexts(const KOBModeleTraduction& model);

}  // namespace kob::demo
