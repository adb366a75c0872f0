// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LoadedServer.h"

namespace kob::testing {

using hosts::check;

std::wstring serverPath() {
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return path.substr(0, path.find_last_of(L'\\') + 1) + L"KOBTraduction.dll";
}

HRESULT canUnloadNow() {
  return serverEntry<HRESULT(STDAPICALLTYPE*)()>("DllCanUnloadNow")();
}

ComPtr<IClassFactory> classObject(REFCLSID id) {
  using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  ComPtr<IClassFactory> factory;
  check(serverEntry<GetClassObject>("DllGetClassObject")(id, IID_IClassFactory, factory.outVoid()),
        u"class object");
  return factory;
}

ComPtr<IUnknown> createObject(REFCLSID id) {
  ComPtr<IUnknown> object;
  check(classObject(id)->CreateInstance(nullptr, IID_IUnknown, object.outVoid()), u"object");
  return object;
}

ComPtr<_KOBModeleTraduction> createModel() {
  return as<_KOBModeleTraduction>(createObject(__uuidof(::KOBModeleTraduction)));
}

ComPtr<_KOBCellTraduction> createCell() {
  return as<_KOBCellTraduction>(createObject(__uuidof(::KOBCellTraduction)));
}

ComPtr<_KOBTraductionObj> createEntry() {
  return as<_KOBTraductionObj>(createObject(__uuidof(::KOBTraductionObj)));
}

ComPtr<ITypeLib> typeLibrary() {
  ComPtr<ITypeLib> library;
  check(LoadTypeLibEx(serverPath().c_str(), REGKIND_NONE, library.out()), u"type library");
  return library;
}

ULONG references(IUnknown* object) {
  object->AddRef();
  return object->Release();
}

Text take(BSTR string) {
  Text text(reinterpret_cast<const char16_t*>(string), SysStringLen(string));
  SysFreeString(string);
  return text;
}

ServerTest::ServerTest() {
  CoInitialize(nullptr);
}

ServerTest::~ServerTest() {
  EXPECT_EQ(canUnloadNow(), S_OK) << "an object is still alive";
  CoUninitialize();
}

}  // namespace kob::testing
