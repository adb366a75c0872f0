// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "ModelVocabulary.h"

#include <functional>
#include <ostream>
#include <vector>

namespace kob::test {

/// One thing that somebody does to a pair of models. The numbers choose among what there is, so that any step
/// fits any state and a shorter sequence of steps stays meaningful.
struct Growth {
  int what;
  int on;
  int other;
  int name;
  int texts;
};

std::ostream& operator<<(std::ostream& out, const Growth& step);

/// Two models as hosts may leave them: lists too short, empty or none, cells, entries and lists that stand in
/// several places, links to the wrong parent, names with separators. The same steps make the same models.
class DamagedModels {
 public:
  /// How many different things a step can do; those from `harmless` on damage.
  static constexpr int kinds = 20;
  static constexpr int harmless = 13;

  explicit DamagedModels(const std::vector<Growth>& steps);
  ~DamagedModels();
  DamagedModels(const DamagedModels&) = delete;
  DamagedModels& operator=(const DamagedModels&) = delete;

  void apply(const Growth& step);
  /// Among all that were ever made.
  CellRef cell(int number) const { return cells_[static_cast<std::size_t>(number) % cells_.size()]; }
  EntryRef entryAt(int number) const { return entries_[static_cast<std::size_t>(number) % entries_.size()]; }

  /// Names and texts of every entry that was ever made.
  Texts everything() const;
  /// Cells by the order in which they were made.
  Texts numbers(const CellResults& cells) const;

  KOBModeleTraduction own;
  KOBModeleTraduction other;

  static Text name(int number);
  static Text text(int number);

 private:
  void damage(const Growth& step);
  void share(const Growth& step);
  /// Adds a cell below a cell of the first model, and its like in the second one.
  void addPair(const Growth& step, int kind);
  CellRef makeCell(const CellRef& parent, const Growth& step, int kind);
  EntryRef makeEntry(int seed);
  std::shared_ptr<TextList> makeTexts(int seed, int count);

  /// Cells that were made together lie side by side.
  std::vector<CellRef> cells_;
  std::vector<EntryRef> entries_;
};

/// The walk by which every whole-tree operation is told, as a plain recursion: a cell, then its children, and
/// no cell inside of itself. What is none fails with ObjectNotSet when it is met.
void walkPlainly(const CellRef& top, const std::function<void(const CellRef&)>& visit);
/// The same with the entries of each cell.
void walkEntriesPlainly(const CellRef& top, const std::function<void(KOBTraductionObj&)>& visit);
/// Whether test is true for an entry of the cell; those behind it are not looked at.
bool anyEntryPlainly(const CellRef& cell, const std::function<bool(KOBTraductionObj&)>& test);

}  // namespace kob::test
