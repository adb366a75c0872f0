// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// Models as plain data, damaged ones included, and what a translation file makes of them.
namespace kob::test {

struct PlainEntry {
  Text name;
  std::optional<std::vector<Text>> texts;  ///< or none
};

struct PlainCell {
  using EntryRef = std::shared_ptr<PlainEntry>;
  using Factors = std::optional<std::vector<Factor>>;

  Text name;
  Text alias;
  bool isNode = false;
  /// The children of a node, or none; one that is null is nothing.
  std::optional<std::vector<std::shared_ptr<PlainCell>>> children;
  std::int32_t kind = 0;  ///< TypeFeuille
  EntryRef message;       ///< of kind 1; null is nothing
  std::int32_t left = 0;
  std::int32_t width = 0;
  std::optional<std::vector<EntryRef>> entries;  ///< of kind 2, or none; an entry may be shared
  Factors widths;
  Factors lefts;
  bool isContext = false;
  bool isAstray = false;  ///< the parent is not the cell in whose list it stands
};

/// Makes a cell, on which `plain` is built, the root of a tree of that shape; and the other way.
void build(const PlainCell& plain, const std::shared_ptr<KOBCellTraduction>& cell);
std::shared_ptr<PlainCell> plainOf(const KOBCellTraduction& root);

/// The whole tree as text; entries are numbered, so that a shared one is seen. Doubles are shown bit by bit.
std::string print(const PlainCell& root);

/// What becomes of a tree that is saved and loaded with a language count. Where it is whole: texts beyond the
/// count are dropped and missing ones are "", factors beyond the count are dropped, and an indicator other
/// than -1 is 1. A record that misses something ends there; what stands behind it in the record is as in a
/// new cell.
struct Kept {
  std::shared_ptr<PlainCell> root;
  bool isSaved = true;   ///< the result of Save
  bool isLoaded = true;  ///< the result of Load
};
Kept keptByAFile(const PlainCell& root, std::int32_t languages);

/// A random tree, to be called within a property.
PlainCell anyTree();
/// Any sequence of UTF-16 units, the odd ones more often than chance would have it.
Text anyUnits();

}  // namespace kob::test
