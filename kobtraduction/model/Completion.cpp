// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/CellWalk.h>
#include <kobtraduction/model/Entries.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraduction/model/SameTexts.h>

namespace kob {

namespace {

/// Whether an entry has a gap in a language from 2 up, or not even an item.
bool lacksTexts(const TextList& texts) {
  const std::int32_t last = Global_Util::NbLangues();
  if (texts.Count() < last) {
    return true;
  }
  for (std::int32_t i = 2; i <= last; ++i) {
    if (texts.Item(i).empty()) {
      return true;
    }
  }
  return false;
}

/// Fills the target's gaps from an entry with the same reference text; whether gaps remain.
bool fillGaps(KOBTraductionObj& target, const KOBTraductionObj& source) {
  bool remain = false;
  const TextList& own = textsOf(target);
  const TextList& others = textsOf(source);
  for (std::int32_t i = 2, last = Global_Util::NbLangues(); i <= last; ++i) {
    if (!own.Item(i).empty()) {
      continue;
    }
    const TextView text = others.Item(i);
    if (text.empty()) {
      remain = true;
    } else {
      target.ChangeTraduction(text, i);
    }
  }
  return remain;
}

}  // namespace

// By the rules each entry takes, for its gaps, what all entries hold that have the same reference text, in
// the order of the walk. Of these the first one met gets, in its turn, all that any of them has; so every
// later one only needs to ask the first. Failures come out at the same entry and after the same fillings: an
// entry too short for a language fails in its own turn at the latest, one that is asked in vain fails the
// turn of the first already, and one that has no reference text at all, or a damaged place of the tree, fails
// the turn of the very first entry of the walk.
void KOBModeleTraduction::CompleteIdentiques() {
  SameTexts entries;
  bool isAnyLacking = false;
  try {
    CellWalk::each(*racine_, [&](const KOBCellTraduction& cell) {
      eachEntry(cell, [&](KOBTraductionObj& entry) {
        const TextList& texts = textsOf(entry);
        const TextView reference = texts.Item(1);
        const bool isLacking = lacksTexts(texts);
        isAnyLacking = isAnyLacking || isLacking;
        entries.add(entry, reference, isLacking);
      });
    });
  } catch (const Failure&) {
    for (std::size_t i = 0; i < entries.count(); ++i) {
      entries.entry(i).CompleteTraduction(entries.entry(0));
    }
    throw;
  }
  if (!isAnyLacking) {
    return;
  }
  entries.group();
  for (std::size_t i = 0; i < entries.count(); ++i) {
    if (!entries.isWanted(i)) {
      continue;
    }
    KOBTraductionObj& target = entries.entry(i);
    const std::size_t first = entries.firstOf(i);
    if (i != first) {
      fillGaps(target, entries.entry(first));
    } else {
      entries.eachOf(first, [&target](const KOBTraductionObj& source) { return fillGaps(target, source); });
    }
  }
}

std::shared_ptr<TextList> KOBModeleTraduction::GetTraductionsConnues(TextView text) const {
  // As many as the editor shows, and not as many as there are languages.
  constexpr std::int32_t shown = 6;
  auto known = std::make_shared<TextList>();
  known->Add(text);
  while (known->Count() < shown) {
    known->Add(TextView());
  }
  CellWalk::each(*racine_, [&](const KOBCellTraduction& cell) {
    eachEntry(cell, [&](const KOBTraductionObj& entry) { entry.CompleteColTraduction(text, *known); });
  });
  return known;
}

}  // namespace kob
