// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kob {

/// Answers a model's GetTraductionsConnues from an index of its entries by their reference texts, case
/// ignored. The index is made anew when it is asked after the tree's entries or their reference texts have
/// changed, whoever changed them, unless the change was made through it. Used on the model's thread, while
/// the model lives. Internal.
class KOB_EXPORT KnownTexts {
 public:
  explicit KnownTexts(const KOBModeleTraduction& model) noexcept : model_(model) {}

  /// Makes the index now, if it has to be. A damaged tree has none.
  void prepare();
  /// What the model's GetTraductionsConnues gives, failures included.
  std::shared_ptr<TextList> of(TextView reference);
  /// entry.ChangeTraduction(text, 1), and the index goes along. The entry has a reference text, and the
  /// thread a language.
  void changeReference(KOBTraductionObj& entry, TextView text);

 private:
  using Number = std::uint32_t;

  bool isCurrent() const noexcept;
  void gather();
  void link();
  /// Where the chain of a hash begins.
  Number& head(std::uint32_t hash) { return heads_[hash & (heads_.size() - 1)]; }
  /// The entries with these texts move from the chain of one hash to that of another.
  void move(const TextList& texts, std::uint32_t from, std::uint32_t to);
  void insert(Number number);

  const KOBModeleTraduction& model_;
  /// The entries in the order of the walk, an entry each time that the walk meets it, and the hashes of their
  /// reference texts.
  std::vector<KOBTraductionObj*> entries_;
  std::vector<std::uint32_t> hashes_;
  /// Chains of numbers, ascending: the first of each, and by each number the next one. As many chains as a
  /// power of two; none without an index.
  std::vector<Number> heads_;
  std::vector<Number> next_;
  /// The thread's entryChanges() that the index is good for.
  std::uint64_t state_ = 0;
};

}  // namespace kob
