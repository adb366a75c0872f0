// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/Failure.h>
#include <kobtraduction/base/MetBefore.h>
#include <kobtraduction/base/ObjectPool.h>
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/CellWalk.h>
#include <kobtraduction/model/KOBCellTraduction.h>
#include <kobtraduction/model/PathMemo.h>

#include <algorithm>
#include <utility>

namespace kob {

namespace {

template <class Pointer>
auto& required(const Pointer& object) {
  if (object == nullptr) {
    throw Failure(FailureKind::ObjectNotSet);
  }
  return *object;
}

/// Calls change(entry) for the translations that a cell holds by its kind.
template <class Change>
void eachEntry(const KOBCellTraduction& cell, Change change) {
  if (cell.TypeFeuille() == 1) {
    change(required(cell.message()));
  } else if (cell.TypeFeuille() == 2) {
    for (const auto& entry : required(cell.entries())) {
      change(required(entry));
    }
  }
}

/// The lists of children whose cells are being released; set while one of the thread's destructors empties
/// it.
thread_local std::vector<std::shared_ptr<CellList>>* releasing = nullptr;

}  // namespace

// As if its kinds, none at first, had been assigned: a leaf with a message.
KOBCellTraduction::KOBCellTraduction(Key)
    : untouched_(std::max(Global_Util::NbLangues(), 0)), typeCell_(2), typeFeuille_(1) {}

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
  return std::make_shared<KOBCellTraduction>(Key{});
}

std::shared_ptr<KOBCellTraduction> KOBCellTraduction::createIn(ObjectPool& pool) {
  return std::allocate_shared<KOBCellTraduction>(PoolAllocator<KOBCellTraduction>(pool), Key{});
}

std::shared_ptr<KOBCellTraduction> KOBCellTraduction::createControl() {
  auto cell = create();
  cell->setTypeFeuille(2);
  return cell;
}

std::shared_ptr<KOBCellTraduction> KOBCellTraduction::createNode() {
  auto cell = create();
  cell->setTypeCell(1);
  cell->setTypeFeuille(0);
  return cell;
}

KOBCellTraduction::Rare& KOBCellTraduction::rare() const {
  if (rare_ == nullptr) {
    rare_ = std::make_unique<Rare>();
  }
  return *rare_;
}

void KOBCellTraduction::setnom(TextView name) {
  rename(StoredText(name));
}

void KOBCellTraduction::rename(StoredText newName) {
  if (isAliasNom_ && newName.text() != nom()) {
    rare();
  }
  const auto eachHolder = [this](auto tell) {
    if (holder_ == nullptr) {
      return;
    }
    tell(*holder_);
    if (rare_ != nullptr) {
      for (CellList* const holder : rare_->moreHolders) {
        tell(*holder);
      }
    }
  };
  eachHolder([this](CellList& list) { list.beforeRename(*this); });
  nom_.swap(newName);
  if (isAliasNom_ && newName.text() != nom()) {
    rare_->alias = std::move(newName);
    isAliasNom_ = false;
  }
  eachHolder([this](CellList& list) { list.afterRename(*this); });
}

void KOBCellTraduction::setIndicators(std::int32_t left, std::int32_t width) {
  const auto smallLeft = static_cast<std::int8_t>(left);
  const auto smallWidth = static_cast<std::int8_t>(width);
  const bool areRare = smallLeft != left || smallWidth != width;
  if (areRare) {
    rare().left = left;
    rare().width = width;
  }
  left_ = smallLeft;
  width_ = smallWidth;
  hasRareIndicators_ = areRare;
}

TextView KOBCellTraduction::Alias() const noexcept {
  if (isAliasNom_) {
    return nom();
  }
  return rare_ != nullptr ? rare_->alias.text() : TextView();
}

void KOBCellTraduction::setAlias(TextView alias) {
  const bool isNom = sameUnits(alias, nom());
  if (!isNom && (rare_ != nullptr || !alias.empty())) {
    rare().alias = StoredText(alias);
  }
  isAliasNom_ = isNom;
}

void KOBCellTraduction::addHolder(CellList& list) {
  if (holder_ == nullptr) {
    holder_ = &list;
  } else {
    rare().moreHolders.push_back(&list);
  }
}

void KOBCellTraduction::removeHolder(CellList& list) noexcept {
  if (rare_ == nullptr || rare_->moreHolders.empty()) {
    holder_ = nullptr;
    return;
  }
  std::vector<CellList*>& more = rare_->moreHolders;
  if (holder_ == &list) {
    holder_ = more.back();
  } else {
    *std::find(more.begin(), more.end(), &list) = more.back();
  }
  more.pop_back();
}

void KOBCellTraduction::setColCell(std::shared_ptr<CellList> children) noexcept {
  treeChanged();
  entriesChanged();
  colCell_ = std::move(children);
}

void KOBCellTraduction::setTypeCell(std::int32_t kind) {
  if ((kind != 1 && kind != 2) || kind == typeCell_) {
    return;
  }
  treeChanged();
  entriesChanged();
  typeCell_ = static_cast<std::int8_t>(kind);
  colCell_ = kind == 1 ? std::make_shared<CellList>() : nullptr;
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
  child->message()->ChangeTraduction(Message, 1);
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
    const std::int32_t last = Global_Util::NbLangues();
    // From the present count on, as in every extension: one factor more than the gap, and as many lefts as
    // widths whatever the lefts' own count is.
    if (cell.untouched_ >= 0) {
      cell.untouched_ = cell.untouched_ <= last ? last + 1 : cell.untouched_;
      return;
    }
    FactorList& widths = required(cell.ColWidth());
    for (std::int32_t i = widths.Count(); i <= last; ++i) {
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
