// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/editor/KnownTexts.h>
#include <kobtraduction/model/CellWalk.h>
#include <kobtraduction/model/Entries.h>
#include <kobtraduction/model/EntryChanges.h>

#include <limits>

namespace kob {

namespace {

/// As long as the lists of GetTraductionsConnues.
constexpr std::int32_t listed = 6;

constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();
constexpr std::size_t fewestChains = 64;

/// Whether no entry can add to the list, or fail to, any more.
bool isFull(const TextList& list, std::int32_t languages) {
  if (languages > list.Count()) {
    return false;
  }
  for (std::int32_t language = 2; language <= languages; ++language) {
    if (list.Item(language).empty()) {
      return false;
    }
  }
  return true;
}

}  // namespace

bool KnownTexts::isCurrent() const noexcept {
  return !heads_.empty() && state_ == entryChanges();
}

void KnownTexts::prepare() {
  if (isCurrent()) {
    return;
  }
  entries_.clear();
  hashes_.clear();
  heads_.clear();
  try {
    gather();
  } catch (const Failure&) {
    // Where the walk fails it fails for every text, and the model has to say how.
    return;
  }
  link();
  state_ = entryChanges();
}

void KnownTexts::gather() {
  CellWalk::each(*model_.Racine(), [this](const KOBCellTraduction& cell) {
    eachEntry(cell, [this](KOBTraductionObj& entry) {
      hashes_.push_back(hashUpper(textsOf(entry).Item(1)));
      entries_.push_back(&entry);
    });
  });
}

void KnownTexts::link() {
  std::size_t chains = fewestChains;
  while (chains < entries_.size()) {
    chains *= 2;
  }
  heads_.assign(chains, none);
  next_.resize(entries_.size());
  for (auto number = static_cast<Number>(entries_.size()); number-- > 0;) {
    Number& first = head(hashes_[number]);
    next_[number] = first;
    first = number;
  }
}

std::shared_ptr<TextList> KnownTexts::of(TextView reference) {
  prepare();
  if (!isCurrent()) {
    return model_.GetTraductionsConnues(reference);
  }
  auto list = std::make_shared<TextList>();
  list->Add(reference);
  list->AddEmpty(listed - 1);
  const std::int32_t languages = model_.NbLangues();
  const std::uint32_t hash = hashUpper(reference);
  for (Number number = head(hash); number != none; number = next_[number]) {
    if (hashes_[number] == hash) {
      entries_[number]->CompleteColTraduction(reference, *list);
      if (isFull(*list, languages)) {
        break;
      }
    }
  }
  return list;
}

void KnownTexts::changeReference(KOBTraductionObj& entry, TextView text) {
  if (!isCurrent()) {
    entry.ChangeTraduction(text, 1);
    return;
  }
  const TextList& texts = entry.texts();
  const std::uint32_t from = hashUpper(texts.Item(1));
  entry.ChangeTraduction(text, 1);
  move(texts, from, hashUpper(texts.Item(1)));
  state_ = entryChanges();
}

void KnownTexts::move(const TextList& texts, std::uint32_t from, std::uint32_t to) {
  std::vector<Number> moved;
  for (Number* link = &head(from); *link != none;) {
    const Number number = *link;
    // By their texts: a host can give the same list to several entries.
    if (hashes_[number] == from && &entries_[number]->texts() == &texts) {
      moved.push_back(number);
      *link = next_[number];
    } else {
      link = &next_[number];
    }
  }
  for (const Number number : moved) {
    hashes_[number] = to;
    insert(number);
  }
}

void KnownTexts::insert(Number number) {
  Number* link = &head(hashes_[number]);
  while (*link < number) {
    link = &next_[*link];
  }
  next_[number] = *link;
  *link = number;
}

}  // namespace kob
