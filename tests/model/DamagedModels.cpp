// SPDX-FileCopyrightText: The KOBTraduction authors
#include "DamagedModels.h"

#include <algorithm>
#include <array>

namespace kob::test {

namespace {

template <class T>
const T& met(const T& reference) {
  if (reference == nullptr) {
    throw Failure(FailureKind::ObjectNotSet);
  }
  return reference;
}

void walkInside(const CellRef& cell, std::vector<CellRef>& inside,
                const std::function<void(const CellRef&)>& visit) {
  visit(cell);
  if (cell->TypeCell() != 1 || std::find(inside.begin(), inside.end(), cell) != inside.end()) {
    return;
  }
  inside.push_back(cell);
  for (const CellRef& child : *met(cell->ColCell())) {
    walkInside(met(child), inside, visit);
  }
  inside.pop_back();
}

}  // namespace

void walkPlainly(const CellRef& top, const std::function<void(const CellRef&)>& visit) {
  std::vector<CellRef> inside;
  walkInside(top, inside, visit);
}

bool anyEntryPlainly(const CellRef& cell, const std::function<bool(KOBTraductionObj&)>& test) {
  if (cell->TypeFeuille() == 1) {
    return test(*met(cell->Traduction()));
  }
  if (cell->TypeFeuille() == 2) {
    for (const EntryRef& one : *met(cell->ColTraduction())) {
      if (test(*met(one))) {
        return true;
      }
    }
  }
  return false;
}

void walkEntriesPlainly(const CellRef& top, const std::function<void(KOBTraductionObj&)>& visit) {
  walkPlainly(top, [&visit](const CellRef& cell) {
    anyEntryPlainly(cell, [&visit](KOBTraductionObj& one) {
      visit(one);
      return false;
    });
  });
}

std::ostream& operator<<(std::ostream& out, const Growth& step) {
  return out << "{" << step.what << ", " << step.on << ", " << step.other << ", " << step.name << ", "
             << step.texts << "}";
}

Text DamagedModels::name(int number) {
  static const std::array<Text, 12> names = {u"a",      u"A",      u"b", u"c",    u"é",  u"É",
                                             u"RACINE", u"racine", u"",  u"a\\b", u"\\", u"\\a\\\\c"};
  return names[static_cast<std::size_t>(number) % names.size()];
}

Text DamagedModels::text(int number) {
  static const std::array<Text, 10> texts = {u"", u"a", u"A", u"é", u"É", u"ab", u"aB", u"ß", u"", u"b"};
  return texts[static_cast<std::size_t>(number) % texts.size()];
}

DamagedModels::DamagedModels(const std::vector<Growth>& steps) {
  cells_ = {own.Racine(), other.Racine()};
  makeEntry(0);
  for (const Growth& step : steps) {
    apply(step);
  }
}

DamagedModels::~DamagedModels() {
  // Cells below themselves would never be released.
  for (const CellRef& one : cells_) {
    one->setColCell(nullptr);
  }
}

void DamagedModels::apply(const Growth& step) {
  switch (step.what) {
    case 0:
    case 1:
    case 2:
      addPair(step, 1);
      break;
    case 3:
    case 4:
    case 5:
      addPair(step, 2);
      break;
    case 6:
      addPair(step, 0);
      break;
    case 7:
      cell(step.on)->setnom(name(step.name));
      break;
    case 8:
      if (const auto list = entryAt(step.on)->ColTraduction(); list != nullptr && list->Count() > 0) {
        const std::int32_t position = step.other % list->Count() + 1;
        list->Remove(position);
        list->Add(text(step.texts));
      }
      break;
    case 9:
      entryAt(step.on)->setnom(name(step.name % 2));
      break;
    case 10:
      entryAt(step.on)->setColTraduction(makeTexts(step.texts, 9));
      break;
    case 11:
      cell(step.on)->setTypeFeuille(step.other % 3);
      break;
    case 12:
      share(step);
      break;
    default:
      damage(step);
  }
}

void DamagedModels::share(const Growth& step) {
  const CellRef on = cell(step.on);
  if (step.texts % 3 == 0) {
    entryAt(step.on)->setColTraduction(entryAt(step.other)->ColTraduction());
  } else if (on->ColTraduction() != nullptr) {
    on->ColTraduction()->Add(entryAt(step.other));
  } else if (on->ColCell() != nullptr) {
    on->ColCell()->Add(cell(step.other));
  }
}

void DamagedModels::damage(const Growth& step) {
  const CellRef on = cell(step.on);
  const EntryRef one = entryAt(step.on);
  switch (step.what) {
    case 13:
      if (const auto list = one->ColTraduction(); list != nullptr) {
        for (int i = step.other % 6; i > 0 && list->Count() > 0; --i) {
          list->Remove(list->Count());
        }
      }
      break;
    case 14:
      one->setColTraduction(makeTexts(step.texts, step.other % 8));
      break;
    case 15:
      one->setColTraduction(step.other % 2 == 0 ? nullptr : std::make_shared<TextList>());
      break;
    case 16:
      on->setparentcell(step.other % 3 == 0 ? nullptr : cell(step.other));
      break;
    case 17:
      if (on->ColCell() != nullptr) {
        on->ColCell()->Add(nullptr);
      }
      break;
    case 18:
      if (on->ColTraduction() != nullptr) {
        on->ColTraduction()->Add(nullptr);
      } else {
        on->setTraduction(nullptr);
      }
      break;
    default:
      if (step.other % 2 == 0) {
        on->setColTraduction(nullptr);
      } else {
        on->setColCell(nullptr);
      }
  }
}

void DamagedModels::addPair(const Growth& step, int kind) {
  const std::size_t pair = static_cast<std::size_t>(step.on) % (cells_.size() / 2) * 2;
  Growth otherStep = step;
  otherStep.texts = step.texts / 8;
  if (step.texts % 8 == 0) {
    ++otherStep.name;
  }
  const CellRef first = makeCell(cells_[pair], step, kind);
  const CellRef second = makeCell(cells_[pair + 1], otherStep, step.texts % 8 == 1 ? (kind + 1) % 3 : kind);
  cells_.push_back(first);
  cells_.push_back(second);
}

CellRef DamagedModels::makeCell(const CellRef& parent, const Growth& step, int kind) {
  CellRef made = named(name(step.name));
  made->setTypeFeuille(kind);
  if (kind == 1) {
    made->setTraduction(makeEntry(step.texts));
  }
  for (int i = 0; kind == 2 && i < step.other % 4; ++i) {
    made->ColTraduction()->Add(makeEntry(step.texts + i));
    made->ColTraduction()->Item(i + 1)->setnom(name(step.name + i));
  }
  parent->setTypeCell(1);
  if (parent->ColCell() != nullptr) {
    parent->ColCell()->Add(made);
  }
  made->setparentcell(parent);
  return made;
}

EntryRef DamagedModels::makeEntry(int seed) {
  auto made = std::make_shared<KOBTraductionObj>();
  made->setColTraduction(makeTexts(seed, 9));
  entries_.push_back(made);
  return made;
}

std::shared_ptr<TextList> DamagedModels::makeTexts(int seed, int count) {
  auto list = std::make_shared<TextList>();
  for (int i = 0; i < count; ++i) {
    // References are few, so that many are equal; of the other languages every second one is missing.
    const bool isGap = i > 0 && (seed >> i) % 2 == 0;
    list->Add(isGap ? Text() : text(i == 0 ? seed % 7 : seed + i));
  }
  return list;
}

Texts DamagedModels::everything() const {
  Texts all;
  for (const EntryRef& one : entries_) {
    all.push_back(u"entry " + Text(one->nom()));
    const auto list = one->ColTraduction();
    for (std::int32_t i = 1; list != nullptr && i <= list->Count(); ++i) {
      all.emplace_back(list->Item(i));
    }
  }
  return all;
}

Texts DamagedModels::numbers(const CellResults& found) const {
  Texts all;
  for (const CellRef& one : found) {
    all.push_back(decimal(std::find(cells_.begin(), cells_.end(), one) - cells_.begin()));
  }
  return all;
}

}  // namespace kob::test
