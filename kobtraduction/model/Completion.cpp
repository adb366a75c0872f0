// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Fetch.h>
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/CellWalk.h>
#include <kobtraduction/model/Entries.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraduction/model/SameTexts.h>

#include <vector>

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

/// Fetches what the turns after the next ones will read.
void fetchLater(const SameTexts& entries, const std::vector<std::uint32_t>& lacking, std::size_t turn) {
  constexpr std::size_t entriesAhead = 16;
  constexpr std::size_t textsAhead = 8;
  if (turn + entriesAhead < lacking.size()) {
    const std::uint32_t number = lacking[turn + entriesAhead];
    fetch(&entries.entry(number));
    fetch(&entries.likelyOther(number));
  }
  if (turn + textsAhead < lacking.size()) {
    const std::uint32_t number = lacking[turn + textsAhead];
    fetch(entries.entry(number).textUnits());
    fetch(entries.likelyOther(number).textUnits());
  }
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
  std::vector<std::uint32_t> lacking;
  try {
    CellWalk::each(*racine_, [&](const KOBCellTraduction& cell) {
      eachEntry(cell, [&](KOBTraductionObj& entry) {
        const TextList& texts = textsOf(entry);
        entries.add(entry, texts.Item(1));
        if (lacksTexts(texts)) {
          lacking.push_back(static_cast<std::uint32_t>(entries.count() - 1));
        }
      });
    });
  } catch (const Failure&) {
    for (std::size_t i = 0; i < entries.count(); ++i) {
      entries.entry(i).CompleteTraduction(entries.entry(0));
    }
    throw;
  }
  if (lacking.empty()) {
    return;
  }
  entries.group();
  const std::int32_t last = Global_Util::NbLangues();
  for (std::size_t i = 0; i < lacking.size(); ++i) {
    fetchLater(entries, lacking, i);
    TextList& target = textsOf(entries.entry(lacking[i]));
    const std::size_t first = entries.firstOf(lacking[i]);
    if (first != lacking[i]) {
      target.FillGaps(textsOf(entries.entry(first)), 2, last);
    } else {
      entries.eachOf(
          first, [&](const KOBTraductionObj& source) { return target.FillGaps(textsOf(source), 2, last); });
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
