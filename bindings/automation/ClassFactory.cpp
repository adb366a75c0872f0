// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ClassFactory.h"

#include "Errors.h"
#include "Module.h"

namespace kob::automation {

HRESULT ClassFactory::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) {
    return E_POINTER;
  }
  const bool known = id == IID_IUnknown || id == IID_IClassFactory;
  *object = known ? this : nullptr;
  if (!known) {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

ULONG ClassFactory::AddRef() {
  return static_cast<ULONG>(InterlockedIncrement(&references_));
}

ULONG ClassFactory::Release() {
  const LONG left = InterlockedDecrement(&references_);
  if (left == 0) {
    delete this;
  }
  return static_cast<ULONG>(left);
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID id, void** object) {
  if (object == nullptr) {
    return E_POINTER;
  }
  *object = nullptr;
  if (outer != nullptr) {
    return CLASS_E_NOAGGREGATION;
  }
  try {
    return make_()->QueryInterface(id, object);
  } catch (...) {
    return reportFailure(L"ClassFactory", L"CreateInstance");
  }
}

HRESULT ClassFactory::LockServer(BOOL lock) {
  if (lock != FALSE) {
    holdModule();
  } else {
    releaseModule();
  }
  return S_OK;
}

}  // namespace kob::automation
