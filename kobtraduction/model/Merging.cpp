// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/model/CellWalk.h>
#include <kobtraduction/model/Entries.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraduction/model/PathTwin.h>

#include <unordered_set>
#include <vector>

namespace kob {

namespace {

/// A cell taken as text. It has none, so this always fails: a child can only be compared by the name that it
/// has in this operation, and hosts rely on the graft being refused where there is something to compare with.
TextView textValue(const KOBCellTraduction& /*cell*/) {
  throw Failure(FailureKind::TypeMismatch);
}

/// Whether `sought` stands below `top` or is `top`. Damaged lists are passed over, and every cell is looked
/// at once.
bool holds(KOBCellTraduction& top, const KOBCellTraduction& sought) {
  std::unordered_set<const KOBCellTraduction*> met{&top};
  std::vector<const KOBCellTraduction*> open{&top};
  while (!open.empty()) {
    const KOBCellTraduction* const cell = open.back();
    open.pop_back();
    if (cell == &sought) {
      return true;
    }
    if (cell->ColCell() == nullptr) {
      continue;
    }
    for (const auto& child : *cell->ColCell()) {
      if (child != nullptr && met.insert(child.get()).second) {
        open.push_back(child.get());
      }
    }
  }
  return false;
}

/// Copies texts into gaps. What is there already is never overwritten.
void fill(KOBTraductionObj& target, const KOBTraductionObj& source, std::int32_t langue) {
  if (langue == -1) {
    // The source is only read from the first gap on.
    for (std::int32_t i = 2, last = Global_Util::NbLangues(); i <= last; ++i) {
      if (textsOf(target).Item(i).empty()) {
        textsOf(target).FillGaps(textsOf(source), i, last);
        return;
      }
    }
    return;
  }
  if (!textsOf(target).Item(langue).empty()) {
    return;
  }
  const TextView text = textsOf(source).Item(langue);
  if (!text.empty()) {
    target.ChangeTraduction(text, langue);
  }
}

/// Fills a leaf from the one at its path in the other model; leaves of different kinds are left alone, and so
/// are translations whose names differ in a letter's case.
void fillLeaf(const KOBCellTraduction& target, const KOBCellTraduction& source, std::int32_t langue) {
  if (target.TypeFeuille() != source.TypeFeuille()) {
    return;
  }
  if (target.TypeFeuille() == 1) {
    KOBTraductionObj& own = required(target.message());
    const KOBTraductionObj& other = required(source.message());
    if (own.nom() == other.nom()) {
      fill(own, other, langue);
    }
    return;
  }
  for (const auto& other : required(source.entries())) {
    for (const auto& own : required(target.entries())) {
      if (required(own).nom() == required(other).nom()) {
        fill(*own, *other, langue);
      }
    }
  }
}

}  // namespace

void KOBCellTraduction::AddModele(KOBModeleTraduction& Modele) {
  if (wouldHoldItself(Modele)) {
    throw Failure(FailureKind::InvalidCall);
  }
  // The two counts differ when a model counts its own languages; as long as both are the thread's, neither
  // holds.
  const std::int32_t languages = Modele.NbLangues();
  if (Global_Util::NbLangues() < languages) {
    Global_Util::messageBoxes().notice(u"Impossible : Le modele ajouté contient plus de langues");
    return;
  }
  if (Global_Util::NbLangues() > languages) {
    Modele.setNbLangues(Global_Util::NbLangues());
  }
  if (typeCell_ == 2) {
    setTypeCell(1);
  }
  const std::shared_ptr<CellList> added = Modele.Racine()->ColCell();
  for (const auto& child : required(added)) {
    for (const auto& own : children()) {
      // Read first: a child that is nothing fails before what it is compared with does.
      const TextView name = required(own).nom();
      if (name == upper(textValue(required(child)))) {
        Global_Util::messageBoxes().notice(
            u"Impossible : Le modèle ajouter Contient une traduction qui existe déja dans le modèle courant");
        break;
      }
    }
  }
  // Who comes here has no children to be put in order with. The added ones stay in their model: from now on
  // both trees hold them.
  for (const auto& child : *added) {
    children().Add(child);
    required(child).setparentcell(shared_from_this());
  }
}

bool KOBCellTraduction::wouldHoldItself(const KOBModeleTraduction& added) const {
  // Most cells that receive a model are roots, in nobody's list. And where there already are children,
  // nothing will be added.
  const bool receives = typeCell_ == 2 || (colCell_ != nullptr && colCell_->Count() == 0);
  return receives && holder_ != nullptr && added.Racine().get() != this && holds(*added.Racine(), *this);
}

void KOBCellTraduction::UpdateCellWithModele(const KOBModeleTraduction& tradmodel, std::int32_t langue) {
  PathTwin twins(tradmodel);
  CellWalk::each(*this, [&](KOBCellTraduction& cell) {
    if (cell.TypeFeuille() == 0) {
      twins.pass(cell);
    } else if (const KOBCellTraduction* const twin = twins.find(cell)) {
      fillLeaf(cell, *twin, langue);
    }
  });
}

void KOBModeleTraduction::AddModele(KOBModeleTraduction& Modele) {
  racine_->AddModele(Modele);
}

void KOBModeleTraduction::UpdateWithTraductionModele(const KOBModeleTraduction& tradmodel,
                                                     std::int32_t langue) {
  racine_->UpdateCellWithModele(tradmodel, langue);
  CompleteIdentiques();
}

}  // namespace kob
