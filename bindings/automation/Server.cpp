// SPDX-FileCopyrightText: The KOBTraduction authors
// The entry points of the DLL.
#include "ClassFactory.h"
#include "Errors.h"
#include "Module.h"
#include "Registration.h"
#include "Shells.h"

#include <cwchar>

namespace {

using kob::automation::ClassFactory;
using kob::automation::ComRef;
using kob::automation::MakeShell;
using kob::automation::Scope;

MakeShell makerOf(REFCLSID id) noexcept {
  if (id == __uuidof(::KOBModeleTraduction)) {
    return kob::automation::newModel;
  }
  if (id == __uuidof(::KOBCellTraduction)) {
    return kob::automation::newCell;
  }
  if (id == __uuidof(::KOBTraductionObj)) {
    return kob::automation::newEntry;
  }
  return nullptr;
}

template <class Call>
HRESULT guarded(const wchar_t* member, Call call) noexcept {
  try {
    call();
    return S_OK;
  } catch (...) {
    return kob::automation::reportFailure(L"Server", member);
  }
}

}  // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) {
    kob::automation::setModuleHandle(instance);
  }
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, LPVOID* object) {
  if (object == nullptr) {
    return E_POINTER;
  }
  *object = nullptr;
  const MakeShell make = makerOf(classId);
  if (make == nullptr) {
    return CLASS_E_CLASSNOTAVAILABLE;
  }
  HRESULT found = E_NOINTERFACE;
  const HRESULT done = guarded(L"DllGetClassObject", [&] {
    found = ComRef<IClassFactory>::adopt(new ClassFactory(make))->QueryInterface(id, object);
  });
  return FAILED(done) ? done : found;
}

STDAPI DllCanUnloadNow() {
  return kob::automation::isModuleHeld() ? S_FALSE : S_OK;
}

STDAPI DllRegisterServer() {
  return guarded(L"DllRegisterServer", [] { registerServer(Scope::Machine); });
}

STDAPI DllUnregisterServer() {
  return guarded(L"DllUnregisterServer", [] { unregisterServer(Scope::Machine); });
}

/// "user" registers for the calling user only, nothing for the machine.
STDAPI DllInstall(BOOL install, LPCWSTR what) {
  const bool isNothing = what == nullptr || *what == L'\0';
  if (!isNothing && _wcsicmp(what, L"user") != 0) {
    return E_INVALIDARG;
  }
  return guarded(L"DllInstall", [&] {
    const Scope scope = isNothing ? Scope::Machine : Scope::User;
    if (install != FALSE) {
      registerServer(scope);
    } else {
      unregisterServer(scope);
    }
  });
}
