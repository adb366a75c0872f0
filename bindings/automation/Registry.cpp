// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Registry.h"

#include "Errors.h"

#include <cstddef>
#include <cwchar>
#include <utility>

namespace kob::automation {

namespace {

void mustSucceed(LSTATUS status) {
  if (status != ERROR_SUCCESS) {
    throw SystemFailure(HRESULT_FROM_WIN32(static_cast<DWORD>(status)));
  }
}

}  // namespace

RegistryKey::RegistryKey(RegistryKey&& other) noexcept : key_(std::exchange(other.key_, nullptr)) {}

RegistryKey::~RegistryKey() {
  if (key_ != nullptr) {
    RegCloseKey(key_);
  }
}

RegistryKey RegistryKey::open(HKEY parent, const std::wstring& path, REGSAM access) {
  RegistryKey key;
  const LSTATUS status = RegOpenKeyExW(parent, path.c_str(), 0, access, &key.key_);
  if (status != ERROR_FILE_NOT_FOUND) {
    mustSucceed(status);
  }
  return key;
}

RegistryKey RegistryKey::make(HKEY parent, const std::wstring& path) {
  RegistryKey key;
  mustSucceed(RegCreateKeyExW(parent, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE,
                              nullptr, &key.key_, nullptr));
  return key;
}

std::optional<std::wstring> RegistryKey::text(const std::wstring& name) const {
  DWORD type = REG_NONE;
  DWORD bytes = 0;
  if (RegQueryValueExW(key_, name.c_str(), nullptr, &type, nullptr, &bytes) != ERROR_SUCCESS ||
      type != REG_SZ) {
    return std::nullopt;
  }
  std::wstring value(bytes / sizeof(wchar_t), L'\0');
  mustSucceed(
      RegQueryValueExW(key_, name.c_str(), nullptr, nullptr, reinterpret_cast<BYTE*>(value.data()), &bytes));
  value.resize(std::wcslen(value.c_str()));
  return value;
}

void RegistryKey::setText(const std::wstring& name, const std::wstring& value) const {
  mustSucceed(RegSetValueExW(key_, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                             static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t))));
}

bool RegistryKey::hasSubkeys() const {
  DWORD count = 0;
  mustSucceed(RegQueryInfoKeyW(key_, nullptr, nullptr, nullptr, &count, nullptr, nullptr, nullptr, nullptr,
                               nullptr, nullptr, nullptr));
  return count != 0;
}

void removeTree(HKEY parent, const std::wstring& path) {
  const LSTATUS status = RegDeleteTreeW(parent, path.c_str());
  if (status != ERROR_FILE_NOT_FOUND) {
    mustSucceed(status);
  }
}

}  // namespace kob::automation
