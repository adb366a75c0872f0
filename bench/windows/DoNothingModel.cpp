// SPDX-FileCopyrightText: The KOBTraduction authors
#include "DoNothingModel.h"

#include <tests/automation/hosts/scripting/Counted.h>

#include <KOBTraduction.h>

namespace kob::bench {

namespace {

using hosts::ComPtr;

class DoNothingModel final : public hosts::Counted<_KOBModeleTraduction> {
 public:
  explicit DoNothingModel(ComPtr<ITypeInfo> type) : type_(std::move(type)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool known = id == IID_IUnknown || id == IID_IDispatch || id == __uuidof(_KOBModeleTraduction);
    return answer(known ? this : nullptr, object);
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** info) override {
    *info = type_.get();
    type_->AddRef();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* names, UINT count, LCID /*locale*/,
                                          DISPID* ids) override {
    return DispGetIDsOfNames(type_.get(), names, count, ids);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID /*reserved*/, LCID /*locale*/, WORD flags,
                                   DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                   UINT* wrongArgument) override {
    return DispInvoke(static_cast<_KOBModeleTraduction*>(this), type_.get(), member, flags, parameters,
                      result, exception, wrongArgument);
  }

  HRESULT STDMETHODCALLTYPE get_Fichier(BSTR* value) override { return none(value); }
  HRESULT STDMETHODCALLTYPE put_Fichier(BSTR /*value*/) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE get_Racine(_KOBCellTraduction** value) override { return none(value); }
  HRESULT STDMETHODCALLTYPE get_NbLangues(LONG* value) override { return none(value); }
  HRESULT STDMETHODCALLTYPE put_NbLangues(LONG /*value*/) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE UpdateTestLangue(LONG /*langue*/) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE ClearLangue(LONG /*langue*/) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE UpdateWithTraductionModele(_KOBModeleTraduction* /*model*/,
                                                       LONG /*langue*/) override {
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE UpdateWithForm(VARIANT /*dlg*/, BSTR /*module*/, VARIANT_BOOL /*onlyVisible*/,
                                           VARIANT /*onlyContainer*/) override {
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE UpdateWithCtrl(VARIANT /*ctrl*/, BSTR /*module*/) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE TraduitDialog(VARIANT /*dlg*/, LONG /*langue*/, BSTR /*module*/,
                                          VARIANT_BOOL /*onlyVisible*/, VARIANT /*onlyContainer*/) override {
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE TraduitControle(VARIANT /*ctrl*/, LONG /*langue*/, BSTR /*module*/) override {
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE AddModele(_KOBModeleTraduction* /*model*/) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetCell(BSTR /*path*/, _KOBCellTraduction** cell) override { return none(cell); }
  HRESULT STDMETHODCALLTYPE Save(BSTR /*name*/, VARIANT_BOOL* saved) override { return none(saved); }
  HRESULT STDMETHODCALLTYPE Load(BSTR /*name*/, VARIANT_BOOL* loaded) override { return none(loaded); }
  HRESULT STDMETHODCALLTYPE Show(LONG /*mode*/, BSTR /*path*/, VARIANT* /*empty*/) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetPath(VARIANT /*ctrl*/, BSTR /*module*/, BSTR* path) override {
    return none(path);
  }
  HRESULT STDMETHODCALLTYPE GetTraduction(BSTR /*path*/, LONG /*langue*/, BSTR /*nom*/, BSTR* text) override {
    return none(text);
  }

 private:
  template <class T>
  static HRESULT none(T* place) {
    *place = T();
    return S_OK;
  }

  ComPtr<ITypeInfo> type_;
};

}  // namespace

ComPtr<IDispatch> doNothingModel(const std::wstring& server) {
  ComPtr<ITypeLib> library;
  hosts::check(LoadTypeLibEx(server.c_str(), REGKIND_NONE, library.out()), u"type library");
  ComPtr<ITypeInfo> type;
  hosts::check(library->GetTypeInfoOfGuid(__uuidof(_KOBModeleTraduction), type.out()), u"interface");
  return ComPtr<IDispatch>::adopt(new DoNothingModel(std::move(type)));
}

}  // namespace kob::bench
