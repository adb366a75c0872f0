// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/engine/HostModes.h>
#include <kobtraduction/model/KOBCellTraduction.h>

namespace kob {

namespace {

using CellRef = std::shared_ptr<KOBCellTraduction>;

constexpr TextView captionEntry = u"Caption";
constexpr TextView toolTipEntry = u"ToolTip";

struct Texts {
  Text caption;
  Text toolTip;
};

/// Appends an entry for a text; none for an empty one.
void addEntry(const KOBCellTraduction& cell, TextView name, TextView text) {
  if (text.empty()) {
    return;
  }
  auto entry = std::make_shared<KOBTraductionObj>();
  entry->setnom(name);
  entry->ChangeTraduction(text, 1);
  mustBeSet(cell.entries()).Add(std::move(entry));
}

/// The first entry of a name, case ignored; none when there is none.
KOBTraductionObj* findEntry(const KOBCellTraduction& cell, TextView name) {
  for (const auto& entry : mustBeSet(cell.entries())) {
    if (equalUpper(mustBeSet(entry).nom(), name)) {
      return entry.get();
    }
  }
  return nullptr;
}

Text referenceText(const KOBTraductionObj* entry) {
  return entry == nullptr ? Text() : Text(entry->texts().Item(1));
}

Texts firstTexts(const KOBCellTraduction& cell) {
  return {referenceText(findEntry(cell, captionEntry)), referenceText(findEntry(cell, toolTipEntry))};
}

Texts lastTexts(const KOBCellTraduction& cell) {
  Texts texts;
  for (const auto& entry : mustBeSet(cell.entries())) {
    if (equalUpper(mustBeSet(entry).nom(), captionEntry)) {
      texts.caption = referenceText(entry.get());
    } else if (equalUpper(entry->nom(), toolTipEntry)) {
      texts.toolTip = referenceText(entry.get());
    }
  }
  return texts;
}

CellRef makeControl(TextView name, TextView alias, TextView caption, TextView toolTip, std::int32_t left,
                    std::int32_t width) {
  CellRef cell = KOBCellTraduction::createControl();
  cell->setm_left(left);
  cell->setm_width(width);
  cell->setnom(name);
  cell->setAlias(alias);
  addEntry(*cell, captionEntry, caption);
  addEntry(*cell, toolTipEntry, toolTip);
  return cell;
}

/// The control's own context cell, put in its place among the children of the control's cell.
CellRef insertContext(KOBCellTraduction& control, TextView contexte, TextView caption, TextView toolTip,
                      std::int32_t left, std::int32_t width) {
  CellRef cell = makeControl(contexte, contexte, caption, toolTip, left, width);
  mustBeSet(control.ColCell()).insertSorted(cell);
  cell->setparentcell(control.shared_from_this());
  cell->setContexte(true);
  return cell;
}

void changeEntry(const KOBCellTraduction& cell, TextView name, TextView text) {
  if (text.empty()) {
    return;
  }
  if (KOBTraductionObj* const entry = findEntry(cell, name)) {
    entry->ChangeTraduction(text, 1);
  } else {
    addEntry(cell, name, text);
  }
}

CellRef changeTarget(KOBCellTraduction& target, TextView caption, TextView toolTip, std::int32_t left,
                     std::int32_t width) {
  target.setm_left(left);
  target.setm_width(width);
  changeEntry(target, captionEntry, caption);
  changeEntry(target, toolTipEntry, toolTip);
  return target.shared_from_this();
}

bool agreesToChange(const Text& subject, const Texts& old, TextView caption, TextView toolTip) {
  constexpr TextView newLine = u"\r\n";
  constexpr TextView arrow = u"  ->  ";
  Text question = subject + u" existe déja";
  question.append(newLine).append(u"Voulez vous le modifier?").append(newLine);
  question.append(old.caption).append(arrow).append(caption).append(newLine);
  question.append(old.toolTip).append(arrow).append(toolTip);
  return Global_Util::messageBoxes().question(question);
}

/// Whether a cell that holds `old` is to be given the new texts. The person is asked only when both a caption
/// and a tool tip are recorded: with one of them missing, the cell is taken to be unfinished and is changed
/// silently.
bool isToBeChanged(const Text& subject, const Texts& old, TextView caption, TextView toolTip) {
  if (old.toolTip == toolTip && old.caption == caption) {
    return false;
  }
  const bool isComplete = !old.caption.empty() && !old.toolTip.empty();
  return !isComplete || agreesToChange(subject, old, caption, toolTip);
}

}  // namespace

CellRef KOBCellTraduction::AddCtrl(TextView nom, TextView tooltip, TextView caption, std::int32_t left,
                                   std::int32_t width, std::int32_t& erreur, TextView alias,
                                   TextView contexte) {
  erreur = 0;
  if (typeCell_ == 2) {
    setTypeCell(1);
  }
  CellRef known = GetCell(nom);
  if (known == nullptr && !contexte.empty()) {
    std::int32_t ignored = 0;
    const CellRef node = AddNoeuds(nom, &ignored, {});
    CellRef cell = makeControl(contexte, contexte, caption, tooltip, left, width);
    mustBeSet(mustBeSet(node).ColCell()).Add(cell);
    cell->setparentcell(node);
    cell->setContexte(true);
    return cell;
  }
  if (known == nullptr) {
    CellRef cell = makeControl(nom, alias.empty() ? nom : alias, caption, tooltip, left, width);
    children().insertSorted(cell);
    cell->setparentcell(shared_from_this());
    return cell;
  }
  if (known->typeFeuille_ == 1 && known->typeCell_ == 2) {
    erreur = -3;
    return nullptr;
  }
  if (contexte.empty()) {
    if (known->typeFeuille_ == 2) {
      erreur = -4;
      return nullptr;
    }
    if (known->typeFeuille_ == 0) {
      known->setTypeFeuille(2);
    }
    known->left_ = left;
    known->width_ = width;
    addEntry(*known, captionEntry, caption);
    addEntry(*known, toolTipEntry, tooltip);
    return known;
  }
  if (known->typeCell_ == 2) {
    known->setTypeCell(1);
  }
  // Looked for among this cell's children and not among the control's own: existing models were grown with
  // this refusal, and a context named like a sibling control is refused by it.
  if (GetCell(contexte) != nullptr) {
    erreur = -5;
    return nullptr;
  }
  return insertContext(*known, contexte, caption, tooltip, left, width);
}

CellRef KOBCellTraduction::UpdateCtrl(TextView tooltip, TextView caption, std::int32_t left,
                                      std::int32_t width, std::int32_t& erreur, TextView /*alias*/,
                                      TextView contexte) {
  erreur = 0;
  if (typeCell_ == 2 && typeFeuille_ == 1) {
    erreur = -3;
    return nullptr;
  }
  if (contexte.empty()) {
    if (typeFeuille_ == 0) {
      setTypeFeuille(2);
    } else if (typeFeuille_ == 2 &&
               !isToBeChanged(u"Le Controle " + Text(nom()), firstTexts(*this), caption, tooltip)) {
      return nullptr;
    }
    return changeTarget(*this, caption, tooltip, left, width);
  }
  if (typeCell_ == 2) {
    setTypeCell(1);
  }
  if (const CellRef known = GetCell(contexte)) {
    if (known->typeFeuille_ == 1) {
      erreur = -6;
      return nullptr;
    }
    const Text subject = u"Le Contexte " + Text(contexte) + u" du controle " + Text(nom());
    if (!isToBeChanged(subject, firstTexts(*known), caption, tooltip)) {
      return nullptr;
    }
    return changeTarget(*known, caption, tooltip, left, width);
  }
  if (typeFeuille_ == 2) {
    const Texts own = lastTexts(*this);
    if (own.caption == caption && own.toolTip == tooltip) {
      return nullptr;
    }
  }
  return insertContext(*this, contexte, caption, tooltip, left, width);
}

}  // namespace kob
