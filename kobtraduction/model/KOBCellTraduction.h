// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/OneInside.h>
#include <kobtraduction/base/OrderedList.h>
#include <kobtraduction/base/StoredText.h>
#include <kobtraduction/base/Text.h>
#include <kobtraduction/model/CellList.h>
#include <kobtraduction/model/EntryChanges.h>
#include <kobtraduction/model/Factor.h>
#include <kobtraduction/model/HeldList.h>
#include <kobtraduction/model/KOBTraductionObj.h>
#include <kobtraduction/persistence/PersistStream.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace kob {

class HostObject;
class KOBModeleTraduction;
class ObjectPool;
using HostRef = std::shared_ptr<HostObject>;

using EntryList = OrderedList<std::shared_ptr<KOBTraductionObj>, WatchedEntries,
                              OneInside<std::shared_ptr<KOBTraductionObj>>>;
using FactorList = OrderedList<Factor>;
/// What a search has found, in the order found.
using CellResults = OrderedList<std::shared_ptr<KOBCellTraduction>>;

/// A node of the model's tree. A cell is a node with children or a leaf, and, independently of that, holds no
/// translation, one message, or the named translations of a host control with a left and a width factor per
/// language.
///
///   TypeCell    1 node (ColCell)   2 leaf (no ColCell)
///   TypeFeuille 0 none             1 message (Traduction)   2 control (ColTraduction, ColLeft, ColWidth)
///
/// The lists are shared references that may be none; a host may keep one, change it or assign another. A cell
/// owns what is below it; parentcell is a back reference and reads as none once the parent is gone. A cell
/// belongs to the thread that made it. Failures: see kobtraduction/base/Failure.h; a list that is none is
/// ObjectNotSet.
class KOB_EXPORT KOBCellTraduction final : public IKOBVBPersistStream,
                                           public std::enable_shared_from_this<KOBCellTraduction> {
  struct Key {};

 public:
  /// A leaf holding one message with one empty text per language.
  static std::shared_ptr<KOBCellTraduction> create();
  /// The same, in the pool's room.
  static std::shared_ptr<KOBCellTraduction> createIn(ObjectPool& pool);
  /// Called by create() only.
  explicit KOBCellTraduction(Key);
  KOBCellTraduction(const KOBCellTraduction&) = delete;
  KOBCellTraduction& operator=(const KOBCellTraduction&) = delete;
  /// Releases what is below without recursion, however deep it is.
  ~KOBCellTraduction() override;

  /// The name by which the parent finds the cell, case ignored. The view lives until the name is changed.
  TextView nom() const noexcept { return nom_.text(); }
  void setnom(TextView name);
  /// A display name; AddNoeuds and AddMessage set it to nom when none is given.
  TextView Alias() const noexcept;
  void setAlias(TextView alias);
  std::shared_ptr<KOBCellTraduction> parentcell() const noexcept { return parentCell_.lock(); }
  void setparentcell(const std::shared_ptr<KOBCellTraduction>& parent) noexcept { parentCell_ = parent; }

  const std::shared_ptr<CellList>& ColCell() const noexcept { return colCell_; }
  void setColCell(std::shared_ptr<CellList> children) noexcept;
  std::shared_ptr<KOBTraductionObj> Traduction() const;
  void setTraduction(std::shared_ptr<KOBTraductionObj> entry);
  std::shared_ptr<EntryList> ColTraduction() const { return colTraduction_.share(weak_from_this().lock()); }
  void setColTraduction(std::shared_ptr<EntryList> entries) {
    entriesChanged();
    colTraduction_.assign(std::move(entries));
  }
  std::shared_ptr<FactorList> ColLeft() const;
  void setColLeft(std::shared_ptr<FactorList> factors);
  std::shared_ptr<FactorList> ColWidth() const;
  void setColWidth(std::shared_ptr<FactorList> factors);

  /// Whether the control can be positioned, not where: harvesting sets 1 (left greater than 0) or -1.
  std::int32_t m_left() const noexcept { return hasRareIndicators_ ? rare_->left : left_; }
  void setm_left(std::int32_t indicator) { setIndicators(indicator, m_width()); }
  std::int32_t m_width() const noexcept { return hasRareIndicators_ ? rare_->width : width_; }
  void setm_width(std::int32_t indicator) { setIndicators(m_left(), indicator); }

  /// Assigning a new kind discards what belonged to the old one; the current kind, or a value that is no
  /// kind, is ignored.
  std::int32_t TypeFeuille() const noexcept { return typeFeuille_; }
  void setTypeFeuille(std::int32_t kind);
  std::int32_t TypeCell() const noexcept { return typeCell_; }
  void setTypeCell(std::int32_t kind);

  /// Replaces one language's factor; an Index outside 1..language count is ignored.
  void ChangeWidth(double width, std::int32_t Index);
  void ChangeLeft(double left, std::int32_t Index);

  /// Adds a child node / a child message in the order of the upper-cased names; a leaf becomes a node first.
  /// Returns none and writes -2 to `erreur` when a child of that name exists; `erreur` may be null and is not
  /// written on success. An empty alias stands for the name.
  std::shared_ptr<KOBCellTraduction> AddNoeuds(TextView NomNoeud, std::int32_t* erreur = nullptr,
                                               TextView AliasNoeud = {});
  std::shared_ptr<KOBCellTraduction> AddMessage(TextView NomMessage, TextView Message,
                                                std::int32_t* erreur = nullptr, TextView AliasMessage = {});

  /// Puts the top-level cells of another model under this cell; both trees hold them afterwards, and their
  /// parent is this cell. A leaf becomes a node first. Fails with TypeMismatch when both sides have children,
  /// as the added cells have no text to be compared by, and with InvalidCall, unchanged, when this cell
  /// stands below one of the added ones.
  void AddModele(KOBModeleTraduction& Modele);

  // As an object that is saved with its model; defined in persistence/.
  TextView getProgID() const noexcept override;
  std::shared_ptr<ProgIdTable> getProgIdTable() override;
  void write(PersistStream& stream) override;
  void read(PersistStream& stream) override;

  // Internal: for the other classes and rooms of the component.

  /// Traduction and ColTraduction without taking a reference; null for none.
  KOBTraductionObj* message() const;
  EntryList* entries() const noexcept { return colTraduction_.get(); }
  /// Item `langue` of ColLeft / ColWidth; fails as reading it from there does.
  Factor leftFactor(std::int32_t langue) const;
  Factor widthFactor(std::int32_t langue) const;

  /// The cell holds translations that override a control's own in one context, or is the parent of such a
  /// cell.
  bool Contexte() const noexcept { return contexte_; }
  void setContexte(bool isContext) noexcept { contexte_ = isContext; }
  /// The names from below the root down to this cell, joined by "\"; ancestors named "RACINE" are left out.
  Text GetCellPath() const;
  /// The first child of that name, case ignored; none for a leaf. A damaged list shows
  /// "GetCell - KOBCellTraduction" and finds none.
  std::shared_ptr<KOBCellTraduction> GetCell(TextView name) const;
  /// GetCell without taking a reference; null when there is none.
  KOBCellTraduction* findCell(TextView name) const;
  void UpdateNbLangues();
  void UpdateTestLangue(std::int32_t langue);
  void ClearLangue(std::int32_t langue);
  /// The first step of the model's UpdateWithTraductionModele, for this cell and all below it.
  void UpdateCellWithModele(const KOBModeleTraduction& tradmodel, std::int32_t langue);
  /// Appends this cell and those below it, a cell before its children, when an entry's reference text
  /// contains `text`, case ignored / when an entry has no text in `langue`; each cell once however many of
  /// its entries do. An entry without an item 1 / `langue` fails with InvalidIndex; what was found before
  /// stays.
  void SearchString(TextView text, CellResults& results);
  void SearchNonTraduit(std::int32_t langue, CellResults& results);

  /// A leaf control cell without entries, and a node without translations.
  static std::shared_ptr<KOBCellTraduction> createControl();
  static std::shared_ptr<KOBCellTraduction> createNode();

  // Internal, defined in engine/.

  /// Records a control that the model does not hold yet, below this cell. Returns the cell that now holds the
  /// texts, or none with a code in `erreur` (0 when all went well, else -3 to -5).
  std::shared_ptr<KOBCellTraduction> AddCtrl(TextView nom, TextView tooltip, TextView caption,
                                             std::int32_t left, std::int32_t width, std::int32_t& erreur,
                                             TextView alias, TextView contexte);
  /// Brings this control's cell up to date, asking before a recorded text is overwritten. Returns the cell
  /// that now holds the texts, or none when nothing changed, the user declined or `erreur` tells why (-3,
  /// -6).
  std::shared_ptr<KOBCellTraduction> UpdateCtrl(TextView tooltip, TextView caption, std::int32_t left,
                                                std::int32_t width, std::int32_t& erreur, TextView alias,
                                                TextView contexte);
  /// Writes this cell's texts in `langue` and its factors onto a control. Never fails: what goes wrong in the
  /// model is told by "Erreur Traduit Controle".
  void TraduitCtrl(const HostRef& Ctrl, std::int32_t langue, TextView contexte, bool keepToolTip,
                   bool keepCaption) const;

 private:
  friend class CellList;
  friend class CellWalk;

  /// Makes a leaf a node; whether `name` is free among the children, else -2 in `erreur`.
  bool admits(TextView name, std::int32_t* erreur);
  void setIndicators(std::int32_t left, std::int32_t width);
  void rename(StoredText name);
  void clearTranslations() noexcept;
  void dropFactors() noexcept;
  /// What few cells have.
  struct Rare {
    StoredText alias;
    std::shared_ptr<FactorList> colLeft;
    std::shared_ptr<FactorList> colWidth;
    std::vector<CellList*> moreHolders;
    std::int32_t left = 0;
    std::int32_t width = 0;
  };
  Rare& rare() const;
  /// Makes what is only a number so far.
  void makeMessage() const;
  void makeFactors() const;
  Factor factor(std::shared_ptr<FactorList> Rare::*factors, std::int32_t langue) const;
  /// What a record holds of a node, and of a control cell.
  void writeChildren(PersistStream& stream) const;
  void writeControl(PersistStream& stream) const;
  void readNames(PersistStream& stream);
  void readControl(PersistStream& stream);
  void readFactors(PersistStream& stream);
  /// The children, or ObjectNotSet.
  CellList& children() const;
  /// A child made by AddNoeuds or AddMessage: named and put in its place.
  void insertChild(const std::shared_ptr<KOBCellTraduction>& child, TextView name, TextView alias);
  /// Whether grafting the model here would make this cell stand below itself.
  bool wouldHoldItself(const KOBModeleTraduction& added) const;
  void addHolder(CellList& list);
  void removeHolder(CellList& list) noexcept;

  StoredText nom_;
  std::weak_ptr<KOBCellTraduction> parentCell_;
  std::shared_ptr<CellList> colCell_;
  mutable std::shared_ptr<KOBTraductionObj> traduction_;
  HeldList<EntryList> colTraduction_;
  mutable std::unique_ptr<Rare> rare_;
  /// The lists that hold this cell, once for each time, to be told of a new name; nearly always one, the
  /// others are in rare_.
  CellList* holder_ = nullptr;
  /// When not negative: what the cell was given with its kind is as it was then, and not made yet, for so
  /// many languages: the entry of a message without texts, or both factor lists of a control, all 1.
  mutable std::int32_t untouched_;
  std::int8_t typeCell_ : 4;
  std::int8_t typeFeuille_ : 4;
  /// What harvesting sets; other indicators are in rare_, then both.
  std::int8_t left_ = 0;
  std::int8_t width_ = 0;
  bool hasRareIndicators_ : 1 = false;
  bool isAliasNom_ : 1 = false;
  bool contexte_ : 1 = false;
  /// A walk is inside this cell.
  bool isWalked_ : 1 = false;
};

}  // namespace kob
