// SPDX-FileCopyrightText: The KOBTraduction authors
#include "RegistryDump.h"

#include "LoadedServer.h"

#include <kobtraduction/base/Text.h>

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace kob::testing {

namespace {

constexpr const wchar_t* standPath = L"Software\\KOBTraduction test";
constexpr DWORD longestName = 512;

std::string narrow(const std::wstring& text) {
  return toUtf8(TextView(reinterpret_cast<const char16_t*>(text.data()), text.size()));
}

void appendValues(HKEY key, const std::wstring& path, std::set<std::string>& lines) {
  for (DWORD i = 0;; ++i) {
    wchar_t name[longestName] = {};
    wchar_t value[longestName] = {};
    DWORD nameLength = longestName;
    DWORD valueBytes = sizeof value - sizeof(wchar_t);
    if (RegEnumValueW(key, i, name, &nameLength, nullptr, nullptr, reinterpret_cast<BYTE*>(value),
                      &valueBytes) != ERROR_SUCCESS) {
      return;
    }
    lines.insert(narrow(path + L" [" + name + L"] = " + value));
  }
}

void append(HKEY parent, const std::wstring& path, std::set<std::string>& lines) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(parent, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) {
    return;
  }
  lines.insert(narrow(path));
  appendValues(key, path, lines);
  std::vector<std::wstring> names;
  wchar_t name[longestName] = {};
  for (DWORD i = 0, length = longestName;
       RegEnumKeyExW(key, i, name, &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
       ++i, length = longestName) {
    names.emplace_back(name);
  }
  RegCloseKey(key);
  for (const std::wstring& below : names) {
    append(parent, std::wstring(path).append(L"\\").append(below), lines);
  }
}

std::wstring textOf(REFGUID id) {
  wchar_t text[40] = {};
  StringFromGUID2(id, text, 40);
  return text;
}

}  // namespace

std::string registryText(HKEY parent, const std::wstring& path) {
  std::set<std::string> lines;
  append(parent, path, lines);
  std::string text;
  for (const std::string& line : lines) {
    text += line + "\n";
  }
  return text;
}

std::string registrationText(HKEY root) {
  std::string text;
  HKEY classes = nullptr;
  if (RegOpenKeyExW(root, L"Software\\Classes", 0, KEY_READ, &classes) != ERROR_SUCCESS) {
    return text;
  }
  for (const wchar_t* name :
       {L"KOBModeleTraduction", L"KOBCellTraduction", L"KOBTraductionObj", L"KOBCollection"}) {
    const std::wstring progId = std::wstring(L"KOBTraduction.") + name;
    text += registryText(classes, progId) + registryText(classes, progId + L".1");
  }
  const ComPtr<ITypeLib> library = typeLibrary();
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    ComPtr<ITypeInfo> info;
    library->GetTypeInfo(i, info.out());
    TYPEATTR* attributes = nullptr;
    info->GetTypeAttr(&attributes);
    const bool isClass = attributes->typekind == TKIND_COCLASS;
    text += registryText(classes, (isClass ? L"CLSID\\" : L"Interface\\") + textOf(attributes->guid));
    info->ReleaseTypeAttr(attributes);
  }
  TLIBATTR* about = nullptr;
  library->GetLibAttr(&about);
  text += registryText(classes, L"TypeLib\\" + textOf(about->guid));
  library->ReleaseTLibAttr(about);
  RegCloseKey(classes);
  return text;
}

EmptyRoot::EmptyRoot(HKEY root) : root_(root) {
  const std::wstring path = standPath + std::to_wstring(GetCurrentProcessId());
  RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &stand_, nullptr);
  EXPECT_EQ(RegOverridePredefKey(root_, stand_), ERROR_SUCCESS);
}

EmptyRoot::~EmptyRoot() {
  EXPECT_EQ(RegOverridePredefKey(root_, nullptr), ERROR_SUCCESS);
  RegDeleteTreeW(stand_, nullptr);
  RegCloseKey(stand_);
  RegDeleteKeyW(HKEY_CURRENT_USER, (standPath + std::to_wstring(GetCurrentProcessId())).c_str());
}

}  // namespace kob::testing
