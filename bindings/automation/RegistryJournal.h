// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Base.h"

#include <optional>
#include <string>
#include <vector>

namespace kob::automation {

/// Writes to the registry, all or nothing: unless commit() was called, the destructor puts everything back as
/// it was. Failures are SystemFailures.
class RegistryJournal {
 public:
  /// `root` stays open as long as the journal lives.
  explicit RegistryJournal(HKEY root) noexcept : root_(root) {}
  RegistryJournal(const RegistryJournal&) = delete;
  RegistryJournal& operator=(const RegistryJournal&) = delete;
  ~RegistryJournal();

  /// Sets a text below a key, which is made when it is not there; "" is the key's default value.
  void set(const std::wstring& key, const std::wstring& name, const std::wstring& value);
  void commit() noexcept { steps_.clear(); }

 private:
  struct Step {
    std::wstring key;
    /// None: the key was made.
    std::optional<std::wstring> name;
    /// What the value was; none when there was none.
    std::optional<std::wstring> before;
  };

  void make(const std::wstring& key);

  HKEY root_;
  std::vector<Step> steps_;
};

}  // namespace kob::automation
