// SPDX-FileCopyrightText: The KOBTraduction authors
#include "PlainModel.h"

#include <algorithm>
#include <map>

namespace kob::test {

namespace {

class File {
 public:
  explicit File(std::int32_t languages) : languages_(static_cast<std::size_t>(std::max(languages, 0))) {}

  std::shared_ptr<PlainCell> kept(const PlainCell& cell) {
    auto read = std::make_shared<PlainCell>();
    read->name = cell.name;
    read->alias = cell.alias;
    read->isNode = cell.isNode;
    // What a new cell holds, until its record says otherwise.
    read->kind = 1;
    read->message = std::make_shared<PlainEntry>(PlainEntry{Text(), std::vector<Text>(languages_)});
    if (cell.isNode && !readChildren(cell, *read)) {
      return read;
    }
    read->kind = cell.kind;
    read->message = cell.kind == 1 ? kept(cell.message) : nullptr;
    if (cell.kind == 2 && !readControl(cell, *read)) {
      return read;
    }
    read->isContext = cell.isContext;
    return read;
  }

  bool isSaved(const PlainCell& cell) const {
    bool isWhole = true;
    if (cell.isNode) {
      if (!cell.children) {
        return false;
      }
      for (const auto& child : *cell.children) {
        isWhole = (child == nullptr || isSaved(*child)) && isWhole;
      }
    }
    if (cell.kind == 1) {
      return isSaved(cell.message) && isWhole;
    }
    if (cell.kind != 2) {
      return isWhole;
    }
    return cell.entries &&
           std::all_of(cell.entries->begin(), cell.entries->end(),
                       [this](const PlainCell::EntryRef& entry) { return isSaved(entry); }) &&
           (languages_ == 0 || (reaches(cell.widths) && reaches(cell.lefts))) && isWhole;
  }

  bool isLoaded = true;

 private:
  /// Whether the record goes on behind the children.
  bool readChildren(const PlainCell& cell, PlainCell& read) {
    read.children.emplace();
    if (!cell.children) {
      return isLoaded = false;
    }
    for (const auto& child : *cell.children) {
      if (child == nullptr) {
        return isLoaded = false;
      }
      read.children->push_back(kept(*child));
    }
    return true;
  }

  /// Whether the record goes on behind the factors.
  bool readControl(const PlainCell& cell, PlainCell& read) {
    read.left = cell.left == -1 ? -1 : 1;
    read.width = cell.width == -1 ? -1 : 1;
    read.entries.emplace();
    if (!cell.entries) {
      read.widths.emplace(languages_);
      read.lefts.emplace(languages_);
      return isLoaded = false;
    }
    for (const PlainCell::EntryRef& entry : *cell.entries) {
      read.entries->push_back(kept(entry));
    }
    read.widths.emplace();
    read.lefts.emplace();
    for (std::size_t i = 0; i < languages_; ++i) {
      if (!cell.widths || i >= cell.widths->size()) {
        return isLoaded = false;
      }
      read.widths->push_back((*cell.widths)[i]);
      if (!cell.lefts || i >= cell.lefts->size()) {
        return isLoaded = false;
      }
      read.lefts->push_back((*cell.lefts)[i]);
    }
    return true;
  }

  PlainCell::EntryRef kept(const PlainCell::EntryRef& entry) {
    if (entry == nullptr) {
      return nullptr;
    }
    PlainCell::EntryRef& read = entries_[entry.get()];
    if (read == nullptr) {
      read =
          std::make_shared<PlainEntry>(PlainEntry{entry->name, entry->texts.value_or(std::vector<Text>())});
      if (entry->texts) {
        read->texts->resize(languages_);
      }
    }
    isLoaded = isSaved(entry) && isLoaded;
    return read;
  }

  bool isSaved(const PlainCell::EntryRef& entry) const {
    return entry == nullptr || entry->texts || languages_ == 0;
  }

  bool reaches(const PlainCell::Factors& factors) const { return factors && factors->size() >= languages_; }

  std::size_t languages_;
  std::map<const PlainEntry*, PlainCell::EntryRef> entries_;
};

}  // namespace

Kept keptByAFile(const PlainCell& root, std::int32_t languages) {
  File file(languages);
  Kept kept;
  kept.root = file.kept(root);
  kept.isSaved = file.isSaved(root);
  kept.isLoaded = file.isLoaded;
  return kept;
}

}  // namespace kob::test
