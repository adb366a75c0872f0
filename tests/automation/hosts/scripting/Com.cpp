// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Com.h"

#include <dispex.h>
#include <oleauto.h>

#include <algorithm>

namespace kob::hosts {

namespace {

const OLECHAR* wide(const char16_t* text) {
  return reinterpret_cast<const OLECHAR*>(text);
}

Variant converted(const Variant& from, VARTYPE type) {
  Variant to;
  check(VariantChangeTypeEx(to.get(), const_cast<VARIANT*>(from.get()), LOCALE_INVARIANT, VARIANT_ALPHABOOL,
                            type),
        u"a value does not convert");
  return to;
}

Variant invoke(IDispatch* object, TextView name, WORD how, std::vector<Variant> arguments) {
  if (object == nullptr) {
    throw ComError{E_POINTER, E_POINTER, u"nothing has no " + Text(name)};
  }
  DISPID id = 0;
  check(memberId(object, name, id), name);
  std::reverse(arguments.begin(), arguments.end());
  std::vector<VARIANT> raw;
  std::transform(arguments.begin(), arguments.end(), std::back_inserter(raw),
                 [](Variant& one) { return *one.get(); });
  DISPID putId = DISPID_PROPERTYPUT;
  const bool isPut = (how & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  DISPPARAMS parameters = {raw.data(), isPut ? &putId : nullptr, static_cast<UINT>(raw.size()),
                           isPut ? 1U : 0U};
  Variant result;
  EXCEPINFO exception = {};
  const HRESULT failure =
      object->Invoke(id, IID_NULL, LOCALE_NEUTRAL, how, &parameters, result.get(), &exception, nullptr);
  if (SUCCEEDED(failure)) {
    return result;
  }
  if (failure != DISP_E_EXCEPTION) {
    throw ComError{failure, failure, Text(name)};
  }
  if (exception.pfnDeferredFillIn != nullptr) {
    exception.pfnDeferredFillIn(&exception);
  }
  const Text description = textOf(exception.bstrDescription);
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrHelpFile);
  throw ComError{failure, exception.scode, description};
}

}  // namespace

Variant::Variant(TextView text) {
  value_.vt = VT_BSTR;
  value_.bstrVal = bstrOf(text);
}

Variant::Variant(std::int32_t number) {
  value_.vt = VT_I4;
  value_.lVal = number;
}

Variant::Variant(double number) {
  value_.vt = VT_R8;
  value_.dblVal = number;
}

Variant::Variant(bool boolean) {
  value_.vt = VT_BOOL;
  value_.boolVal = boolean ? VARIANT_TRUE : VARIANT_FALSE;
}

Variant::Variant(IDispatch* object) {
  value_.vt = VT_DISPATCH;
  value_.pdispVal = object;
  if (object != nullptr) {
    object->AddRef();
  }
}

Variant::Variant(const Variant& other) {
  VariantInit(&value_);
  check(VariantCopyInd(&value_, const_cast<VARIANT*>(other.get())), u"a value cannot be copied");
}

Text Variant::text() const {
  const Variant as = converted(*this, VT_BSTR);
  BSTR held = as.get()->bstrVal;
  return Text(reinterpret_cast<const char16_t*>(held), SysStringLen(held));
}

std::int32_t Variant::number() const {
  return converted(*this, VT_I4).get()->lVal;
}

bool Variant::boolean() const {
  return converted(*this, VT_BOOL).get()->boolVal != VARIANT_FALSE;
}

ComPtr<IDispatch> Variant::object() const {
  Variant direct(*this);
  if (direct.type() == VT_DISPATCH) {
    return direct.get()->pdispVal;
  }
  ComPtr<IDispatch> object;
  if (direct.type() == VT_UNKNOWN && direct.get()->punkVal != nullptr) {
    direct.get()->punkVal->QueryInterface(IID_IDispatch, object.outVoid());
  }
  return object;
}

void check(HRESULT result, TextView what) {
  if (FAILED(result)) {
    throw ComError{result, result, Text(what)};
  }
}

HRESULT memberId(IDispatch* object, TextView name, DISPID& id) {
  Text terminated(name);
  ComPtr<IDispatchEx> extended;
  if (SUCCEEDED(object->QueryInterface(__uuidof(IDispatchEx), extended.outVoid()))) {
    BSTR text = bstrOf(name);
    const HRESULT result = extended->GetDispID(text, fdexNameCaseInsensitive, &id);
    SysFreeString(text);
    return result;
  }
  auto* letters = const_cast<OLECHAR*>(wide(terminated.c_str()));
  return object->GetIDsOfNames(IID_NULL, &letters, 1, LOCALE_NEUTRAL, &id);
}

Variant get(IDispatch* object, TextView name, const std::vector<Variant>& index) {
  return invoke(object, name, DISPATCH_PROPERTYGET, index);
}

Variant call(IDispatch* object, TextView name, const std::vector<Variant>& arguments) {
  return invoke(object, name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments);
}

void put(IDispatch* object, TextView name, const Variant& value, const std::vector<Variant>& index) {
  std::vector<Variant> arguments = index;
  arguments.push_back(value);
  invoke(object, name, value.type() == VT_DISPATCH ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT,
         arguments);
}

Text textOf(const wchar_t* text) {
  return text == nullptr ? Text() : Text(reinterpret_cast<const char16_t*>(text));
}

BSTR bstrOf(TextView text) {
  return SysAllocStringLen(wide(text.data()), static_cast<UINT>(text.size()));
}

}  // namespace kob::hosts
