// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelTexts.h"

#include "PathHints.h"
#include "Utf8.h"
#include "Verb.h"

#include <memory_resource>
#include <unordered_set>

namespace kob::command {

std::vector<CellPlace> cellsOf(const KOBModeleTraduction& model) {
  std::vector<CellPlace> places;
  std::pmr::monotonic_buffer_resource memory;
  std::pmr::unordered_set<const KOBCellTraduction*> met(&memory);
  // What is still to come; the last one is next.
  std::vector<CellPlace> open{{model.Racine().get(), 0, 0}};
  while (!open.empty()) {
    CellPlace place = open.back();
    open.pop_back();
    place.isRepeated = !met.insert(place.cell).second;
    const std::size_t self = places.size();
    places.push_back(place);
    if (place.isRepeated || place.cell->TypeCell() != 1 || place.cell->ColCell() == nullptr) {
      continue;
    }
    const std::size_t firstChild = open.size();
    for (const std::shared_ptr<KOBCellTraduction>& child : *place.cell->ColCell()) {
      if (child != nullptr) {
        open.push_back({child.get(), place.depth + 1, self});
      }
    }
    std::reverse(open.begin() + static_cast<std::ptrdiff_t>(firstChild), open.end());
  }
  return places;
}

std::vector<KOBTraductionObj*> entriesOf(const KOBCellTraduction& cell) {
  std::vector<KOBTraductionObj*> entries;
  if (cell.TypeFeuille() == 1 && cell.Traduction() != nullptr) {
    entries.push_back(cell.Traduction().get());
  } else if (cell.TypeFeuille() == 2 && cell.ColTraduction() != nullptr) {
    for (const std::shared_ptr<KOBTraductionObj>& entry : *cell.ColTraduction()) {
      if (entry != nullptr) {
        entries.push_back(entry.get());
      }
    }
  }
  return entries;
}

std::vector<KOBTraductionObj*> allEntriesOf(const KOBModeleTraduction& model) {
  std::vector<KOBTraductionObj*> all;
  for (const CellPlace& place : cellsOf(model)) {
    if (!place.isRepeated) {
      const std::vector<KOBTraductionObj*> entries = entriesOf(*place.cell);
      all.insert(all.end(), entries.begin(), entries.end());
    }
  }
  return all;
}

TextView textIn(const KOBTraductionObj& entry, std::int32_t langue) {
  const TextList* const texts = entry.ColTraduction().get();
  return texts != nullptr && langue >= 1 && langue <= texts->Count() ? texts->Item(langue) : TextView();
}

std::string labelOf(const KOBTraductionObj& entry) {
  return entry.nom().empty() ? "Message" : visible(entry.nom());
}

KOBCellTraduction& cellAt(const KOBModeleTraduction& model, const std::string& path) {
  const std::shared_ptr<KOBCellTraduction> cell = model.GetCell(argumentText(path, "the path"));
  if (cell == nullptr) {
    throw UsageError("no cell at path \"" + path + "\"" + pathHint(model, *fromUtf8(path)));
  }
  // The model keeps it.
  return *cell;
}

KOBTraductionObj& entryAt(const KOBModeleTraduction& model, const std::string& path,
                          const std::string& name) {
  const KOBCellTraduction& cell = cellAt(model, path);
  const std::vector<KOBTraductionObj*> entries = entriesOf(cell);
  if (entries.empty()) {
    throw UsageError("the cell at path \"" + path + "\" holds no text; see kobtrad show --path");
  }
  if (cell.TypeFeuille() == 1) {
    if (!name.empty()) {
      throw UsageError("\"" + path + "\" is a message: it has one text and takes no --name");
    }
    return *entries.front();
  }
  if (name.empty() && entries.size() == 1) {
    return *entries.front();
  }
  std::string names;
  KOBTraductionObj* found = nullptr;
  for (KOBTraductionObj* const entry : entries) {
    // Of two entries of one name, applying takes the last.
    found = equalUpper(entry->nom(), argumentText(name, "the name")) ? entry : found;
    names += (names.empty() ? "" : ", ") + labelOf(*entry);
  }
  if (found == nullptr) {
    throw UsageError("\"" + path + "\" is a control with these texts: " + names +
                     (name.empty() ? "; choose one with --name" : "; it has no \"" + name + "\""));
  }
  return *found;
}

void requireLanguage(const KOBModeleTraduction& model, std::int32_t langue, std::int32_t least) {
  if (langue < least || langue > model.NbLangues()) {
    throw UsageError("there is no language " + std::to_string(langue) + " to be chosen: it is one of " +
                     std::to_string(least) + " to " + std::to_string(model.NbLangues()));
  }
}

}  // namespace kob::command
