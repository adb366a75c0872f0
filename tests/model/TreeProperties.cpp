// SPDX-FileCopyrightText: The KOBTraduction authors
#include "HostEdits.h"

#include <rapidcheck/gtest.h>

#include <functional>
#include <memory>
#include <tuple>
#include <utility>
#include <vector>

namespace kob::test {
namespace {

/// A cell as plain data, with the whole-tree operations as plain recursions.
struct PlainCell {
  bool isNode = false;
  int kind = 0;
  std::vector<Texts> entries;  // of a message: one
  Factors lefts;
  Factors widths;
  std::vector<std::unique_ptr<PlainCell>> children;

  void each(const std::function<void(PlainCell&)>& visit) {
    visit(*this);
    for (const auto& child : children) {
      child->each(visit);
    }
  }
};

template <class List, class Item>
void appendMissing(List& list, std::int32_t count, const Item& item) {
  for (auto i = static_cast<std::int32_t>(list.size()); i <= count; ++i) {
    list.push_back(item);
  }
}

void raise(PlainCell& root, std::int32_t count) {
  root.each([count](PlainCell& cell) {
    for (Texts& entry : cell.entries) {
      appendMissing(entry, count, Text());
    }
    appendMissing(cell.lefts, cell.kind == 2 ? count : -1, 1.0);
    appendMissing(cell.widths, cell.kind == 2 ? count : -1, 1.0);
  });
}

void fill(PlainCell& root, std::int32_t langue, bool isTest) {
  root.each([=](PlainCell& cell) {
    for (Texts& entry : cell.entries) {
      entry[static_cast<std::size_t>(langue) - 1] = isTest ? u"** " + entry[0] + u" **" : Text();
    }
  });
}

/// What is to be compared: every cell, depth first.
void print(const PlainCell& cell, Texts& lines) {
  lines.push_back((cell.isNode ? u"node " : u"leaf ") + decimal(cell.kind));
  for (const Texts& entry : cell.entries) {
    lines.insert(lines.end(), entry.begin(), entry.end());
  }
  for (const Factors& factors : {cell.lefts, cell.widths}) {
    lines.push_back(u"factors " + decimal(static_cast<std::int64_t>(factors.size())));
  }
  for (const auto& child : cell.children) {
    print(*child, lines);
  }
}

void print(const KOBCellTraduction& cell, Texts& lines) {
  PlainCell plain;
  plain.isNode = cell.TypeCell() == 1;
  plain.kind = cell.TypeFeuille();
  if (plain.kind == 1) {
    plain.entries.push_back(texts(*cell.Traduction()->ColTraduction()));
  } else if (plain.kind == 2) {
    for (const EntryRef& one : *cell.ColTraduction()) {
      plain.entries.push_back(texts(*one->ColTraduction()));
    }
    plain.lefts = factors(*cell.ColLeft());
    plain.widths = factors(*cell.ColWidth());
  }
  print(plain, lines);
  if (plain.isNode) {
    for (const CellRef& child : *cell.ColCell()) {
      print(*child, lines);
    }
  }
}

/// A model and its plain twin, grown together.
class Twins {
 public:
  Twins() {
    cells_.push_back(model.Racine());
    plains_.push_back(&root_);
    root_.isNode = true;
  }

  /// Adds a cell of a kind below the cell that `parent` chooses, at the end of its list.
  void grow(unsigned parent, int kind, int entries) {
    const std::size_t index = parent % cells_.size();
    const CellRef cell = named(u"x");
    auto plain = std::make_unique<PlainCell>();
    const auto count = static_cast<std::size_t>(Global_Util::NbLangues());
    cell->setTypeFeuille(kind);
    plain->kind = kind;
    if (kind == 1) {
      cell->Traduction()->ChangeTraduction(decimal(parent), 1);
      addPlainEntry(*plain, decimal(parent));
    } else if (kind == 2) {
      for (int i = 0; i < entries; ++i) {
        cell->ColTraduction()->Add(std::make_shared<KOBTraductionObj>());
        cell->ColTraduction()->Item(i + 1)->ChangeTraduction(decimal(i), 1);
        addPlainEntry(*plain, decimal(i));
      }
      plain->lefts.assign(count, 1.0);
      plain->widths.assign(count, 1.0);
    }
    append(cells_[index], cell);
    cells_.push_back(cell);
    plains_.push_back(plain.get());
    plains_[index]->isNode = true;
    plains_[index]->children.push_back(std::move(plain));
  }

  PlainCell& root() { return root_; }

  Texts lines() const {
    Texts all;
    print(*model.Racine(), all);
    return all;
  }
  Texts plainLines() const {
    Texts all;
    print(root_, all);
    return all;
  }

  KOBModeleTraduction model;

 private:
  static void addPlainEntry(PlainCell& plain, const Text& reference) {
    plain.entries.emplace_back(static_cast<std::size_t>(Global_Util::NbLangues()));
    plain.entries.back()[0] = reference;
  }

  PlainCell root_;
  std::vector<CellRef> cells_;
  std::vector<PlainCell*> plains_;
};

RC_GTEST_PROP(TreeProperties, WholeTreeOperationsEqualAPlainRecursion, ()) {
  ModelTestScope scope;
  Twins twins;
  const auto moves = *rc::gen::container<std::vector<std::tuple<int, int, unsigned>>>(
      rc::gen::tuple(rc::gen::inRange(0, 8), rc::gen::inRange(-1, 14), rc::gen::inRange(0U, 60U)));
  for (const auto& [what, number, parent] : moves) {
    const std::int32_t count = Global_Util::NbLangues();
    const bool isLanguage = number > 1 && number <= count;
    switch (what) {
      case 0:
        twins.model.setNbLangues(number);
        if (number > count) {
          raise(twins.root(), number);
        }
        break;
      case 1:
        twins.model.UpdateTestLangue(number);
        if (isLanguage) {
          fill(twins.root(), number, true);
        }
        break;
      case 2:
        twins.model.ClearLangue(number);
        if (isLanguage) {
          fill(twins.root(), number, false);
        }
        break;
      default:
        twins.grow(parent, what % 3, (number + 1) % 4);
    }
  }
  RC_ASSERT(twins.lines() == twins.plainLines());
}

}  // namespace
}  // namespace kob::test
