// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Base.h"

#include <optional>
#include <string>

/// Keys and texts of the registry; failures are SystemFailures.
namespace kob::automation {

/// An open key, or none.
class RegistryKey {
 public:
  RegistryKey() noexcept = default;
  RegistryKey(RegistryKey&& other) noexcept;
  RegistryKey& operator=(const RegistryKey&) = delete;
  ~RegistryKey();

  /// None when there is no such key.
  static RegistryKey open(HKEY parent, const std::wstring& path, REGSAM access = KEY_READ);
  /// Opens a key that is there or makes it, with all above it.
  static RegistryKey make(HKEY parent, const std::wstring& path);

  HKEY get() const noexcept { return key_; }
  explicit operator bool() const noexcept { return key_ != nullptr; }

  /// None when there is no such text.
  std::optional<std::wstring> text(const std::wstring& name) const;
  void setText(const std::wstring& name, const std::wstring& value) const;
  bool hasSubkeys() const;

 private:
  HKEY key_ = nullptr;
};

/// Removes a key and all below it; one that is not there is fine.
void removeTree(HKEY parent, const std::wstring& path);

}  // namespace kob::automation
