// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "PersistPart.h"
#include "Shell.h"

#include <KOBTraduction.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <memory>

namespace kob::automation {

/// A model as a host holds it.
class ModelShell final : public Shell<ModelShell, _KOBModeleTraduction> {
 public:
  static constexpr const wchar_t* className = L"KOBModeleTraduction";
  static constexpr unsigned long shellNumber = 1;
  static const CLSID& classId() noexcept { return __uuidof(::KOBModeleTraduction); }

  ModelShell() = default;
  ~ModelShell() = default;

  const std::shared_ptr<kob::KOBModeleTraduction>& part() const noexcept { return model_; }

  HRESULT STDMETHODCALLTYPE get_Fichier(BSTR* value) override;
  HRESULT STDMETHODCALLTYPE put_Fichier(BSTR value) override;
  HRESULT STDMETHODCALLTYPE get_Racine(_KOBCellTraduction** value) override;
  HRESULT STDMETHODCALLTYPE get_NbLangues(LONG* value) override;
  HRESULT STDMETHODCALLTYPE put_NbLangues(LONG value) override;
  HRESULT STDMETHODCALLTYPE UpdateTestLangue(LONG langue) override;
  HRESULT STDMETHODCALLTYPE ClearLangue(LONG langue) override;
  HRESULT STDMETHODCALLTYPE UpdateWithTraductionModele(_KOBModeleTraduction* tradmodel, LONG langue) override;
  HRESULT STDMETHODCALLTYPE UpdateWithForm(VARIANT dlg, BSTR module, VARIANT_BOOL onlyVisible,
                                           VARIANT OnlyContainer) override;
  HRESULT STDMETHODCALLTYPE UpdateWithCtrl(VARIANT Ctrl, BSTR module) override;
  HRESULT STDMETHODCALLTYPE TraduitDialog(VARIANT dlg, LONG langue, BSTR module, VARIANT_BOOL onlyVisible,
                                          VARIANT OnlyContainer) override;
  HRESULT STDMETHODCALLTYPE TraduitControle(VARIANT Ctrl, LONG langue, BSTR module) override;
  HRESULT STDMETHODCALLTYPE AddModele(_KOBModeleTraduction* Modele) override;
  HRESULT STDMETHODCALLTYPE GetCell(BSTR path, _KOBCellTraduction** cell) override;
  HRESULT STDMETHODCALLTYPE Save(BSTR Filename, VARIANT_BOOL* saved) override;
  HRESULT STDMETHODCALLTYPE Load(BSTR Filename, VARIANT_BOOL* loaded) override;
  HRESULT STDMETHODCALLTYPE Show(LONG mode, BSTR path, VARIANT* empty) override;
  HRESULT STDMETHODCALLTYPE GetPath(VARIANT Ctrl, BSTR module, BSTR* path) override;
  HRESULT STDMETHODCALLTYPE GetTraduction(BSTR path, LONG langue, BSTR nom, BSTR* text) override;

 protected:
  void* otherPart(REFIID id) noexcept override;

 private:
  std::shared_ptr<kob::KOBModeleTraduction> model_ = std::make_shared<kob::KOBModeleTraduction>();
  PersistPart persistence_{static_cast<_KOBModeleTraduction&>(*this), className, *model_};
};

}  // namespace kob::automation
