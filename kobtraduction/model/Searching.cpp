// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/UpperSearch.h>
#include <kobtraduction/model/CellWalk.h>
#include <kobtraduction/model/Entries.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

namespace kob {

namespace {

/// Appends every cell that holds an entry for which test(texts) is true, a cell before its children.
template <class Test>
void collect(KOBCellTraduction& top, CellResults& results, Test test) {
  CellWalk::each(top, [&](KOBCellTraduction& cell) {
    if (anyEntry(cell, [&](const KOBTraductionObj& entry) { return test(entry.texts()); })) {
      results.Add(cell.shared_from_this());
    }
  });
}

}  // namespace

void KOBCellTraduction::SearchString(TextView text, CellResults& results) {
  const UpperSearch search(text);
  collect(*this, results, [&search](const TextList& texts) {
    const TextView reference = texts.Item(1);
    // Nothing is found in an empty text, not even an empty one.
    return !reference.empty() && search.isIn(reference);
  });
}

void KOBCellTraduction::SearchNonTraduit(std::int32_t langue, CellResults& results) {
  collect(*this, results, [langue](const TextList& texts) { return texts.Item(langue).empty(); });
}

void KOBModeleTraduction::SearchString(TextView text, CellResults* results) const {
  if (results != nullptr) {
    racine_->SearchString(text, *results);
  }
}

void KOBModeleTraduction::SearchNonTraduit(std::int32_t langue, CellResults* results) const {
  if (results != nullptr) {
    racine_->SearchNonTraduit(langue, *results);
  }
}

}  // namespace kob
