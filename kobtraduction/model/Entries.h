// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Failure.h>
#include <kobtraduction/model/KOBCellTraduction.h>

namespace kob {

/// What a reference refers to, or ObjectNotSet. Internal.
template <class Reference>
auto& required(const Reference& reference) {
  if (reference == nullptr) {
    throw Failure(FailureKind::ObjectNotSet);
  }
  return *reference;
}

/// An entry's list of texts, or ObjectNotSet; lives until another list is assigned. Internal.
inline TextList& textsOf(const KOBTraductionObj& entry) {
  return entry.texts();
}

/// Calls test(entry) for the entries that a cell holds by its kind, in order, until one is true; whether one
/// was. An entry or a list of entries that is none fails with ObjectNotSet when it is reached. Internal.
template <class Test>
bool anyEntry(const KOBCellTraduction& cell, Test&& test) {
  if (cell.TypeFeuille() == 1) {
    return test(required(cell.message()));
  }
  if (cell.TypeFeuille() == 2) {
    for (const auto& entry : required(cell.entries())) {
      if (test(required(entry))) {
        return true;
      }
    }
  }
  return false;
}

/// Calls visit(entry) for all of them. Internal.
template <class Visit>
void eachEntry(const KOBCellTraduction& cell, Visit&& visit) {
  anyEntry(cell, [&visit](KOBTraductionObj& entry) {
    visit(entry);
    return false;
  });
}

}  // namespace kob
