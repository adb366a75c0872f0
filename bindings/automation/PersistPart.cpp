// SPDX-FileCopyrightText: The KOBTraduction authors
#include "PersistPart.h"

#include "Dispatching.h"
#include "Errors.h"
#include "HostStream.h"
#include "Shells.h"
#include "VariantValue.h"

namespace kob::automation {

namespace {

/// As Shell::guarded, for a part.
template <class Call>
HRESULT guarded(IUnknown& whole, const wchar_t* className, const wchar_t* member, Call call) noexcept {
  const ComRef<IUnknown> kept(&whole);
  try {
    call();
    return S_OK;
  } catch (...) {
    return reportFailure(className, member);
  }
}

}  // namespace

HRESULT PersistPart::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) {
    return E_POINTER;
  }
  *count = 1;
  return S_OK;
}

HRESULT PersistPart::GetTypeInfo(UINT index, LCID /*locale*/, ITypeInfo** info) {
  return typeInfo(__uuidof(::IKOBVBPersistStream), index, info);
}

HRESULT PersistPart::GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* names, UINT count, LCID /*locale*/,
                                   DISPID* ids) {
  return idsOfNames(__uuidof(::IKOBVBPersistStream), names, count, ids);
}

HRESULT PersistPart::Invoke(DISPID member, REFIID /*reserved*/, LCID /*locale*/, WORD flags,
                            DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                            UINT* wrongArgument) {
  return invoke(__uuidof(::IKOBVBPersistStream), static_cast<::IKOBVBPersistStream*>(this), member, flags,
                parameters, result, exception, wrongArgument);
}

HRESULT PersistPart::getProgID(VARIANT* progId) {
  return guarded(whole_, className_, L"getProgID", [&] { putText(out(progId), object_.getProgID()); });
}

HRESULT PersistPart::getProgIdTable(_KOBCollection** table) {
  return guarded(whole_, className_, L"getProgIdTable", [&] {
    auto& result = out(table);
    result = shellOf(object_.getProgIdTable()).detach();
  });
}

HRESULT PersistPart::read(IDispatch* stream) {
  return guarded(whole_, className_, L"read", [&] {
    HostStream records(stream);
    object_.read(records);
  });
}

HRESULT PersistPart::write(IDispatch* stream) {
  return guarded(whole_, className_, L"write", [&] {
    HostStream records(stream);
    object_.write(records);
  });
}

}  // namespace kob::automation
