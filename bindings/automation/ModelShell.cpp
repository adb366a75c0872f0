// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ModelShell.h"

#include "HostValue.h"
#include "Shells.h"
#include "VariantValue.h"

namespace kob::automation {

namespace {

VARIANT_BOOL booleanFor(bool value) noexcept {
  return value ? VARIANT_TRUE : VARIANT_FALSE;
}

kob::KOBModeleTraduction& mustBeModel(const std::shared_ptr<kob::KOBModeleTraduction>& model) {
  if (model == nullptr) {
    throw Failure(FailureKind::ObjectNotSet);
  }
  return *model;
}

}  // namespace

void* ModelShell::otherPart(REFIID id) noexcept {
  return id == __uuidof(::IKOBVBPersistStream) ? static_cast<::IKOBVBPersistStream*>(&persistence_) : nullptr;
}

HRESULT ModelShell::get_Fichier(BSTR* value) {
  return guarded(L"Fichier", [&] {
    auto& result = out(value);
    result = newBstr(model_->Fichier());
  });
}

HRESULT ModelShell::put_Fichier(BSTR value) {
  return guarded(L"Fichier", [&] { model_->setFichier(viewOf(value)); });
}

HRESULT ModelShell::get_Racine(_KOBCellTraduction** value) {
  return guarded(L"Racine", [&] {
    auto& result = out(value);
    result = shellOf(model_->Racine()).detach();
  });
}

HRESULT ModelShell::get_NbLangues(LONG* value) {
  return guarded(L"NbLangues", [&] {
    auto& result = out(value);
    result = model_->NbLangues();
  });
}

HRESULT ModelShell::put_NbLangues(LONG value) {
  return guarded(L"NbLangues", [&] { model_->setNbLangues(value); });
}

HRESULT ModelShell::UpdateTestLangue(LONG langue) {
  return guarded(L"UpdateTestLangue", [&] { model_->UpdateTestLangue(langue); });
}

HRESULT ModelShell::ClearLangue(LONG langue) {
  return guarded(L"ClearLangue", [&] { model_->ClearLangue(langue); });
}

HRESULT ModelShell::UpdateWithTraductionModele(_KOBModeleTraduction* tradmodel, LONG langue) {
  return guarded(L"UpdateWithTraductionModele",
                 [&] { model_->UpdateWithTraductionModele(mustBeModel(modelOf(tradmodel)), langue); });
}

HRESULT ModelShell::UpdateWithForm(VARIANT dlg, BSTR module, VARIANT_BOOL onlyVisible,
                                   VARIANT OnlyContainer) {
  return guarded(L"UpdateWithForm", [&] {
    model_->UpdateWithForm(hostOf(dlg), viewOf(module), onlyVisible != VARIANT_FALSE, hostOf(OnlyContainer));
  });
}

HRESULT ModelShell::UpdateWithCtrl(VARIANT Ctrl, BSTR module) {
  return guarded(L"UpdateWithCtrl", [&] { model_->UpdateWithCtrl(hostOf(Ctrl), viewOf(module)); });
}

HRESULT ModelShell::TraduitDialog(VARIANT dlg, LONG langue, BSTR module, VARIANT_BOOL onlyVisible,
                                  VARIANT OnlyContainer) {
  return guarded(L"TraduitDialog", [&] {
    model_->TraduitDialog(hostOf(dlg), langue, viewOf(module), onlyVisible != VARIANT_FALSE,
                          hostOf(OnlyContainer));
  });
}

HRESULT ModelShell::TraduitControle(VARIANT Ctrl, LONG langue, BSTR module) {
  return guarded(L"TraduitControle", [&] { model_->TraduitControle(hostOf(Ctrl), langue, viewOf(module)); });
}

HRESULT ModelShell::AddModele(_KOBModeleTraduction* Modele) {
  return guarded(L"AddModele", [&] { model_->AddModele(mustBeModel(modelOf(Modele))); });
}

HRESULT ModelShell::GetCell(BSTR path, _KOBCellTraduction** cell) {
  return guarded(L"GetCell", [&] {
    auto& result = out(cell);
    result = shellOf(model_->GetCell(viewOf(path))).detach();
  });
}

HRESULT ModelShell::Save(BSTR Filename, VARIANT_BOOL* saved) {
  return guarded(L"Save", [&] {
    auto& result = out(saved);
    result = booleanFor(model_->Save(viewOf(Filename)));
  });
}

HRESULT ModelShell::Load(BSTR Filename, VARIANT_BOOL* loaded) {
  return guarded(L"Load", [&] {
    auto& result = out(loaded);
    result = booleanFor(model_->Load(viewOf(Filename)));
  });
}

HRESULT ModelShell::Show(LONG mode, BSTR path, VARIANT* empty) {
  return guarded(L"Show", [&] {
    VariantInit(&out(empty));
    model_->Show(mode, viewOf(path));
  });
}

HRESULT ModelShell::GetPath(VARIANT Ctrl, BSTR module, BSTR* path) {
  return guarded(L"GetPath", [&] {
    auto& result = out(path);
    result = newBstr(model_->GetPath(hostOf(Ctrl), viewOf(module)));
  });
}

HRESULT ModelShell::GetTraduction(BSTR path, LONG langue, BSTR nom, BSTR* text) {
  return guarded(L"GetTraduction", [&] {
    auto& result = out(text);
    result = newBstr(model_->GetTraduction(viewOf(path), langue, viewOf(nom)));
  });
}

}  // namespace kob::automation
