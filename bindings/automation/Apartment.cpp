// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Apartment.h"

#include "Module.h"

#include <bindings/win32/Win32Binding.h>
#include <kobpersistence/KOBPersistence.h>

namespace kob::automation {

namespace {

thread_local Apartment* ofThread = nullptr;

}  // namespace

class Apartment::Native {
  win32::Win32Binding binding_{moduleHandle()};
};

Apartment::Apartment() : native_(std::make_unique<Native>()) {
  usePersistence();
}

Apartment::~Apartment() = default;

Apartment& Apartment::enter() {
  if (ofThread == nullptr) {
    ofThread = new Apartment;
  }
  ++ofThread->count_;
  holdModule();
  return *ofThread;
}

void Apartment::leave() noexcept {
  --count_;
  // A host that lets go on another thread breaks its own rules; the apartment then waits for its thread's
  // next object.
  if (count_ == 0 && thread_ == GetCurrentThreadId()) {
    ofThread = nullptr;
    delete this;
  }
  releaseModule();
}

IUnknown* Apartment::find(const void* part) const noexcept {
  const auto found = objects_.find(part);
  return found != objects_.end() ? found->second : nullptr;
}

}  // namespace kob::automation
