// SPDX-FileCopyrightText: The KOBTraduction authors
#include "RandomModel.h"

#include <sstream>

namespace kob::testing {

using namespace kob::test;

namespace {

void fillTexts(KOBTraductionObj& entry, Dice& dice) {
  for (std::int32_t language = 1; language <= 6; ++language) {
    if (language == 1 || dice.rarely(2)) {
      entry.ChangeTraduction(anyText(dice), language);
    }
  }
  if (dice.rarely(40)) {
    entry.ColTraduction()->Remove(entry.ColTraduction()->Count());
  }
}

CellRef anyCell(Dice& dice) {
  CellRef cell = named(anyName(dice));
  cell->setAlias(anyText(dice));
  cell->setTypeFeuille(dice.roll(3));
  cell->setContexte(dice.rarely(4));
  if (cell->TypeFeuille() == 1) {
    fillTexts(*cell->Traduction(), dice);
  } else if (cell->TypeFeuille() == 2) {
    for (std::int32_t entries = dice.roll(4); entries > 0; --entries) {
      cell->ColTraduction()->Add(entry(anyName(dice), {{}, {}, {}, {}, {}, {}}));
      fillTexts(*cell->ColTraduction()->Item(cell->ColTraduction()->Count()), dice);
    }
    cell->setm_left(dice.roll(3) - 1);
    cell->setm_width(dice.roll(3) - 1);
    cell->ChangeLeft(dice.roll(500) / 100.0, 1 + dice.roll(6));
    cell->ChangeWidth(dice.roll(500) / 100.0, 1 + dice.roll(6));
    if (dice.rarely(40)) {
      cell->ColLeft()->Remove(1);
    }
  }
  return cell;
}

void addChildren(const CellRef& parent, std::int32_t depth, Dice& dice) {
  for (std::int32_t children = dice.roll(4) + (depth == 0 ? 1 : 0); children > 0; --children) {
    const CellRef child = anyCell(dice);
    append(parent, child);
    if (depth < 3) {
      addChildren(child, depth + 1, dice);
    }
  }
}

void print(std::ostream& out, const TextList& texts) {
  for (std::int32_t i = 1; i <= texts.Count(); ++i) {
    out << '|' << toUtf8(texts.Item(i));
  }
}

void print(std::ostream& out, const FactorList& factors) {
  for (const Factor& factor : factors) {
    out << ' ' << factor.value() << (factor.isDouble() ? "d" : "");
  }
}

void print(std::ostream& out, const KOBCellTraduction& cell, const std::string& indent) {
  out << indent << toUtf8(cell.nom()) << " alias=" << toUtf8(cell.Alias()) << ' ' << cell.TypeCell()
      << cell.TypeFeuille() << (cell.Contexte() ? " context" : "");
  if (cell.TypeFeuille() == 1) {
    print(out, *cell.Traduction()->ColTraduction());
  } else if (cell.TypeFeuille() == 2) {
    out << ' ' << cell.m_left() << ' ' << cell.m_width() << " left";
    print(out, *cell.ColLeft());
    out << " width";
    print(out, *cell.ColWidth());
    for (const auto& entry : *cell.ColTraduction()) {
      out << "\n" << indent << "  \"" << toUtf8(entry->nom()) << '"';
      print(out, *entry->ColTraduction());
    }
  }
  out << '\n';
  if (cell.TypeCell() == 1) {
    for (const CellRef& child : *cell.ColCell()) {
      print(out, *child, indent + "    ");
    }
  }
}

}  // namespace

Text anyName(Dice& dice) {
  static const std::vector<Text> names{u"a", u"b",    u"A",      u"é", u"É",
                                       u"",  u"a\\b", u"RACINE", u"c", u"Caption"};
  return dice.pick(names);
}

Text anyText(Dice& dice) {
  static const std::vector<Text> texts{u"Oui", u"OUI", u"Non", u"été", u"", u"a\r\nb", u"Yes"};
  return dice.pick(texts);
}

void fillRandomly(KOBModeleTraduction& model, Dice& dice) {
  addChildren(model.Racine(), 0, dice);
}

std::string printed(const KOBModeleTraduction& model) {
  std::ostringstream out;
  out << toUtf8(model.Fichier()) << '\n';
  print(out, *model.Racine(), {});
  return out.str();
}

}  // namespace kob::testing
