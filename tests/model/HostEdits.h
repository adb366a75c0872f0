// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "ModelVocabulary.h"

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace kob::test {

/// One thing that a host does to cells and lists. The numbers choose among what there is, so that any step
/// fits any state and a shorter sequence of steps stays meaningful.
struct Step {
  int what;
  int list;
  int cell;
  int position;
  int name;
};

std::ostream& operator<<(std::ostream& out, const Step& step);

/// Cells, lists and nodes in a host's hands, each list beside a plain account of what stands in it.
class HostEdits {
 public:
  /// How many different things a step can do.
  static constexpr int kinds = 14;

  /// `bulk` cells stand in the first list from the start: long lists are looked up in another way than short
  /// ones.
  explicit HostEdits(int bulk);
  ~HostEdits();
  HostEdits(const HostEdits&) = delete;
  HostEdits& operator=(const HostEdits&) = delete;

  /// Does the step, to the lists and to the account; what is wrong afterwards, or nothing. The step's name is
  /// looked up in every list and through every node.
  std::string apply(const Step& step);

  /// What is wrong with the whole contents of any list, or nothing.
  std::string compareAll() const;

  /// Names that meet in upper case and names that nearly do, and a longer row of numbered ones.
  static Text name(int number);

 private:
  using Plain = std::vector<KOBCellTraduction*>;
  /// A list and the account of it; shared, because nodes keep lists that others have let go.
  struct Account {
    std::shared_ptr<CellList> list = std::make_shared<CellList>();
    Plain plain;
  };
  struct Node {
    CellRef cell;
    std::shared_ptr<Account> children;
  };

  struct Found {
    KOBCellTraduction* cell;
    bool damaged;
  };
  static Found walk(const Plain& plain, const Text& name);
  /// Where a walk inserts the name; empty when it meets an item that is nothing first.
  static std::optional<std::size_t> place(const Plain& plain, const Text& name);

  std::string change(const Step& step);
  std::string insertAt(Account& account, const Step& step);
  std::string removeAt(Account& account, const Step& step);
  std::string addThroughNode(Node& node, const Step& step);
  std::string insertSorted(Account& account, const CellRef& cell);
  std::string compareLookup(const Text& name);
  std::string compareItem(const Account& account, int position) const;
  CellRef& cell(int number) { return cells_[static_cast<std::size_t>(number) % cells_.size()]; }

  RecordingBoxes boxes_;
  MessageBoxes* boxesBefore_;
  std::int32_t languagesBefore_;
  std::vector<CellRef> cells_;
  std::vector<std::shared_ptr<Account>> accounts_;
  std::vector<Node> nodes_;
};

}  // namespace kob::test
