// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Restatement.h"

#include <cmath>
#include <sstream>

namespace kob::testing {

namespace {

template <class Reference>
auto& set(const Reference& reference) {
  if (!reference) {
    throw Failure(FailureKind::ObjectNotSet);
  }
  return *reference;
}

std::int32_t hundredths(double factor) {
  const double value = std::round(factor * 100);
  return value < 10 ? 10 : value > 400 ? 400 : static_cast<std::int32_t>(value);
}

std::int32_t languageOf(std::size_t slot) {
  return static_cast<std::int32_t>(slot) + 1;
}

}  // namespace

Restatement::Restatement(KOBModeleTraduction& model, std::int32_t mode, TextView path)
    : model_(model), mode_(mode), cell_(path.empty() ? nullptr : model.GetCell(path)) {
  if (mode_ == 1) {
    screen.seesButtons = false;
    screen.seesLeft = screen.seesWidth = {};
  }
  rebuild();
}

void Restatement::rebuild() {
  screen.nodes.clear();
  screen.selected = 0;
  for (const CellRef& top : *model_.Racine()->ColCell()) {
    screen.nodes.push_back({Text(top->nom()), Text(top->nom()), 1, 0});
    if (top->TypeCell() == 1) {
      const std::size_t parent = screen.nodes.size();
      for (const CellRef& child : *top->ColCell()) {
        addNodes(child, parent);
      }
    }
  }
  if (screen.selected == 0) {
    display(0);
  }
  guard_ = false;
  screen.tellsNotRecorded = false;
}

void Restatement::addNodes(const CellRef& cell, std::size_t parent) {
  const std::int32_t images[] = {1, cell->Contexte() ? 5 : 4, cell->Contexte() ? 3 : 2};
  screen.nodes.push_back({Text(cell->nom()), cell->GetCellPath(), images[cell->TypeFeuille()], parent});
  const std::size_t node = screen.nodes.size();
  if (cell == cell_) {
    screen.selected = node;
    display(node);
  }
  if (cell->TypeCell() == 1) {
    for (const CellRef& child : *cell->ColCell()) {
      addNodes(child, node);
    }
  }
}

void Restatement::display(std::size_t node) {
  if (node == 0) {
    screen.seesButtons = screen.seesName = screen.seesMessage = screen.seesControl = false;
    return;
  }
  screen.seesButtons = mode_ != 1;
  cell_ = model_.GetCell(screen.nodes[node - 1].tag);
  if (cell_ == nullptr) {
    screen.nom = screen.alias = {};
    return;
  }
  screen.nom = cell_->nom();
  screen.alias = cell_->Alias();
  screen.kind = cell_->TypeFeuille();
  screen.isContext = screen.seesContextName = cell_->Contexte();
  if (cell_->Contexte()) {
    screen.nom = set(cell_->parentcell()).nom();
    screen.contextName = cell_->nom();
  }
  screen.messageTexts = screen.controlTexts = {};
  screen.seesName = true;
  screen.seesMessage = screen.kind == 1;
  screen.seesControl = screen.kind == 2;
  if (screen.kind == 1) {
    const Texts all = texts(*cell_->Traduction()->ColTraduction());
    for (std::size_t i = 0; i < all.size() && i < 6; ++i) {
      screen.messageTexts[i] = all[i];
    }
  } else if (screen.kind == 2) {
    displayControl();
  }
}

void Restatement::displayControl() {
  screen.names.clear();
  screen.name = -1;
  for (const EntryRef& entry : *cell_->ColTraduction()) {
    screen.names.emplace_back(entry->nom());
  }
  if (!screen.names.empty()) {
    clickName(0);
  }
  if (mode_ == 1) {
    return;
  }
  screen.isPositioned = !(cell_->m_left() < 0 && cell_->m_width() < 0);
  for (std::size_t i = 0; i < 6; ++i) {
    screen.seesLeft[i] = cell_->m_left() >= 0;
    if (screen.seesLeft[i]) {
      screen.left[i] = hundredths(cell_->ColLeft()->Item(languageOf(i)).value());
    }
    screen.seesWidth[i] = cell_->m_width() >= 0;
    if (screen.seesWidth[i]) {
      screen.width[i] = hundredths(cell_->ColWidth()->Item(languageOf(i)).value());
    }
  }
}

void Restatement::clickNode(std::size_t node) {
  screen.selected = node;
  if (const CellRef cell = model_.GetCell(screen.nodes[node - 1].tag)) {
    if (cell->TypeFeuille() == 1) {
      complete(*cell->Traduction());
    } else if (cell->TypeFeuille() == 2) {
      for (const EntryRef& entry : *cell->ColTraduction()) {
        complete(*entry);
      }
    }
  }
  display(node);
}

void Restatement::complete(KOBTraductionObj& entry) {
  const auto known = model_.GetTraductionsConnues(entry.ColTraduction()->Item(1));
  for (std::int32_t i = 2; i <= model_.NbLangues(); ++i) {
    if (entry.ColTraduction()->Item(i).empty()) {
      entry.ChangeTraduction(known->Item(i), i);
    }
  }
}

void Restatement::typeNom(TextView text) {
  if (text != screen.nom && records()) {
    cell_->setnom(text);
  }
  screen.nom = text;
}

void Restatement::typeAlias(TextView text) {
  if (text != screen.alias && records()) {
    cell_->setAlias(text);
  }
  screen.alias = text;
}

void Restatement::typeMessage(std::size_t i, TextView text) {
  const bool differs = text != screen.messageTexts[i];
  screen.messageTexts[i] = text;
  if (differs && records() && cell_->TypeFeuille() == 1) {
    cell_->Traduction()->ChangeTraduction(text, languageOf(i));
  }
}

void Restatement::typeControl(std::size_t i, TextView text) {
  const bool differs = text != screen.controlTexts[i];
  screen.controlTexts[i] = text;
  if (differs && records() && cell_->TypeFeuille() == 2 && screen.name >= 0) {
    cell_->ColTraduction()->Item(screen.name + 1)->ChangeTraduction(text, languageOf(i));
  }
}

void Restatement::chooseKind(std::int32_t kind) {
  if (kind != screen.kind) {
    screen.kind = kind;
    if (records()) {
      cell_->setTypeFeuille(kind);
      rebuild();
    }
  }
}

void Restatement::checkContext() {
  screen.isContext = !screen.isContext;
  if (records()) {
    cell_->setContexte(screen.isContext);
    if (screen.selected != 0) {
      const std::int32_t plain = cell_->TypeFeuille() == 2 ? 2 : 4;
      screen.nodes[screen.selected - 1].image = plain + (screen.isContext ? 1 : 0);
    }
  }
}

void Restatement::clickName(std::int32_t line) {
  screen.name = line;
  if (line < 0) {
    const Text first = screen.controlTexts[0];
    screen.controlTexts = {};
    screen.controlTexts[0] = first;
  } else if (cell_ != nullptr) {
    const Texts all = texts(*set(cell_->ColTraduction()).Item(line + 1)->ColTraduction());
    for (std::size_t i = 0; i < all.size() && i < 6; ++i) {
      screen.controlTexts[i] = all[i];
    }
  }
}

void Restatement::addCell(const NewCell& cell) {
  if (cell_ == nullptr) {
    return;
  }
  cell_->setTypeCell(1);
  if (cell.isOk) {
    if (const CellRef added = cell_->AddNoeuds(cell.nom, nullptr, cell.alias)) {
      added->setTypeCell(2);
      added->setTypeFeuille(cell.kind);
      added->setContexte(cell.isContext && cell.kind != 0);
      if (cell.kind == 1) {
        added->Traduction()->ChangeTraduction(cell.text1, 1);
      }
      const std::pair<TextView, Text> entries[] = {{u"Caption", cell.text1}, {u"ToolTip", cell.text2}};
      for (const auto& [name, text] : entries) {
        if (cell.kind == 2 && !text.empty()) {
          const auto made = std::make_shared<KOBTraductionObj>();
          made->setnom(name);
          made->ChangeTraduction(text, 1);
          added->ColTraduction()->Add(made);
        }
      }
    } else {
      boxes += "notice \"Ce noeud existe déja\"\n";
    }
  }
  rebuild();
}

void Restatement::deleteCell(bool yes) {
  if (cell_ == nullptr) {
    return;
  }
  boxes += std::string("question \"Voulez Supprimer ce noeuds ainsi que ses fils?\" -> ") +
           (yes ? "Yes\n" : "No\n");
  if (!yes) {
    return;
  }
  CellList& siblings = set(set(cell_->parentcell()).ColCell());
  for (std::int32_t i = 1; i <= siblings.Count(); ++i) {
    if (siblings.Item(i) == cell_) {
      siblings.Remove(i);
      break;
    }
  }
  rebuild();
}

void Restatement::addName(const std::optional<Text>& name) {
  if (cell_ == nullptr || !name) {
    return;
  }
  for (const EntryRef& entry : set(cell_->ColTraduction())) {
    if (entry->nom() == *name) {
      boxes += "notice \"Cette Traduction existe déja\"\n";
      return;
    }
  }
  auto added = std::make_shared<KOBTraductionObj>();
  added->setnom(*name);
  cell_->ColTraduction()->Add(added);
  screen.names.push_back(*name);
  clickName(static_cast<std::int32_t>(screen.names.size()) - 1);
}

void Restatement::deleteName(bool yes) {
  if (cell_ == nullptr || screen.name < 0 || set(cell_->ColTraduction()).Count() < 2) {
    return;
  }
  boxes += std::string("question \"Voulez vous supprimer cette Traduction\" -> ") + (yes ? "Yes\n" : "No\n");
  if (yes) {
    cell_->ColTraduction()->Remove(screen.name + 1);
    display(screen.selected);
    guard_ = screen.tellsNotRecorded = false;
  }
}

void Restatement::checkPosition() {
  screen.isPositioned = !screen.isPositioned;
  if (records()) {
    cell_->setm_left(-cell_->m_left());
    cell_->setm_width(-cell_->m_width());
    display(screen.selected);
  }
}

void Restatement::moveLeft(std::size_t i, std::int32_t value) {
  if (value != screen.left[i] && !guard_) {
    set(cell_).ChangeLeft(value / 100.0, languageOf(i));
  }
  screen.left[i] = value;
}

void Restatement::moveWidth(std::size_t i, std::int32_t value) {
  if (value != screen.width[i] && !guard_) {
    set(cell_).ChangeWidth(value / 100.0, languageOf(i));
  }
  screen.width[i] = value;
}

void Restatement::resetLeft(std::size_t i) {
  if (!guard_) {
    set(cell_).ChangeLeft(1.0, languageOf(i));
    screen.left[i] = 100;
  }
}

void Restatement::resetWidth(std::size_t i) {
  if (!guard_) {
    set(cell_).ChangeWidth(1.0, languageOf(i));
    screen.width[i] = 100;
  }
}

void Restatement::saveAs(TextView file) {
  if (!file.empty()) {
    model_.setFichier(file);
  }
}

void Restatement::findText(TextView text) {
  if (!text.empty()) {
    CellResults found;
    model_.SearchString(text, &found);
    hits.emplace(found.begin(), found.end());
  }
}

void Restatement::findUntranslated(std::int32_t line) {
  CellResults found;
  model_.SearchNonTraduit(line + 2, &found);
  hits.emplace(found.begin(), found.end());
}

void Restatement::clickHit(std::size_t line) {
  select((*hits)[line]);
}

void Restatement::select(const CellRef& cell) {
  const Text path = cell->GetCellPath();
  guard_ = false;
  for (std::size_t node = 1; node <= screen.nodes.size() && !guard_; ++node) {
    if (screen.nodes[node - 1].tag == path) {
      screen.selected = node;
      display(node);
      guard_ = true;
    }
  }
  screen.tellsNotRecorded = guard_;
}

std::string Screen::printed() const {
  std::ostringstream out;
  const auto line = [&out](const char* what) -> std::ostream& { return out << '\n' << what << ": "; };
  const auto all = [&out](const auto& items) {
    for (const auto& item : items) {
      if constexpr (std::is_same_v<decltype(item), const Text&>) {
        out << '|' << toUtf8(item);
      } else {
        out << ' ' << item;
      }
    }
  };
  for (const Node& node : nodes) {
    out << '\n' << node.parent << ' ' << toUtf8(node.text) << " [" << toUtf8(node.tag) << "] " << node.image;
  }
  line("selected") << selected;
  line("sees") << seesButtons << seesName << seesMessage << seesControl << seesContextName;
  line("name") << toUtf8(nom) << '|' << toUtf8(alias) << '|' << toUtf8(contextName);
  line("kind") << kind << ' ' << isContext;
  line("message"), all(messageTexts);
  line("control"), all(controlTexts);
  line("names") << name, all(names);
  line("position") << isPositioned, all(left), all(width), all(seesLeft), all(seesWidth);
  line("not recorded") << tellsNotRecorded << '\n';
  return out.str();
}

}  // namespace kob::testing
