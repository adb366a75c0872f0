// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Comparison.h"
#include "TsCatalog.h"
#include "UiKeys.h"

#include <kobtraduction/model/KOBModeleTraduction.h>

class QWidget;

namespace kob::fidelity {

/// What a difference is explained from: the form as the component left it, and everything that led to its
/// texts.
struct Circumstances {
  QWidget& form;
  const QString& module;
  const KOBModeleTraduction& model;
  const UiKeys& keys;
  const TsCatalog& catalog;
  std::int32_t langue;
};

/// Why a text is not as the toolkit would have it, in one sentence, found out from the model and the two
/// files. It never decides whether a text counts.
QString reasonOf(const Difference& difference, const Circumstances& circumstances);

}  // namespace kob::fidelity
