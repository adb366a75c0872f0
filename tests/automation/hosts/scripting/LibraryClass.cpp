// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LibraryClass.h"

#include <kobtraduction/base/Text.h>

#include <oleauto.h>

namespace kob::hosts {

namespace {

HRESULT lastFailure() {
  return HRESULT_FROM_WIN32(GetLastError());
}

CLSID classOf(const std::wstring& file, TextView className) {
  ComPtr<ITypeLib> library;
  check(LoadTypeLibEx(file.c_str(), REGKIND_NONE, library.out()), u"the file has no type library");
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    TYPEKIND kind = TKIND_MAX;
    library->GetTypeInfoType(i, &kind);
    if (kind != TKIND_COCLASS) {
      continue;
    }
    BSTR name = nullptr;
    check(library->GetDocumentation(static_cast<INT>(i), &name, nullptr, nullptr, nullptr),
          u"a class has no name");
    const bool isIt = equalUpper(textOf(name), className);
    SysFreeString(name);
    ComPtr<ITypeInfo> type;
    TYPEATTR* attributes = nullptr;
    if (isIt && SUCCEEDED(library->GetTypeInfo(i, type.out())) && SUCCEEDED(type->GetTypeAttr(&attributes))) {
      const CLSID found = attributes->guid;
      type->ReleaseTypeAttr(attributes);
      return found;
    }
  }
  throw ComError{REGDB_E_CLASSNOTREG, REGDB_E_CLASSNOTREG, u"the library has no class " + Text(className)};
}

}  // namespace

ComPtr<IDispatch> createFromFile(const std::wstring& file, TextView className) {
  using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const HMODULE module = LoadLibraryW(file.c_str());
  check(module == nullptr ? lastFailure() : S_OK, u"the file cannot be loaded");
  const FARPROC entry = GetProcAddress(module, "DllGetClassObject");
  check(entry == nullptr ? lastFailure() : S_OK, u"the file hands out no classes");
  const auto getClassObject = reinterpret_cast<GetClassObject>(reinterpret_cast<void*>(entry));
  ComPtr<IClassFactory> factory;
  check(getClassObject(classOf(file, className), IID_IClassFactory, factory.outVoid()),
        u"the class is not available");
  ComPtr<IDispatch> object;
  check(factory->CreateInstance(nullptr, IID_IDispatch, object.outVoid()), u"the object cannot be made");
  return object;
}

}  // namespace kob::hosts
