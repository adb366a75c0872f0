// SPDX-FileCopyrightText: The KOBTraduction authors
#include "CellShell.h"

#include "Shells.h"
#include "VariantValue.h"

#include <utility>

namespace kob::automation {

CellShell::CellShell(std::shared_ptr<kob::KOBCellTraduction> cell)
    : cell_(std::move(cell)), persistence_(static_cast<_KOBCellTraduction&>(*this), className, *cell_) {
  apartment().add(cell_.get(), static_cast<_KOBCellTraduction&>(*this));
}

CellShell::~CellShell() {
  apartment().remove(cell_.get());
}

void* CellShell::otherPart(REFIID id) noexcept {
  return id == __uuidof(::IKOBVBPersistStream) ? static_cast<::IKOBVBPersistStream*>(&persistence_) : nullptr;
}

HRESULT CellShell::get_nom(BSTR* value) {
  return guarded(L"nom", [&] {
    auto& result = out(value);
    result = newBstr(cell_->nom());
  });
}

HRESULT CellShell::put_nom(BSTR value) {
  return guarded(L"nom", [&] { cell_->setnom(viewOf(value)); });
}

HRESULT CellShell::get_Alias(BSTR* value) {
  return guarded(L"Alias", [&] {
    auto& result = out(value);
    result = newBstr(cell_->Alias());
  });
}

HRESULT CellShell::put_Alias(BSTR value) {
  return guarded(L"Alias", [&] { cell_->setAlias(viewOf(value)); });
}

HRESULT CellShell::get_parentcell(_KOBCellTraduction** value) {
  return guarded(L"parentcell", [&] {
    auto& result = out(value);
    result = shellOf(cell_->parentcell()).detach();
  });
}

HRESULT CellShell::putref_parentcell(_KOBCellTraduction* value) {
  return guarded(L"parentcell", [&] { cell_->setparentcell(cellOf(value)); });
}

HRESULT CellShell::get_ColCell(_KOBCollection** value) {
  return guarded(L"ColCell", [&] {
    auto& result = out(value);
    result = shellOf(cell_->ColCell()).detach();
  });
}

HRESULT CellShell::putref_ColCell(_KOBCollection* value) {
  return guarded(L"ColCell", [&] { cell_->setColCell(cellListOf(value)); });
}

HRESULT CellShell::get_Traduction(_KOBTraductionObj** value) {
  return guarded(L"Traduction", [&] {
    auto& result = out(value);
    result = shellOf(cell_->Traduction()).detach();
  });
}

HRESULT CellShell::putref_Traduction(_KOBTraductionObj* value) {
  return guarded(L"Traduction", [&] { cell_->setTraduction(entryOf(value)); });
}

HRESULT CellShell::get_ColTraduction(_KOBCollection** value) {
  return guarded(L"ColTraduction", [&] {
    auto& result = out(value);
    result = shellOf(cell_->ColTraduction()).detach();
  });
}

HRESULT CellShell::putref_ColTraduction(_KOBCollection* value) {
  return guarded(L"ColTraduction", [&] { cell_->setColTraduction(entryListOf(value)); });
}

HRESULT CellShell::get_ColLeft(_KOBCollection** value) {
  return guarded(L"ColLeft", [&] {
    auto& result = out(value);
    result = shellOf(cell_->ColLeft()).detach();
  });
}

HRESULT CellShell::putref_ColLeft(_KOBCollection* value) {
  return guarded(L"ColLeft", [&] { cell_->setColLeft(factorListOf(value)); });
}

HRESULT CellShell::get_ColWidth(_KOBCollection** value) {
  return guarded(L"ColWidth", [&] {
    auto& result = out(value);
    result = shellOf(cell_->ColWidth()).detach();
  });
}

HRESULT CellShell::putref_ColWidth(_KOBCollection* value) {
  return guarded(L"ColWidth", [&] { cell_->setColWidth(factorListOf(value)); });
}

HRESULT CellShell::get_m_left(LONG* value) {
  return guarded(L"m_left", [&] {
    auto& result = out(value);
    result = cell_->m_left();
  });
}

HRESULT CellShell::put_m_left(LONG value) {
  return guarded(L"m_left", [&] { cell_->setm_left(value); });
}

HRESULT CellShell::get_m_width(LONG* value) {
  return guarded(L"m_width", [&] {
    auto& result = out(value);
    result = cell_->m_width();
  });
}

HRESULT CellShell::put_m_width(LONG value) {
  return guarded(L"m_width", [&] { cell_->setm_width(value); });
}

HRESULT CellShell::get_TypeFeuille(LONG* value) {
  return guarded(L"TypeFeuille", [&] {
    auto& result = out(value);
    result = cell_->TypeFeuille();
  });
}

HRESULT CellShell::put_TypeFeuille(LONG value) {
  return guarded(L"TypeFeuille", [&] { cell_->setTypeFeuille(value); });
}

HRESULT CellShell::get_TypeCell(LONG* value) {
  return guarded(L"TypeCell", [&] {
    auto& result = out(value);
    result = cell_->TypeCell();
  });
}

HRESULT CellShell::put_TypeCell(LONG value) {
  return guarded(L"TypeCell", [&] { cell_->setTypeCell(value); });
}

HRESULT CellShell::ChangeWidth(double width, LONG Index) {
  return guarded(L"ChangeWidth", [&] { cell_->ChangeWidth(width, Index); });
}

HRESULT CellShell::ChangeLeft(double left, LONG Index) {
  return guarded(L"ChangeLeft", [&] { cell_->ChangeLeft(left, Index); });
}

HRESULT CellShell::AddNoeuds(BSTR NomNoeud, VARIANT* erreur, BSTR AliasNoeud, _KOBCellTraduction** cell) {
  return guarded(L"AddNoeuds", [&] {
    auto& added = out(cell);
    std::int32_t code = 0;
    added = shellOf(cell_->AddNoeuds(viewOf(NomNoeud), &code, viewOf(AliasNoeud))).detach();
    if (code != 0) {
      assignLong(erreur, code);
    }
  });
}

HRESULT CellShell::AddMessage(BSTR NomMessage, BSTR Message, VARIANT* erreur, BSTR AliasMessage,
                              _KOBCellTraduction** cell) {
  return guarded(L"AddMessage", [&] {
    auto& added = out(cell);
    std::int32_t code = 0;
    added =
        shellOf(cell_->AddMessage(viewOf(NomMessage), viewOf(Message), &code, viewOf(AliasMessage))).detach();
    if (code != 0) {
      assignLong(erreur, code);
    }
  });
}

HRESULT CellShell::AddModele(_KOBModeleTraduction* Modele) {
  return guarded(L"AddModele", [&] {
    const std::shared_ptr<kob::KOBModeleTraduction> added = modelOf(Modele);
    if (added == nullptr) {
      throw Failure(FailureKind::ObjectNotSet);
    }
    cell_->AddModele(*added);
  });
}

}  // namespace kob::automation
