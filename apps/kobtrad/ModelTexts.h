// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// A model as the verbs see it: cells in the order of the tree, each with its texts.
namespace kob::command {

struct CellPlace {
  KOBCellTraduction* cell;
  /// 0 for the root.
  std::size_t depth;
  /// The place of the parent in the same list; of the root its own.
  std::size_t parent;
  /// The same object stands at an earlier place, too; what is below it is listed there only.
  bool isRepeated = false;
};

/// The root and every cell below it, a cell before its children. A damaged tree is no obstacle: a list that
/// is missing has no children. The cells live as long as the model keeps them.
std::vector<CellPlace> cellsOf(const KOBModeleTraduction& model);

/// The entries of a cell that can be read: one of a message, those of a control, none of a mere node.
std::vector<KOBTraductionObj*> entriesOf(const KOBCellTraduction& cell);

/// Those of all cells of a model, in the order of the tree.
std::vector<KOBTraductionObj*> allEntriesOf(const KOBModeleTraduction& model);

/// The text of an entry in a language, "" where its list has none.
TextView textIn(const KOBTraductionObj& entry, std::int32_t langue);

/// How an entry is called where texts are listed: its name, "Message" for the entry of a message.
std::string labelOf(const KOBTraductionObj& entry);

/// The cell at a path, or a UsageError that proposes the paths that are nearest.
KOBCellTraduction& cellAt(const KOBModeleTraduction& model, const std::string& path);

/// The text that a path and, for a control, a name stand for; a UsageError that says what there is otherwise.
/// A control with a single text needs no name.
KOBTraductionObj& entryAt(const KOBModeleTraduction& model, const std::string& path, const std::string& name);

/// A UsageError when the model has no such language; `least` is 2 where the reference language is none.
void requireLanguage(const KOBModeleTraduction& model, std::int32_t langue, std::int32_t least = 1);

}  // namespace kob::command
