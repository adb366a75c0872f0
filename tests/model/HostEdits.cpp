// SPDX-FileCopyrightText: The KOBTraduction authors
#include "HostEdits.h"

#include <iterator>
#include <utility>

namespace kob::test {
namespace {

constexpr std::size_t cellCount = 8;
constexpr std::size_t listCount = 3;
constexpr std::size_t nodeCount = 3;

}  // namespace

std::ostream& operator<<(std::ostream& out, const Step& step) {
  return out << '{' << step.what << ',' << step.list << ',' << step.cell << ',' << step.position << ','
             << step.name << '}';
}

HostEdits::HostEdits(int bulk)
    : boxesBefore_(Global_Util::setMessageBoxes(&boxes_)), languagesBefore_(Global_Util::NbLangues()) {
  Global_Util::setNbLangues(0);
  for (std::size_t i = 0; i < cellCount; ++i) {
    cells_.push_back(named(name(static_cast<int>(i))));
  }
  for (std::size_t i = 0; i < listCount; ++i) {
    accounts_.push_back(std::make_shared<Account>());
  }
  for (std::size_t i = 0; i < nodeCount; ++i) {
    nodes_.push_back({KOBCellTraduction::createNode(), accounts_[i]});
    nodes_[i].cell->setColCell(accounts_[i]->list);
  }
  for (int i = 0; i < bulk; ++i) {
    const CellRef made = named(name(24 + (i * 7) % 400));
    accounts_[0]->list->Add(made);
    accounts_[0]->plain.push_back(made.get());
  }
}

HostEdits::~HostEdits() {
  Global_Util::setMessageBoxes(boxesBefore_);
  Global_Util::setNbLangues(languagesBefore_);
}

Text HostEdits::name(int number) {
  static const Text few[] = {
      u"",       u"a",  u"A",  u"b",     u"B", u"ab", u"AB", u"aB",     u"é",      u"É",
      u"ß",      u"SS", u"ss", u"i",     u"I", u"ı",  u"İ",  u"\u1F80", u"\u1F88", Text(1, char16_t{0xD800}),
      u"\uFFFF", u"_",  u"z",  u"RACINE"};
  if (number < static_cast<int>(std::size(few))) {
    return few[number];
  }
  return (number % 3 == 0 ? u"N" : u"n") + decimal(number / 2);
}

HostEdits::Found HostEdits::walk(const Plain& plain, const Text& name) {
  const Text wanted = upper(name);
  for (KOBCellTraduction* const one : plain) {
    if (one == nullptr) {
      return {nullptr, true};
    }
    // Upper-casing keeps the number of units, so a name of another length need not be tried.
    if (one->nom().size() == wanted.size() && upper(one->nom()) == wanted) {
      return {one, false};
    }
  }
  return {nullptr, false};
}

std::optional<std::size_t> HostEdits::place(const Plain& plain, const Text& name) {
  const Text wanted = upper(name);
  for (std::size_t i = 0; i < plain.size(); ++i) {
    if (plain[i] == nullptr) {
      return std::nullopt;
    }
    if (upper(plain[i]->nom()) > wanted) {
      return i;
    }
  }
  return plain.size();
}

std::string HostEdits::apply(const Step& step) {
  std::string wrong = change(step);
  if (wrong.empty()) {
    wrong = compareLookup(name(step.name));
  }
  if (wrong.empty()) {
    wrong = compareItem(*accounts_[static_cast<std::size_t>(step.list) % listCount], step.position);
  }
  return wrong;
}

std::string HostEdits::change(const Step& step) {
  std::shared_ptr<Account>& account = accounts_[static_cast<std::size_t>(step.list) % listCount];
  Node& node = nodes_[static_cast<std::size_t>(step.cell) % nodeCount];
  switch (step.what) {
    case 0:
    case 1:
      account->list->Add(cell(step.cell));
      account->plain.push_back(cell(step.cell).get());
      return {};
    case 2:
      return insertAt(*account, step);
    case 3:
      return removeAt(*account, step);
    case 4:
    case 5:
      cell(step.cell)->setnom(name(step.name));
      return {};
    case 6:
      if (!account->plain.empty()) {
        KOBCellTraduction* const one =
            account->plain[static_cast<std::size_t>(step.position) % account->plain.size()];
        if (one != nullptr) {
          one->setnom(name(step.name));
        }
      }
      return {};
    case 7:
      cell(step.cell) = named(name(step.name));
      return {};
    case 8:
    case 9:
      return addThroughNode(node, step);
    case 10:
      return insertSorted(*account, cell(step.cell));
    case 11:
      node.cell->setColCell(account->list);
      node.children = account;
      return {};
    case 12:
      if (step.position % 4 == 0) {
        account = std::make_shared<Account>();
      } else if (step.position % 4 == 1) {
        node.cell->setColCell(nullptr);
        node.children = nullptr;
      } else {
        node = {KOBCellTraduction::createNode(), nullptr};
        node.children = std::make_shared<Account>();
        node.children->list = node.cell->ColCell();
      }
      return {};
    default:
      if (step.position % 8 == 0) {
        account->list->Add(nullptr);
        account->plain.push_back(nullptr);
      }
      return {};
  }
}

std::string HostEdits::insertAt(Account& account, const Step& step) {
  const CellRef one = step.name % 16 == 0 ? nullptr : cell(step.cell);
  const auto at = static_cast<std::int32_t>(step.position);
  const bool fits = at >= 1 && static_cast<std::size_t>(at) <= account.plain.size();
  const auto failure = failureOf([&] { account.list->Add(one, at); });
  if (fits) {
    account.plain.insert(account.plain.begin() + at - 1, one.get());
  }
  return failure.has_value() == fits ? "insertion in front of " + std::to_string(at) : "";
}

std::string HostEdits::removeAt(Account& account, const Step& step) {
  const auto at = static_cast<std::int32_t>(step.position);
  const bool fits = at >= 1 && static_cast<std::size_t>(at) <= account.plain.size();
  const auto failure = failureOf([&] { account.list->Remove(at); });
  if (fits) {
    account.plain.erase(account.plain.begin() + at - 1);
  }
  return failure.has_value() == fits ? "removal of " + std::to_string(at) : "";
}

std::string HostEdits::insertSorted(Account& account, const CellRef& one) {
  const auto at = place(account.plain, Text(one->nom()));
  const auto failure = failureOf([&] { account.list->insertSorted(one); });
  if (at) {
    account.plain.insert(account.plain.begin() + static_cast<std::ptrdiff_t>(*at), one.get());
  }
  return failure.has_value() == at.has_value() ? "sorted insertion" : "";
}

std::string HostEdits::addThroughNode(Node& node, const Step& step) {
  const Text wanted = name(step.name);
  const Found found = node.children ? walk(node.children->plain, wanted) : Found{nullptr, true};
  const auto at = node.children && found.cell == nullptr ? place(node.children->plain, wanted) : std::nullopt;
  boxes_.notices.clear();
  std::int32_t erreur = 0;
  CellRef made;
  const auto failure = failureOf([&] {
    made = step.position % 2 == 0 ? node.cell->AddNoeuds(wanted, &erreur)
                                  : node.cell->AddMessage(wanted, u"text", &erreur);
  });
  if (at) {
    node.children->plain.insert(node.children->plain.begin() + static_cast<std::ptrdiff_t>(*at), made.get());
  }
  if (boxes_.notices.size() != (found.damaged ? 1U : 0U)) {
    return "messages while adding";
  }
  if (found.cell != nullptr) {
    return made == nullptr && erreur == -2 && !failure ? "" : "a taken name was added";
  }
  if (at) {
    return made != nullptr && erreur == 0 && !failure && made->parentcell() == node.cell ? "" : "not added";
  }
  return failure == FailureKind::ObjectNotSet && erreur == 0 ? "" : "added to a damaged list";
}

std::string HostEdits::compareLookup(const Text& wanted) {
  for (const auto& account : accounts_) {
    const Found expected = walk(account->plain, wanted);
    KOBCellTraduction* found = nullptr;
    const auto failure = failureOf([&] { found = account->list->find(wanted); });
    if (found != expected.cell || failure.has_value() != expected.damaged) {
      return "look-up in a list";
    }
  }
  for (const Node& node : nodes_) {
    const Found expected = node.children ? walk(node.children->plain, wanted) : Found{nullptr, true};
    boxes_.notices.clear();
    if (node.cell->GetCell(wanted).get() != expected.cell ||
        boxes_.notices.size() != (expected.damaged ? 1U : 0U)) {
      return "look-up through a node";
    }
  }
  return {};
}

std::string HostEdits::compareItem(const Account& account, int position) const {
  if (account.list->Count() != static_cast<std::int32_t>(account.plain.size())) {
    return "count";
  }
  if (!account.plain.empty()) {
    const std::size_t index = static_cast<std::size_t>(position) % account.plain.size();
    if (account.list->Item(static_cast<std::int32_t>(index) + 1).get() != account.plain[index]) {
      return "item " + std::to_string(index + 1);
    }
  }
  return {};
}

std::string HostEdits::compareAll() const {
  for (const auto& account : accounts_) {
    Plain stands;
    for (const CellRef& one : *account->list) {
      stands.push_back(one.get());
    }
    if (stands != account->plain) {
      return "contents";
    }
    for (std::size_t i = 0; i < stands.size(); ++i) {
      std::string wrong = compareItem(*account, static_cast<int>(i));
      if (!wrong.empty()) {
        return wrong;
      }
    }
  }
  return {};
}

}  // namespace kob::test
