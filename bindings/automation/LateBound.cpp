// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LateBound.h"

#include "VariantValue.h"

namespace kob::automation {

namespace {

constexpr LCID locale = LOCALE_USER_DEFAULT;

/// What a host leaves behind when it fails, and nobody reads.
class Exception {
 public:
  Exception() = default;
  Exception(const Exception&) = delete;
  Exception& operator=(const Exception&) = delete;
  ~Exception() {
    SysFreeString(told_.bstrSource);
    SysFreeString(told_.bstrDescription);
    SysFreeString(told_.bstrHelpFile);
  }
  EXCEPINFO* get() noexcept { return &told_; }

 private:
  EXCEPINFO told_{};
};

}  // namespace

IDispatchEx* LateBound::extended() const noexcept {
  // Many objects are only passed around, and never asked for a name.
  if (!isExtendedAsked_) {
    extended_ = query<IDispatchEx>(object_.get());
    isExtendedAsked_ = true;
  }
  return extended_.get();
}

HRESULT LateBound::find(const Bstr& name, DISPID& member) const {
  member = DISPID_UNKNOWN;
  HRESULT found = E_NOTIMPL;
  if (IDispatchEx* const byCase = extended()) {
    // Script objects answer this one only, and are asked in it to ignore the case.
    found = byCase->GetDispID(name.get(), fdexNameCaseInsensitive, &member);
  }
  if (FAILED(found) && found != DISP_E_UNKNOWNNAME) {
    LPOLESTR names = name.get();
    found = object_->GetIDsOfNames(IID_NULL, &names, 1, locale, &member);
  }
  return SUCCEEDED(found) && member == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : found;
}

std::optional<DISPID> LateBound::find(const Bstr& name) const {
  DISPID member = DISPID_UNKNOWN;
  return SUCCEEDED(find(name, member)) ? std::optional(member) : std::nullopt;
}

HRESULT LateBound::read(DISPID member, VARIANT& value) const {
  DISPPARAMS none{};
  const HRESULT done = call(member, DISPATCH_PROPERTYGET, none, &value);
  // Not both at once: a script's plain member cannot be called.
  return done == DISP_E_MEMBERNOTFOUND ? call(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, none, &value)
                                       : done;
}

HRESULT LateBound::readAt(DISPID member, std::int32_t index, VARIANT& value) const {
  VARIANT argument;
  putLong(argument, index);
  DISPPARAMS parameters{&argument, nullptr, 1, 0};
  const HRESULT done = call(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, parameters, &value);
  return done == DISP_E_MEMBERNOTFOUND ? call(member, DISPATCH_PROPERTYGET, parameters, &value) : done;
}

HRESULT LateBound::assign(DISPID member, VARIANT& value) const {
  DISPID named = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{&value, &named, 1, 1};
  return call(member, DISPATCH_PROPERTYPUT, parameters, nullptr);
}

HRESULT LateBound::assignAt(DISPID member, std::int32_t index, VARIANT& value) const {
  // The value first: arguments stand in reverse order.
  VARIANT arguments[2] = {value, {}};
  putLong(arguments[1], index);
  DISPID named = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{arguments, &named, 2, 1};
  return call(member, DISPATCH_PROPERTYPUT, parameters, nullptr);
}

HRESULT LateBound::call(DISPID member, WORD flags, DISPPARAMS& parameters, VARIANT* result) const {
  Exception exception;
  UINT wrongArgument = 0;
  const HRESULT done =
      object_->Invoke(member, IID_NULL, locale, flags, &parameters, result, exception.get(), &wrongArgument);
  if (FAILED(done)) {
    SetErrorInfo(0, nullptr);
  }
  return done;
}

bool LateBound::isRaised(HRESULT result) noexcept {
  constexpr auto reportedByScript = static_cast<HRESULT>(0x80020101L);
  return result == DISP_E_EXCEPTION || result == reportedByScript;
}

}  // namespace kob::automation
