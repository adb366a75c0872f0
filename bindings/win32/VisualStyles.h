// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <windows.h>

namespace kob::win32 {

/// The looks of the system's present controls, also in a host that is older than they are. Controls have them
/// that are made while a Scope lives; without the binding's resource they look as the host's own.
class VisualStyles {
 public:
  explicit VisualStyles(HINSTANCE module);
  VisualStyles(const VisualStyles&) = delete;
  VisualStyles& operator=(const VisualStyles&) = delete;
  ~VisualStyles();

  class Scope {
   public:
    explicit Scope(const VisualStyles& styles);
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;
    ~Scope();

   private:
    ULONG_PTR cookie_ = 0;
    bool isActive_ = false;
  };

 private:
  HANDLE context_;
};

}  // namespace kob::win32
