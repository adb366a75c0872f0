// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <windows.h>

#include <string>

namespace kob::testing {

/// A key, a line for each value below it: "path [name] = text". "" when there is no such key.
std::string registryText(HKEY parent, const std::wstring& path);

/// All that the server's registration writes below "Software\Classes" of a root.
std::string registrationText(HKEY root);

/// While it lives, this process sees an empty key in the place of a root of the registry.
class EmptyRoot {
 public:
  explicit EmptyRoot(HKEY root);
  EmptyRoot(const EmptyRoot&) = delete;
  EmptyRoot& operator=(const EmptyRoot&) = delete;
  ~EmptyRoot();

 private:
  HKEY root_;
  HKEY stand_ = nullptr;
};

}  // namespace kob::testing
