// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/editor/KnownTexts.h>
#include <kobtraduction/model/CellWalk.h>
#include <kobtraduction/model/Entries.h>

#include <algorithm>
#include <numeric>

namespace kob {

namespace {

/// As long as the lists of GetTraductionsConnues.
constexpr std::int32_t listed = 6;

std::shared_ptr<TextList> emptyList(TextView reference) {
  auto list = std::make_shared<TextList>();
  list->Add(reference);
  while (list->Count() < listed) {
    list->Add(TextView());
  }
  return list;
}

}  // namespace

KnownTexts::KnownTexts(const KOBModeleTraduction& model, const std::vector<Text>& references)
    : byHash_(references.size()) {
  for (const Text& reference : references) {
    known_.push_back({reference, hashUpper(reference), emptyList(reference), nullptr});
    sketched_.set(sketch(reference));
  }
  if (known_.empty()) {
    return;
  }
  std::iota(byHash_.begin(), byHash_.end(), std::size_t{0});
  std::sort(byHash_.begin(), byHash_.end(),
            [this](std::size_t a, std::size_t b) { return known_[a].hash < known_[b].hash; });
  try {
    CellWalk::each(*model.Racine(), [this](const KOBCellTraduction& cell) {
      eachEntry(cell, [this](const KOBTraductionObj& entry) { complete(entry); });
    });
  } catch (const Failure&) {
    // A damaged place of the tree ends the walk of every text that got so far.
    for (Known& known : known_) {
      if (known.failure == nullptr) {
        known.failure = std::current_exception();
      }
    }
  }
}

std::size_t KnownTexts::sketch(TextView reference) noexcept {
  if (reference.empty()) {
    return 0;
  }
  const std::size_t ends = std::size_t{upperUnit(reference.front())} * 31 + upperUnit(reference.back());
  return (reference.size() * 7 + ends) % sketches;
}

void KnownTexts::complete(const KOBTraductionObj& entry) {
  const TextView reference = textsOf(entry).Item(1);
  if (!sketched_[sketch(reference)]) {
    return;
  }
  const std::uint32_t hash = hashUpper(reference);
  const auto hashOf = [this](std::size_t number) { return known_[number].hash; };
  for (auto i = std::ranges::lower_bound(byHash_, hash, {}, hashOf); i != byHash_.end() && hashOf(*i) == hash;
       ++i) {
    Known& known = known_[*i];
    if (known.failure != nullptr) {
      continue;
    }
    try {
      entry.CompleteColTraduction(known.reference, *known.texts);
    } catch (const Failure&) {
      known.failure = std::current_exception();
    }
  }
}

const TextList& KnownTexts::of(std::size_t number) const {
  const Known& known = known_[number];
  if (known.failure != nullptr) {
    std::rethrow_exception(known.failure);
  }
  return *known.texts;
}

}  // namespace kob
