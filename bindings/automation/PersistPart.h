// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Base.h"

#include <KOBTraduction.h>
#include <kobtraduction/persistence/PersistStream.h>

namespace kob::automation {

/// IKOBVBPersistStream of an object, as a part of it: a dual interface of its own beside the object's.
class PersistPart final : public ::IKOBVBPersistStream {
 public:
  /// Both live at least as long as the part.
  PersistPart(IUnknown& whole, const wchar_t* className, kob::IKOBVBPersistStream& object) noexcept
      : whole_(whole), className_(className), object_(object) {}
  PersistPart(const PersistPart&) = delete;
  PersistPart& operator=(const PersistPart&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    return whole_.QueryInterface(id, object);
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return whole_.AddRef(); }
  ULONG STDMETHODCALLTYPE Release() override { return whole_.Release(); }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID reserved, LCID locale, WORD flags,
                                   DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                   UINT* wrongArgument) override;

  HRESULT STDMETHODCALLTYPE getProgID(VARIANT* progId) override;
  HRESULT STDMETHODCALLTYPE getProgIdTable(_KOBCollection** table) override;
  HRESULT STDMETHODCALLTYPE read(IDispatch* stream) override;
  HRESULT STDMETHODCALLTYPE write(IDispatch* stream) override;

 private:
  IUnknown& whole_;
  const wchar_t* className_;
  kob::IKOBVBPersistStream& object_;
};

}  // namespace kob::automation
