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

/// Completes entries with one reference text, whose lists are long enough for every language.
class GroupCompletion {
 public:
  GroupCompletion() : texts_(static_cast<std::size_t>(std::max(Global_Util::NbLangues(), 1))) {}

  void complete(std::span<KOBTraductionObj* const> group) {
    gather(group);
    TextList& first = textsOf(*group.front());
    first.FillGaps(texts_);
    // The others' own texts are about to move.
    for (std::size_t i = 1; i < texts_.size(); ++i) {
      texts_[i] = first.Item(static_cast<std::int32_t>(i) + 1);
    }
    for (KOBTraductionObj* const entry : group.subspan(1)) {
      textsOf(*entry).FillGaps(texts_);
    }
  }

 private:
  /// Of each language but the first the text that the first entry has or would be given.
  void gather(std::span<KOBTraductionObj* const> group) {
    std::fill(texts_.begin(), texts_.end(), TextView());
    std::size_t missing = texts_.size() - 1;
    for (std::size_t entry = 0; entry < group.size() && missing > 0; ++entry) {
      const TextList& source = textsOf(*group[entry]);
      for (std::size_t i = 1; i < texts_.size(); ++i) {
        if (texts_[i].empty()) {
          texts_[i] = source.Item(static_cast<std::int32_t>(i) + 1);
          missing -= texts_[i].empty() ? 0 : 1;
        }
      }
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
  SameTexts entries;
  std::vector<std::uint32_t> lacking;
  bool isShort = false;
  const std::int32_t last = Global_Util::NbLangues();
  try {
    CellWalk::each(*racine_, [&](const KOBCellTraduction& cell) {
      eachEntry(cell, [&](KOBTraductionObj& entry) {
        const TextList& texts = textsOf(entry);
        const bool hasGaps = lacksTexts(texts);
        entries.add(entry, texts.Item(1), hasGaps);
        isShort = isShort || texts.Count() < last;
        if (hasGaps) {
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
  if (!isShort) {
    GroupCompletion completion;
    entries.eachWithGaps([&](std::span<KOBTraductionObj* const> group) { completion.complete(group); });
    return;
  }
  entries.group();
  for (std::size_t i = 0; i < lacking.size(); ++i) {
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
