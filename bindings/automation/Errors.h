// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Base.h"

#include <kobtraduction/base/Failure.h>

/// The one place where failures become what an automation host understands.
namespace kob::automation {

/// A failure that has a number of the system already.
class SystemFailure {
 public:
  explicit SystemFailure(HRESULT result) noexcept : result_(result) {}
  HRESULT result() const noexcept { return result_; }

 private:
  HRESULT result_;
};

/// The number under which a host sees a failure: 0x800A0000 and the run-time error number.
HRESULT resultOf(FailureKind kind) noexcept;

/// Only in a catch clause: turns the exception into a result, and leaves the thread error information about
/// it: source "KOBTraduction.<className>", and a description that begins with the member's name.
HRESULT reportFailure(const wchar_t* className, const wchar_t* member) noexcept;

/// The place for a result, cleared, before anything else is done; a host that gives none gets E_POINTER.
template <class T>
T& out(T* place) {
  if (place == nullptr) {
    throw SystemFailure(E_POINTER);
  }
  *place = T();
  return *place;
}

}  // namespace kob::automation
