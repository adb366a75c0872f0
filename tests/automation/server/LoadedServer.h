// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <KOBTraduction.h>
#include <tests/automation/hosts/scripting/Com.h>

#include <gtest/gtest.h>

#include <string>

namespace kob::testing {

using hosts::ComPtr;
using hosts::Variant;

/// The DLL in the folder of the test program; it stays loaded.
std::wstring serverPath();
/// One of its entry points.
template <class Function>
Function serverEntry(const char* name) {
  const HMODULE module = LoadLibraryW(serverPath().c_str());
  return module != nullptr ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)))
                           : nullptr;
}

HRESULT canUnloadNow();
ComPtr<IClassFactory> classObject(REFCLSID id);
ComPtr<IUnknown> createObject(REFCLSID id);
ComPtr<_KOBModeleTraduction> createModel();
ComPtr<_KOBCellTraduction> createCell();
ComPtr<_KOBTraductionObj> createEntry();
ComPtr<ITypeLib> typeLibrary();

template <class T>
ComPtr<T> as(IUnknown* object) {
  ComPtr<T> found;
  if (object != nullptr && FAILED(object->QueryInterface(__uuidof(T), found.outVoid()))) {
    return {};
  }
  return found;
}
template <class T, class From>
ComPtr<T> as(const ComPtr<From>& object) {
  return as<T>(object.get());
}

/// How many references an object has.
ULONG references(IUnknown* object);
template <class T>
ULONG references(const ComPtr<T>& object) {
  return references(object.get());
}

/// A string for a call.
class String {
 public:
  explicit String(TextView text) : string_(hosts::bstrOf(text)) {}
  String(const String&) = delete;
  String& operator=(const String&) = delete;
  ~String() { SysFreeString(string_); }
  operator BSTR() const noexcept { return string_; }

 private:
  BSTR string_;
};

/// Frees the string.
Text take(BSTR string);

/// A case in an apartment of its own, at the end of which nothing of the server may be alive.
class ServerTest : public ::testing::Test {
 protected:
  ServerTest();
  ~ServerTest() override;
};

}  // namespace kob::testing
