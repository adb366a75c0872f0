// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/base/MetBefore.h>
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/CellWalk.h>
#include <kobtraduction/model/KOBCellTraduction.h>
#include <kobtraduction/model/PathMemo.h>

#include <algorithm>
#include <utility>

namespace kob {

namespace {

template <class T>
T& required(const std::shared_ptr<T>& object) {
  if (object == nullptr) {
    throw Failure(FailureKind::ObjectNotSet);
  }
  return *object;
}

std::shared_ptr<FactorList> unchangedFactors() {
  auto list = std::make_shared<FactorList>();
  list->Reserve(Global_Util::NbLangues());
  for (std::int32_t i = Global_Util::NbLangues(); i > 0; --i) {
    list->Add(Factor());
  }
  return list;
}

void changeFactor(const std::shared_ptr<FactorList>& factors, double value, std::int32_t position) {
  if (position < 1 || position > Global_Util::NbLangues()) {
    return;
  }
  FactorList& list = required(factors);
  list.Remove(position);
  if (position > list.Count()) {
    list.Add(Factor(value));
  } else {
    list.Add(Factor(value), position);
  }
}

/// Calls change(entry) for the translations that a cell holds by its kind.
template <class Change>
void eachEntry(const KOBCellTraduction& cell, Change change) {
  if (cell.TypeFeuille() == 1) {
    change(required(cell.Traduction()));
  } else if (cell.TypeFeuille() == 2) {
    for (const auto& entry : required(cell.ColTraduction())) {
      change(required(entry));
    }
  }
}

/// The lists of children whose cells are being released; set while one of the thread's destructors empties
/// it.
thread_local std::vector<std::shared_ptr<CellList>>* releasing = nullptr;

}  // namespace

KOBCellTraduction::KOBCellTraduction(Key) {}

KOBCellTraduction::~KOBCellTraduction() {
  if (colCell_ == nullptr) {
    return;
  }
  if (releasing != nullptr) {
    releasing->push_back(std::move(colCell_));
    return;
  }
  std::vector<std::shared_ptr<CellList>> lists;
  lists.push_back(std::move(colCell_));
  releasing = &lists;
  while (!lists.empty()) {
    const std::shared_ptr<CellList> list = std::move(lists.back());
    lists.pop_back();
  }
  releasing = nullptr;
}

std::shared_ptr<KOBCellTraduction> KOBCellTraduction::create() {
  auto cell = std::make_shared<KOBCellTraduction>(Key{});
  cell->setTypeCell(2);
  cell->setTypeFeuille(1);
  return cell;
}

std::shared_ptr<KOBCellTraduction> KOBCellTraduction::createControl() {
  auto cell = std::make_shared<KOBCellTraduction>(Key{});
  cell->setTypeCell(2);
  cell->setTypeFeuille(2);
  return cell;
}

std::shared_ptr<KOBCellTraduction> KOBCellTraduction::createNode() {
  auto cell = std::make_shared<KOBCellTraduction>(Key{});
  cell->setTypeCell(1);
  cell->setTypeFeuille(0);
  return cell;
}

void KOBCellTraduction::setnom(TextView name) {
  StoredText newName(name);
  if (holder_ == nullptr) {
    nom_ = std::move(newName);
    return;
  }
  const auto eachHolder = [this](void (CellList::*tell)(KOBCellTraduction&)) {
    (holder_->*tell)(*this);
    if (moreHolders_ != nullptr) {
      for (CellList* const holder : *moreHolders_) {
        (holder->*tell)(*this);
      }
    }
  };
  eachHolder(&CellList::beforeRename);
  nom_ = std::move(newName);
  eachHolder(&CellList::afterRename);
}

void KOBCellTraduction::addHolder(CellList& list) {
  if (holder_ == nullptr) {
    holder_ = &list;
    return;
  }
  if (moreHolders_ == nullptr) {
    moreHolders_ = std::make_unique<std::vector<CellList*>>();
  }
  moreHolders_->push_back(&list);
}

void KOBCellTraduction::removeHolder(CellList& list) noexcept {
  if (moreHolders_ == nullptr || moreHolders_->empty()) {
    holder_ = nullptr;
    return;
  }
  if (holder_ == &list) {
    holder_ = moreHolders_->back();
  } else {
    *std::find(moreHolders_->begin(), moreHolders_->end(), &list) = moreHolders_->back();
  }
  moreHolders_->pop_back();
}

void KOBCellTraduction::setColCell(std::shared_ptr<CellList> children) noexcept {
  treeChanged();
  colCell_ = std::move(children);
}

void KOBCellTraduction::setTypeCell(std::int32_t kind) {
  if ((kind != 1 && kind != 2) || kind == typeCell_) {
    return;
  }
  treeChanged();
  typeCell_ = kind;
  colCell_ = kind == 1 ? std::make_shared<CellList>() : nullptr;
}

void KOBCellTraduction::setTypeFeuille(std::int32_t kind) {
  if (kind < 0 || kind > 2 || kind == typeFeuille_) {
    return;
  }
  typeFeuille_ = kind;
  clearTranslations();
  if (kind == 1) {
    traduction_ = std::make_shared<KOBTraductionObj>();
  } else if (kind == 2) {
    colTraduction_ = std::make_shared<EntryList>();
    // A caption and a tool tip.
    colTraduction_->Reserve(2);
    colWidth_ = unchangedFactors();
    colLeft_ = unchangedFactors();
  }
}

void KOBCellTraduction::clearTranslations() noexcept {
  colTraduction_ = nullptr;
  colWidth_ = nullptr;
  colLeft_ = nullptr;
  traduction_ = nullptr;
}

void KOBCellTraduction::ChangeWidth(double width, std::int32_t Index) {
  changeFactor(colWidth_, width, Index);
}

void KOBCellTraduction::ChangeLeft(double left, std::int32_t Index) {
  changeFactor(colLeft_, left, Index);
}

CellList& KOBCellTraduction::children() const {
  return required(colCell_);
}

bool KOBCellTraduction::admits(TextView name, std::int32_t* erreur) {
  if (typeCell_ == 2) {
    setTypeCell(1);
  }
  if (findCell(name) == nullptr) {
    return true;
  }
  if (erreur != nullptr) {
    *erreur = -2;
  }
  return false;
}

void KOBCellTraduction::insertChild(const std::shared_ptr<KOBCellTraduction>& child, TextView name,
                                    TextView alias) {
  child->setnom(name);
  child->setAlias(alias.empty() ? name : alias);
  children().insertSorted(child);
  child->setparentcell(shared_from_this());
}

std::shared_ptr<KOBCellTraduction> KOBCellTraduction::AddNoeuds(TextView NomNoeud, std::int32_t* erreur,
                                                                TextView AliasNoeud) {
  if (!admits(NomNoeud, erreur)) {
    return nullptr;
  }
  std::shared_ptr<KOBCellTraduction> child = createNode();
  insertChild(child, NomNoeud, AliasNoeud);
  return child;
}

std::shared_ptr<KOBCellTraduction> KOBCellTraduction::AddMessage(TextView NomMessage, TextView Message,
                                                                 std::int32_t* erreur,
                                                                 TextView AliasMessage) {
  if (!admits(NomMessage, erreur)) {
    return nullptr;
  }
  std::shared_ptr<KOBCellTraduction> child = create();
  child->traduction_->ChangeTraduction(Message, 1);
  insertChild(child, NomMessage, AliasMessage);
  return child;
}

KOBCellTraduction* KOBCellTraduction::findCell(TextView name) const {
  if (typeCell_ == 2) {
    return nullptr;
  }
  try {
    return children().find(name);
  } catch (const Failure&) {
    Global_Util::messageBoxes().notice(u"GetCell - KOBCellTraduction");
    return nullptr;
  }
}

std::shared_ptr<KOBCellTraduction> KOBCellTraduction::GetCell(TextView name) const {
  KOBCellTraduction* const found = findCell(name);
  return found != nullptr ? found->shared_from_this() : nullptr;
}

Text KOBCellTraduction::GetCellPath() const {
  std::vector<TextView> names{nom()};
  MetBefore metBefore;
  metBefore(this);
  for (auto ancestor = parentcell(); ancestor != nullptr && !metBefore(ancestor.get());
       ancestor = ancestor->parentcell()) {
    // By name and not by identity: whatever bears the root's name is left out.
    if (ancestor->nom() != u"RACINE") {
      names.push_back(ancestor->nom());
    }
  }
  Text path;
  for (auto name = names.rbegin(); name != names.rend(); ++name) {
    path += *name;
    if (std::next(name) != names.rend()) {
      path += u'\\';
    }
  }
  return path;
}

void KOBCellTraduction::UpdateNbLangues() {
  CellWalk::each(*this, [](KOBCellTraduction& cell) {
    eachEntry(cell, [](KOBTraductionObj& entry) { entry.UpdateNbLangues(); });
    if (cell.TypeFeuille() != 2) {
      return;
    }
    FactorList& widths = required(cell.ColWidth());
    // From the present count on, as in every extension: one factor more than the gap, and as many lefts as
    // widths whatever the lefts' own count is.
    for (std::int32_t i = widths.Count(), last = Global_Util::NbLangues(); i <= last; ++i) {
      widths.Add(Factor());
      required(cell.ColLeft()).Add(Factor());
    }
  });
}

void KOBCellTraduction::UpdateTestLangue(std::int32_t langue) {
  CellWalk::each(*this, [langue](KOBCellTraduction& cell) {
    eachEntry(cell, [langue](KOBTraductionObj& entry) { entry.UpdateTestLangue(langue); });
  });
}

void KOBCellTraduction::ClearLangue(std::int32_t langue) {
  CellWalk::each(*this, [langue](KOBCellTraduction& cell) {
    eachEntry(cell, [langue](KOBTraductionObj& entry) { entry.ClearLangue(langue); });
  });
}

}  // namespace kob
