// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LateCall.h"

#include <algorithm>

namespace kob::testing {

HRESULT LateCall::invoke(WORD how) {
  std::vector<LPOLESTR> asked = {reinterpret_cast<LPOLESTR>(member_.data())};
  for (Text& name : names) {
    asked.push_back(reinterpret_cast<LPOLESTR>(name.data()));
  }
  std::vector<DISPID> ids(asked.size());
  const HRESULT found = object_->GetIDsOfNames(IID_NULL, asked.data(), static_cast<UINT>(asked.size()),
                                               LOCALE_NEUTRAL, ids.data());
  if (FAILED(found)) {
    return found;
  }
  std::vector<DISPID> named(ids.begin() + 1, ids.end());
  if (how == DISPATCH_PROPERTYPUT || how == DISPATCH_PROPERTYPUTREF) {
    named.push_back(DISPID_PROPERTYPUT);
  }
  std::reverse(named.begin(), named.end());
  std::vector<VARIANT> raw;
  std::transform(arguments.rbegin(), arguments.rend(), std::back_inserter(raw),
                 [](Variant& argument) { return *argument.get(); });
  DISPPARAMS parameters = {raw.data(), named.data(), static_cast<UINT>(raw.size()),
                           static_cast<UINT>(named.size())};
  EXCEPINFO exception = {};
  result = Variant();
  const HRESULT done =
      object_->Invoke(ids[0], IID_NULL, LOCALE_NEUTRAL, how, &parameters, result.get(), &exception, nullptr);
  number = exception.scode;
  source = take(exception.bstrSource);
  description = take(exception.bstrDescription);
  SysFreeString(exception.bstrHelpFile);
  return done;
}

Variant missing() {
  Variant value;
  value.get()->vt = VT_ERROR;
  value.get()->scode = DISP_E_PARAMNOTFOUND;
  return value;
}

Variant reference(VARIANT& variable) {
  Variant value;
  value.get()->vt = VT_BYREF | VT_VARIANT;
  value.get()->pvarVal = &variable;
  return value;
}

}  // namespace kob::testing
