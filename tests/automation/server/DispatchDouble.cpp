// SPDX-FileCopyrightText: The KOBTraduction authors
#include "DispatchDouble.h"

#include "VariantEnumerator.h"

#include <utility>

namespace kob::testing {

Variant Call::argument(UINT number) const {
  Variant copied;
  hosts::check(VariantCopyInd(copied.get(), &parameters_.rgvarg[parameters_.cArgs - 1 - number]),
               u"argument");
  return copied;
}

HRESULT Call::give(const Variant& value) const {
  return result_ != nullptr ? VariantCopy(result_, const_cast<VARIANT*>(value.get())) : S_OK;
}

HRESULT Call::giveRaw(const VARIANT& value) const {
  *result_ = value;
  return S_OK;
}

DispatchDouble::Property& DispatchDouble::property(TextView name) {
  for (Property& known : properties_) {
    if (equalUpper(known.name, name)) {
      return known;
    }
  }
  return properties_.emplace_back(Property{Text(name), {}, {}});
}

void DispatchDouble::set(TextView name, Variant value) {
  property(name).value = std::move(value);
}

void DispatchDouble::set(TextView name, const ComPtr<DispatchDouble>& object) {
  set(name, Variant(static_cast<IDispatch*>(object.get())));
}

void DispatchDouble::setFunction(TextView name, Member member) {
  property(name).member = std::move(member);
}

Variant DispatchDouble::value(TextView name) const {
  return const_cast<DispatchDouble*>(this)->property(name).value;
}

HRESULT DispatchDouble::QueryInterface(REFIID id, void** object) {
  return answer(id == IID_IUnknown || id == IID_IDispatch ? this : nullptr, object);
}

HRESULT DispatchDouble::GetTypeInfoCount(UINT* count) {
  *count = 0;
  return S_OK;
}

HRESULT DispatchDouble::GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** info) {
  *info = type_.get();
  if (type_) {
    type_->AddRef();
  }
  return type_ ? S_OK : E_NOTIMPL;
}

HRESULT DispatchDouble::GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* names, UINT /*count*/, LCID /*locale*/,
                                      DISPID* ids) {
  ++lookUps;
  if (FAILED(dead_)) {
    return dead_;
  }
  const TextView asked(reinterpret_cast<const char16_t*>(names[0]));
  for (std::size_t i = 0; i < properties_.size(); ++i) {
    if (equalUpper(properties_[i].name, asked)) {
      ids[0] = static_cast<DISPID>(i + 1);
      return S_OK;
    }
  }
  ids[0] = DISPID_UNKNOWN;
  return DISP_E_UNKNOWNNAME;
}

HRESULT DispatchDouble::Invoke(DISPID member, REFIID /*reserved*/, LCID /*locale*/, WORD flags,
                               DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                               UINT* /*wrongArgument*/) {
  if (FAILED(dead_)) {
    return dead_;
  }
  const Call call(flags, *parameters, result);
  if (member <= 0) {
    calls.emplace_back(member == DISPID_VALUE ? "item" : "enumerate");
    const auto found = special_.find(member);
    return found != special_.end() ? found->second(call) : DISP_E_MEMBERNOTFOUND;
  }
  Property& asked = properties_[static_cast<std::size_t>(member) - 1];
  calls.push_back((call.isPut() ? "put " : "get ") + toUtf8(asked.name));
  if (asked.member) {
    const HRESULT done = asked.member(call);
    if (done == DISP_E_EXCEPTION && exception != nullptr) {
      exception->bstrDescription = hosts::bstrOf(u"raised by the host");
      exception->scode = E_FAIL;
    }
    return done;
  }
  if (call.isPut()) {
    if (call.count() != 1) {
      return DISP_E_BADPARAMCOUNT;
    }
    asked.value = call.argument(0);
    return S_OK;
  }
  return call.count() == 0 ? call.give(asked.value) : DISP_E_MEMBERNOTFOUND;
}

ComPtr<DispatchDouble> makeDouble() {
  return ComPtr<DispatchDouble>::adopt(new DispatchDouble);
}

ComPtr<DispatchDouble> makeCollection(const std::vector<ComPtr<DispatchDouble>>& members, bool isEnumerated) {
  ComPtr<DispatchDouble> collection = makeDouble();
  collection->set(u"Count", Variant(static_cast<std::int32_t>(members.size())));
  collection->setDefault([members](const Call& call) {
    const std::int32_t position = call.argument(0).number();
    if (position < 1 || static_cast<std::size_t>(position) > members.size()) {
      return DISP_E_BADINDEX;
    }
    return call.give(Variant(static_cast<IDispatch*>(members[static_cast<std::size_t>(position) - 1].get())));
  });
  if (isEnumerated) {
    std::vector<Variant> items;
    items.reserve(members.size());
    for (const ComPtr<DispatchDouble>& member : members) {
      items.emplace_back(static_cast<IDispatch*>(member.get()));
    }
    collection->setEnumerator([items](const Call& call) { return giveEnumerator(call, items); });
  }
  return collection;
}

}  // namespace kob::testing
