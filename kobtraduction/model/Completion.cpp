// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/CellWalk.h>
#include <kobtraduction/model/Entries.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraduction/model/SameTexts.h>

#include <algorithm>
#include <span>
#include <vector>

namespace kob {

namespace {

/// Completes entries with one reference text, whose lists are long enough for every language.
class GroupCompletion {
 public:
  GroupCompletion() : texts_(static_cast<std::size_t>(std::max(Global_Util::NbLangues(), 1))) {}

  void complete(std::span<KOBTraductionObj* const> group) {
    gather(group);
    const TextList* filled = fill(*group.front(), nullptr);
    // The others' own texts are about to move.
    gather(group.first(1));
    for (KOBTraductionObj* const entry : group.subspan(1)) {
      filled = fill(*entry, filled);
    }
  }

 private:
  /// Fills an entry's gaps; `filled` is the list of the group whose run was made last, null for none. Returns
  /// which one that is now.
  const TextList* fill(KOBTraductionObj& entry, const TextList* filled) {
    TextList& texts = textsOf(entry);
    return texts.FillGaps(texts_, filled) ? &texts : filled;
  }

  /// Of each language but the first the text that the first entry has or would be given.
  void gather(std::span<KOBTraductionObj* const> group) {
    std::fill(texts_.begin(), texts_.end(), TextView());
    std::size_t missing = texts_.size();
    for (std::size_t entry = 0; entry < group.size() && missing > 0; ++entry) {
      missing = textsOf(*group[entry]).OfferTexts(texts_);
    }
  }

  /// By language, from 1; that of language 1 stays "".
  std::vector<TextView> texts_;
};

}  // namespace

// By the rules each entry takes, for its gaps, what all entries hold that have the same reference text, in
// the order of the walk. Of these the first one met gets, in its turn, all that any of them has; so every
// later one only needs to ask the first. Failures come out at the same entry and after the same fillings: an
// entry too short for a language fails in its own turn at the latest, one that is asked in vain fails the
// turn of the first already, and one that has no reference text at all, or a damaged place of the tree, fails
// the turn of the very first entry of the walk. Where every list is long enough nothing fails, and a group's
// turns need not wait for those of others.
void KOBModeleTraduction::CompleteIdentiques() {
  const std::int32_t last = Global_Util::NbLangues();
  SameTexts entries(last);
  try {
    const auto add = [&](KOBTraductionObj& entry) { entries.add(entry); };
    CellWalk::each(
        *racine_, [&](const KOBCellTraduction& cell) { eachEntry(cell, add); }, CellWalk::Ahead::Cells);
    entries.readRest();
  } catch (const Failure&) {
    for (std::size_t i = 0; i < entries.count(); ++i) {
      entries.entry(i).CompleteTraduction(entries.entry(0));
    }
    throw;
  }
  if (!entries.anyGaps()) {
    return;
  }
  if (!entries.anyShort()) {
    GroupCompletion completion;
    entries.eachWithGaps([&](std::span<KOBTraductionObj* const> group) { completion.complete(group); });
    return;
  }
  entries.group();
  for (std::size_t i = 0; i < entries.count(); ++i) {
    TextList& target = textsOf(entries.entry(i));
    if (!target.HasGaps(2, last)) {
      continue;
    }
    const std::size_t first = entries.firstOf(i);
    if (first != i) {
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
