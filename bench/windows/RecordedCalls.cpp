// SPDX-FileCopyrightText: The KOBTraduction authors
#include "RecordedCalls.h"

#include <tests/automation/hosts/scripting/Counted.h>

namespace kob::bench {

namespace {

using hosts::ComPtr;
using hosts::Variant;

class Stand final : public hosts::Counted<IDispatchEx> {
 public:
  Stand(RecordedCalls& calls, IDispatch* object) : calls_(calls), object_(object) {
    object->QueryInterface(__uuidof(IDispatchEx), extended_.outVoid());
  }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool known =
        id == IID_IUnknown || id == IID_IDispatch || (id == __uuidof(IDispatchEx) && extended_);
    return answer(known ? this : nullptr, object);
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    return object_->GetTypeInfoCount(count);
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
    return object_->GetTypeInfo(index, locale, info);
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) override {
    note(names[0]);
    return object_->GetIDsOfNames(IID_NULL, names, count, locale, ids);
  }
  HRESULT STDMETHODCALLTYPE GetDispID(BSTR name, DWORD flags, DISPID* id) override {
    note(name);
    return extended_->GetDispID(name, flags, id);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID reserved, LCID locale, WORD flags,
                                   DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                   UINT* wrongArgument) override {
    RecordedCall call{object_, extended_, {}, member, flags, {}};
    for (UINT i = 0; i < parameters->cArgs; ++i) {
      Variant copy;
      VariantCopy(copy.get(), &parameters->rgvarg[i]);
      call.arguments.push_back(std::move(copy));
    }
    calls_.add(std::move(call));
    const HRESULT done =
        object_->Invoke(member, reserved, locale, flags, parameters, result, exception, wrongArgument);
    if (SUCCEEDED(done) && result != nullptr && result->vt == VT_DISPATCH && result->pdispVal != nullptr) {
      const ComPtr<IDispatch> stand = calls_.stand(result->pdispVal);
      VariantClear(result);
      result->vt = VT_DISPATCH;
      result->pdispVal = stand.get();
      stand->AddRef();
    }
    return done;
  }
  // Nobody calls these.
  HRESULT STDMETHODCALLTYPE InvokeEx(DISPID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     IServiceProvider*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE DeleteMemberByName(BSTR, DWORD) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DeleteMemberByDispID(DISPID) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMemberProperties(DISPID, DWORD, DWORD*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMemberName(DISPID, BSTR*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNextDispID(DWORD, DISPID, DISPID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNameSpaceParent(IUnknown**) override { return E_NOTIMPL; }

 private:
  void note(const OLECHAR* name) {
    calls_.add({object_,
                extended_,
                Variant(TextView(reinterpret_cast<const char16_t*>(name))),
                DISPID_UNKNOWN,
                0,
                {}});
  }

  RecordedCalls& calls_;
  ComPtr<IDispatch> object_;
  ComPtr<IDispatchEx> extended_;
};

void lookUp(const RecordedCall& call) {
  DISPID id = DISPID_UNKNOWN;
  const BSTR name = call.name.get()->bstrVal;
  if (call.extended) {
    call.extended->GetDispID(name, fdexNameCaseInsensitive, &id);
  } else {
    LPOLESTR names = name;
    call.object->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
  }
}

void invoke(const RecordedCall& call) {
  constexpr UINT most = 2;
  VARIANT arguments[most];
  const auto count = static_cast<UINT>(call.arguments.size());
  for (UINT i = 0; i < count && i < most; ++i) {
    arguments[i] = *call.arguments[i].get();
  }
  const bool isPut = call.flags == DISPATCH_PROPERTYPUT;
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS parameters = {arguments, isPut ? &put : nullptr, count, isPut ? 1U : 0U};
  Variant result;
  EXCEPINFO exception = {};
  call.object->Invoke(call.member, IID_NULL, LOCALE_USER_DEFAULT, call.flags, &parameters,
                      isPut ? nullptr : result.get(), &exception, nullptr);
}

}  // namespace

RecordedCalls::~RecordedCalls() = default;

ComPtr<IDispatch> RecordedCalls::stand(IDispatch* object) {
  ComPtr<IUnknown> identity;
  object->QueryInterface(IID_IUnknown, identity.outVoid());
  ComPtr<IDispatch>& known = stands_[identity.get()];
  if (!known) {
    known = ComPtr<IDispatch>::adopt(new Stand(*this, object));
  }
  return known;
}

void RecordedCalls::replay() {
  for (const RecordedCall& call : calls_) {
    if (call.name.type() == VT_BSTR) {
      lookUp(call);
    } else {
      invoke(call);
    }
  }
}

}  // namespace kob::bench
