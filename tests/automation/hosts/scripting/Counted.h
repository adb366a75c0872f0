// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <unknwn.h>

#include <atomic>

namespace kob::hosts {

/// An object that lives as long as references to it are held, the first of them its maker's. A derived class
/// says in QueryInterface which of its interfaces it answers with.
template <class... Interfaces>
class Counted : public Interfaces... {
 public:
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) {
      delete this;
    }
    return left;
  }

 protected:
  Counted() = default;
  virtual ~Counted() = default;

  /// What QueryInterface does once it knows the interface, or null for one that the object does not have.
  HRESULT answer(void* interface_, void** object) {
    *object = interface_;
    if (interface_ == nullptr) {
      return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
  }

 private:
  std::atomic<ULONG> references_{1};
};

}  // namespace kob::hosts
