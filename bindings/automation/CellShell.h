// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "PersistPart.h"
#include "Shell.h"

#include <KOBTraduction.h>
#include <kobtraduction/model/KOBCellTraduction.h>

#include <memory>

namespace kob::automation {

/// A cell as a host holds it.
class CellShell final : public Shell<CellShell, _KOBCellTraduction> {
 public:
  static constexpr const wchar_t* className = L"KOBCellTraduction";
  static constexpr unsigned long shellNumber = 2;
  static const CLSID& classId() noexcept { return __uuidof(::KOBCellTraduction); }

  explicit CellShell(std::shared_ptr<kob::KOBCellTraduction> cell);
  ~CellShell();

  const std::shared_ptr<kob::KOBCellTraduction>& part() const noexcept { return cell_; }

  HRESULT STDMETHODCALLTYPE get_nom(BSTR* value) override;
  HRESULT STDMETHODCALLTYPE put_nom(BSTR value) override;
  HRESULT STDMETHODCALLTYPE get_Alias(BSTR* value) override;
  HRESULT STDMETHODCALLTYPE put_Alias(BSTR value) override;
  HRESULT STDMETHODCALLTYPE get_parentcell(_KOBCellTraduction** value) override;
  HRESULT STDMETHODCALLTYPE putref_parentcell(_KOBCellTraduction* value) override;
  HRESULT STDMETHODCALLTYPE get_ColCell(_KOBCollection** value) override;
  HRESULT STDMETHODCALLTYPE putref_ColCell(_KOBCollection* value) override;
  HRESULT STDMETHODCALLTYPE get_Traduction(_KOBTraductionObj** value) override;
  HRESULT STDMETHODCALLTYPE putref_Traduction(_KOBTraductionObj* value) override;
  HRESULT STDMETHODCALLTYPE get_ColTraduction(_KOBCollection** value) override;
  HRESULT STDMETHODCALLTYPE putref_ColTraduction(_KOBCollection* value) override;
  HRESULT STDMETHODCALLTYPE get_ColLeft(_KOBCollection** value) override;
  HRESULT STDMETHODCALLTYPE putref_ColLeft(_KOBCollection* value) override;
  HRESULT STDMETHODCALLTYPE get_ColWidth(_KOBCollection** value) override;
  HRESULT STDMETHODCALLTYPE putref_ColWidth(_KOBCollection* value) override;
  HRESULT STDMETHODCALLTYPE get_m_left(LONG* value) override;
  HRESULT STDMETHODCALLTYPE put_m_left(LONG value) override;
  HRESULT STDMETHODCALLTYPE get_m_width(LONG* value) override;
  HRESULT STDMETHODCALLTYPE put_m_width(LONG value) override;
  HRESULT STDMETHODCALLTYPE get_TypeFeuille(LONG* value) override;
  HRESULT STDMETHODCALLTYPE put_TypeFeuille(LONG value) override;
  HRESULT STDMETHODCALLTYPE get_TypeCell(LONG* value) override;
  HRESULT STDMETHODCALLTYPE put_TypeCell(LONG value) override;
  HRESULT STDMETHODCALLTYPE ChangeWidth(double width, LONG Index) override;
  HRESULT STDMETHODCALLTYPE ChangeLeft(double left, LONG Index) override;
  HRESULT STDMETHODCALLTYPE AddNoeuds(BSTR NomNoeud, VARIANT* erreur, BSTR AliasNoeud,
                                      _KOBCellTraduction** cell) override;
  HRESULT STDMETHODCALLTYPE AddMessage(BSTR NomMessage, BSTR Message, VARIANT* erreur, BSTR AliasMessage,
                                       _KOBCellTraduction** cell) override;
  HRESULT STDMETHODCALLTYPE AddModele(_KOBModeleTraduction* Modele) override;

 protected:
  void* otherPart(REFIID id) noexcept override;

 private:
  std::shared_ptr<kob::KOBCellTraduction> cell_;
  PersistPart persistence_;
};

}  // namespace kob::automation
