// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Dispatching.h"

#include "TypeLibrary.h"

namespace kob::automation {

HRESULT typeInfo(REFIID id, UINT index, ITypeInfo** info) noexcept {
  if (info == nullptr) {
    return E_POINTER;
  }
  *info = nullptr;
  if (index != 0) {
    return DISP_E_BADINDEX;
  }
  *info = ComRef<ITypeInfo>(typeInfoOf(id)).detach();
  return *info != nullptr ? S_OK : TYPE_E_CANTLOADLIBRARY;
}

HRESULT idsOfNames(REFIID id, LPOLESTR* names, UINT count, DISPID* ids) noexcept {
  ITypeInfo* const info = typeInfoOf(id);
  return info != nullptr ? DispGetIDsOfNames(info, names, count, ids) : TYPE_E_CANTLOADLIBRARY;
}

HRESULT invoke(REFIID id, void* object, DISPID member, WORD flags, DISPPARAMS* parameters, VARIANT* result,
               EXCEPINFO* exception, UINT* wrongArgument) noexcept {
  // What an earlier call left must not pass for this one's.
  SetErrorInfo(0, nullptr);
  ITypeInfo* const info = typeInfoOf(id);
  if (info == nullptr) {
    return TYPE_E_CANTLOADLIBRARY;
  }
  constexpr WORD reading = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
  if ((flags & reading) != 0) {
    flags |= reading;
  }
  const auto attempt = [&](WORD as) {
    return DispInvoke(object, info, member, as, parameters, result, exception, wrongArgument);
  };
  HRESULT done = attempt(flags);
  if (done == DISP_E_MEMBERNOTFOUND && flags == DISPATCH_PROPERTYPUT) {
    // Some hosts write `cell.ColCell = list` for what others write `Set cell.ColCell = list`.
    done = attempt(DISPATCH_PROPERTYPUTREF);
  }
  // An argument that is an object of another class than the member takes.
  return done == E_NOINTERFACE ? DISP_E_TYPEMISMATCH : done;
}

}  // namespace kob::automation
