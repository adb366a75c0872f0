// SPDX-FileCopyrightText: The KOBTraduction authors
#include "PlainModel.h"

#include "tests/doubles/Lines.h"

#include <bit>
#include <map>
#include <utility>

namespace kob::test {

namespace {

using CellRef = std::shared_ptr<KOBCellTraduction>;

std::shared_ptr<FactorList> listOf(const PlainCell::Factors& factors) {
  if (!factors) {
    return nullptr;
  }
  auto list = std::make_shared<FactorList>();
  for (const Factor& factor : *factors) {
    list->Add(factor);
  }
  return list;
}

PlainCell::Factors plainFactors(const std::shared_ptr<FactorList>& list) {
  if (list == nullptr) {
    return std::nullopt;
  }
  std::vector<Factor> factors;
  for (std::int32_t i = 1; i <= list->Count(); ++i) {
    factors.push_back(list->Item(i));
  }
  return factors;
}

class Builder {
 public:
  void build(const PlainCell& plain, const CellRef& cell) {
    cell->setnom(plain.name);
    cell->setAlias(plain.alias);
    cell->setTypeCell(plain.isNode ? 1 : 2);
    if (plain.isNode && !plain.children) {
      cell->setColCell(nullptr);
    } else if (plain.isNode) {
      for (const auto& child : *plain.children) {
        addChild(child.get(), cell);
      }
    }
    cell->setTypeFeuille(plain.kind);
    if (plain.kind == 1) {
      cell->setTraduction(entryOf(plain.message));
    } else if (plain.kind == 2) {
      buildControl(plain, *cell);
    }
    cell->setContexte(plain.isContext);
  }

 private:
  void addChild(const PlainCell* plain, const CellRef& parent) {
    const CellRef child = plain != nullptr ? KOBCellTraduction::create() : nullptr;
    if (child != nullptr) {
      build(*plain, child);
      child->setparentcell(parent);
    }
    parent->ColCell()->Add(child);
  }

  void buildControl(const PlainCell& plain, KOBCellTraduction& cell) {
    cell.setm_left(plain.left);
    cell.setm_width(plain.width);
    cell.setColWidth(listOf(plain.widths));
    cell.setColLeft(listOf(plain.lefts));
    if (!plain.entries) {
      cell.setColTraduction(nullptr);
      return;
    }
    for (const PlainCell::EntryRef& entry : *plain.entries) {
      cell.ColTraduction()->Add(entryOf(entry));
    }
  }

  std::shared_ptr<KOBTraductionObj> entryOf(const PlainCell::EntryRef& plain) {
    if (plain == nullptr) {
      return nullptr;
    }
    std::shared_ptr<KOBTraductionObj>& entry = made_[plain.get()];
    if (entry == nullptr) {
      entry = std::make_shared<KOBTraductionObj>();
      entry->setnom(plain->name);
      entry->setColTraduction(plain->texts ? std::make_shared<TextList>() : nullptr);
      for (const Text& text : plain->texts.value_or(std::vector<Text>())) {
        entry->ColTraduction()->Add(text);
      }
    }
    return entry;
  }

  std::map<const PlainEntry*, std::shared_ptr<KOBTraductionObj>> made_;
};

class Viewer {
 public:
  std::shared_ptr<PlainCell> view(const KOBCellTraduction& cell) {
    auto plain = std::make_shared<PlainCell>();
    plain->name = cell.nom();
    plain->alias = cell.Alias();
    plain->isNode = cell.TypeCell() == 1;
    if (cell.ColCell() != nullptr) {
      plain->children.emplace();
      for (const CellRef& child : *cell.ColCell()) {
        plain->children->push_back(child != nullptr ? view(*child) : nullptr);
        if (child != nullptr) {
          plain->children->back()->isAstray = child->parentcell().get() != &cell;
        }
      }
    }
    plain->kind = cell.TypeFeuille();
    plain->message = entryOf(cell.Traduction());
    plain->left = cell.m_left();
    plain->width = cell.m_width();
    if (cell.ColTraduction() != nullptr) {
      plain->entries.emplace();
      for (const auto& entry : *cell.ColTraduction()) {
        plain->entries->push_back(entryOf(entry));
      }
    }
    plain->widths = plainFactors(cell.ColWidth());
    plain->lefts = plainFactors(cell.ColLeft());
    plain->isContext = cell.Contexte();
    return plain;
  }

 private:
  PlainCell::EntryRef entryOf(const std::shared_ptr<KOBTraductionObj>& entry) {
    if (entry == nullptr) {
      return nullptr;
    }
    PlainCell::EntryRef& plain = seen_[entry.get()];
    if (plain == nullptr) {
      plain = std::make_shared<PlainEntry>();
      plain->name = entry->nom();
      if (entry->ColTraduction() != nullptr) {
        plain->texts.emplace();
        for (std::int32_t i = 1; i <= entry->ColTraduction()->Count(); ++i) {
          plain->texts->emplace_back(entry->ColTraduction()->Item(i));
        }
      }
    }
    return plain;
  }

  std::map<const KOBTraductionObj*, PlainCell::EntryRef> seen_;
};

class Printer {
 public:
  void print(const PlainCell& cell, std::size_t depth) {
    text += std::string(2 * depth, ' ') + kob::testing::quoted(cell.name) + " " +
            kob::testing::quoted(cell.alias) + (cell.isNode ? " node" : " leaf") + std::to_string(cell.kind) +
            (cell.isContext ? " context" : "") + (cell.isAstray ? " astray" : "") + " at " +
            std::to_string(cell.left) + "," + std::to_string(cell.width) + " message " +
            entryText(cell.message) + " entries";
    if (!cell.entries) {
      text += " none";
    }
    for (const auto& entry : cell.entries.value_or(std::vector<PlainCell::EntryRef>())) {
      text += " " + entryText(entry);
    }
    text += " width" + factorsText(cell.widths) + " left" + factorsText(cell.lefts) +
            (cell.children ? "" : " children none") + "\n";
    for (const auto& child : cell.children.value_or(std::vector<std::shared_ptr<PlainCell>>())) {
      if (child == nullptr) {
        text += std::string(2 * depth + 2, ' ') + "nothing\n";
      } else {
        print(*child, depth + 1);
      }
    }
  }

  std::string text;

 private:
  std::string entryText(const PlainCell::EntryRef& entry) {
    if (entry == nullptr) {
      return "nothing";
    }
    const auto [known, isNew] = numbers_.emplace(entry.get(), numbers_.size() + 1);
    std::string shown = "#" + std::to_string(known->second);
    if (!isNew) {
      return shown;
    }
    shown += kob::testing::quoted(entry->name) + (entry->texts ? "" : "none") + "[";
    for (const Text& one : entry->texts.value_or(std::vector<Text>())) {
      shown += kob::testing::quoted(one);
    }
    return shown + "]";
  }

  static std::string factorsText(const PlainCell::Factors& factors) {
    if (!factors) {
      return " none";
    }
    std::string shown;
    for (const Factor& factor : *factors) {
      shown += " " + (factor.isDouble() ? std::to_string(std::bit_cast<std::uint64_t>(factor.value())) : "1");
    }
    return shown;
  }

  std::map<const PlainEntry*, std::size_t> numbers_;
};

}  // namespace

void build(const PlainCell& plain, const CellRef& cell) {
  Builder().build(plain, cell);
}

std::shared_ptr<PlainCell> plainOf(const KOBCellTraduction& root) {
  return Viewer().view(root);
}

std::string print(const PlainCell& root) {
  Printer printer;
  printer.print(root, 0);
  return std::move(printer.text);
}

}  // namespace kob::test
