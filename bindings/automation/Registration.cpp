// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Registration.h"

#include "Errors.h"
#include "Module.h"
#include "Registry.h"
#include "RegistryJournal.h"
#include "TypeLibrary.h"

#include <iterator>
#include <string>
#include <vector>

namespace kob::automation {

namespace {

/// Where the type library lies for programs of the DLL's own processor.
constexpr const wchar_t* platform = sizeof(void*) == 8 ? L"win64" : L"win32";
/// The system's own marshaler, for interfaces that a type library describes.
constexpr const wchar_t* marshaler = L"{00020424-0000-0000-C000-000000000046}";
constexpr const wchar_t* neutral = L"0";
/// The number behind the class identifiers of this version.
constexpr const wchar_t* classVersion = L".1";

std::wstring textOf(REFGUID id) {
  wchar_t text[40] = {};
  StringFromGUID2(id, text, static_cast<int>(std::size(text)));
  return text;
}

std::wstring textOf(BSTR text) {
  return text != nullptr ? std::wstring(text, SysStringLen(text)) : std::wstring();
}

/// A class or an interface of the type library.
struct Described {
  std::wstring name;
  std::wstring help;
  std::wstring id;
};

struct Library {
  std::wstring name;
  std::wstring help;
  std::wstring id;
  std::wstring version;
  std::wstring flags;
  std::vector<Described> classes;
  std::vector<Described> interfaces;
};

void mustSucceed(HRESULT result) {
  if (FAILED(result)) {
    throw SystemFailure(result);
  }
}

/// Which types are registered: classes that can be created, and interfaces that can be called between
/// apartments.
void describe(ITypeInfo& info, Library& library) {
  TYPEATTR* attributes = nullptr;
  mustSucceed(info.GetTypeAttr(&attributes));
  const TYPEATTR type = *attributes;
  info.ReleaseTypeAttr(attributes);
  Bstr name;
  Bstr help;
  mustSucceed(info.GetDocumentation(MEMBERID_NIL, name.put(), help.put(), nullptr, nullptr));
  const Described described{textOf(name.get()), textOf(help.get()), textOf(type.guid)};
  if (type.typekind == TKIND_COCLASS && (type.wTypeFlags & TYPEFLAG_FCANCREATE) != 0) {
    library.classes.push_back(described);
  } else if (type.typekind == TKIND_DISPATCH || type.typekind == TKIND_INTERFACE) {
    library.interfaces.push_back(described);
  }
}

Library describeLibrary() {
  const ComRef<ITypeLib> types = loadTypeLibrary();
  Library library;
  TLIBATTR* attributes = nullptr;
  mustSucceed(types->GetLibAttr(&attributes));
  library.id = textOf(attributes->guid);
  library.version =
      std::to_wstring(attributes->wMajorVerNum) + L"." + std::to_wstring(attributes->wMinorVerNum);
  library.flags = std::to_wstring(attributes->wLibFlags & ~LIBFLAG_FHASDISKIMAGE);
  types->ReleaseTLibAttr(attributes);
  Bstr name;
  Bstr help;
  mustSucceed(types->GetDocumentation(MEMBERID_NIL, name.put(), help.put(), nullptr, nullptr));
  library.name = textOf(name.get());
  library.help = textOf(help.get());
  for (UINT i = 0; i < types->GetTypeInfoCount(); ++i) {
    ComRef<ITypeInfo> info;
    mustSucceed(types->GetTypeInfo(i, info.put()));
    describe(*info.get(), library);
  }
  return library;
}

RegistryKey classesOf(Scope scope) {
  return RegistryKey::make(scope == Scope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER,
                           L"Software\\Classes");
}

void registerClass(RegistryJournal& journal, const Library& library, const Described& coclass) {
  const std::wstring progId = library.name + L"." + coclass.name;
  const std::wstring versioned = progId + classVersion;
  journal.set(progId, L"", coclass.help);
  journal.set(progId + L"\\CLSID", L"", coclass.id);
  journal.set(progId + L"\\CurVer", L"", versioned);
  journal.set(versioned, L"", coclass.help);
  journal.set(versioned + L"\\CLSID", L"", coclass.id);
  const std::wstring key = L"CLSID\\" + coclass.id;
  journal.set(key, L"", coclass.help);
  journal.set(key + L"\\InprocServer32", L"", modulePath());
  journal.set(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
  journal.set(key + L"\\ProgID", L"", versioned);
  journal.set(key + L"\\VersionIndependentProgID", L"", progId);
  journal.set(key + L"\\TypeLib", L"", library.id);
  journal.set(key + L"\\Version", L"", library.version);
  journal.set(key + L"\\Programmable", L"", L"");
}

void registerTypes(RegistryJournal& journal, const Library& library) {
  const std::wstring path = modulePath();
  const std::wstring key = L"TypeLib\\" + library.id + L"\\" + library.version;
  journal.set(key, L"", library.help);
  journal.set(key + L"\\" + neutral + L"\\" + platform, L"", path);
  journal.set(key + L"\\FLAGS", L"", library.flags);
  journal.set(key + L"\\HELPDIR", L"", path.substr(0, path.find_last_of(L'\\')));
  for (const Described& described : library.interfaces) {
    const std::wstring id = L"Interface\\" + described.id;
    journal.set(id, L"", described.name);
    journal.set(id + L"\\ProxyStubClsid32", L"", marshaler);
    journal.set(id + L"\\TypeLib", L"", library.id);
    journal.set(id + L"\\TypeLib", L"Version", library.version);
  }
}

/// Whether the DLL of another processor has its type library here too.
bool isShared(HKEY classes, const Library& library) {
  const std::wstring key = L"TypeLib\\" + library.id + L"\\" + library.version + L"\\" + neutral;
  removeTree(classes, key + L"\\" + platform);
  const RegistryKey left = RegistryKey::open(classes, key);
  return left && left.hasSubkeys();
}

}  // namespace

void registerServer(Scope scope) {
  const Library library = describeLibrary();
  const RegistryKey classes = classesOf(scope);
  RegistryJournal journal(classes.get());
  for (const Described& coclass : library.classes) {
    registerClass(journal, library, coclass);
  }
  registerTypes(journal, library);
  journal.commit();
}

void unregisterServer(Scope scope) {
  const Library library = describeLibrary();
  const RegistryKey classes = classesOf(scope);
  for (const Described& coclass : library.classes) {
    const std::wstring progId = library.name + L"." + coclass.name;
    removeTree(classes.get(), progId + classVersion);
    removeTree(classes.get(), progId);
    removeTree(classes.get(), L"CLSID\\" + coclass.id);
  }
  if (isShared(classes.get(), library)) {
    return;
  }
  removeTree(classes.get(), L"TypeLib\\" + library.id);
  for (const Described& described : library.interfaces) {
    removeTree(classes.get(), L"Interface\\" + described.id);
  }
}

}  // namespace kob::automation
