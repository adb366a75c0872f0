// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Apartment.h"
#include "Com.h"
#include "Dispatching.h"
#include "Errors.h"
#include "Module.h"
#include "TypeLibrary.h"

#include <cstdint>
#include <cstring>

namespace kob::automation {

/// What every object that a host holds has in common: references, IDispatch by the type library, error
/// information, class information. `Self` is the final class, with
///   className       its name, as error sources give it
///   classId()       its class in the type library
///   shellNumber     a number that no other class has, by which our own objects are known again (see unwrap)
template <class Self, class Interface>
class Shell : public Interface, public ISupportErrorInfo, public IProvideClassInfo {
 public:
  Shell(const Shell&) = delete;
  Shell& operator=(const Shell&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (object == nullptr) {
      return E_POINTER;
    }
    *object = part(id);
    if (*object == nullptr) {
      return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&references_)); }
  ULONG STDMETHODCALLTYPE Release() override {
    const LONG left = InterlockedDecrement(&references_);
    if (left == 0) {
      delete static_cast<Self*>(this);
    }
    return static_cast<ULONG>(left);
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    if (count == nullptr) {
      return E_POINTER;
    }
    *count = 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID /*locale*/, ITypeInfo** info) override {
    return typeInfo(__uuidof(Interface), index, info);
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* names, UINT count, LCID /*locale*/,
                                          DISPID* ids) override {
    return idsOfNames(__uuidof(Interface), names, count, ids);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID /*reserved*/, LCID /*locale*/, WORD flags,
                                   DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                   UINT* wrongArgument) override {
    return invoke(__uuidof(Interface), static_cast<Interface*>(this), member, flags, parameters, result,
                  exception, wrongArgument);
  }

  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID id) override {
    return id == __uuidof(Interface) ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) override {
    return typeInfo(Self::classId(), 0, info);
  }

  /// By this only objects of this very DLL are known: another one's are laid out as it pleases.
  static IID shellId() noexcept {
    IID id = {0x2F3A8911 + Self::shellNumber, 0x8F1B, 0x453F, {}};
    const auto address = reinterpret_cast<std::uintptr_t>(moduleHandle());
    std::memcpy(id.Data4, &address, sizeof address);
    return id;
  }

 protected:
  Shell() = default;
  ~Shell() = default;

  Apartment& apartment() const noexcept { return inhabitant_.apartment(); }

  /// Another interface of the object, or null.
  virtual void* otherPart(REFIID /*id*/) noexcept { return nullptr; }

  /// Runs one member. The host may let go of the object while its own code runs inside the call.
  template <class Call>
  HRESULT guarded(const wchar_t* member, Call call) noexcept {
    const ComRef<Interface> kept(this);
    try {
      call();
      return S_OK;
    } catch (...) {
      return reportFailure(Self::className, member);
    }
  }

 private:
  void* part(REFIID id) noexcept {
    if (id == IID_IUnknown || id == IID_IDispatch || id == __uuidof(Interface)) {
      return static_cast<Interface*>(this);
    }
    if (id == IID_ISupportErrorInfo) {
      return static_cast<ISupportErrorInfo*>(this);
    }
    if (id == IID_IProvideClassInfo) {
      return static_cast<IProvideClassInfo*>(this);
    }
    if (id == shellId()) {
      return static_cast<Self*>(this);
    }
    return otherPart(id);
  }

  LONG references_ = 1;
  Inhabitant inhabitant_;
};

/// One of our own objects behind a reference, or none for nothing and for any other object.
template <class Self>
ComRef<Self> unwrap(IUnknown* object) noexcept {
  ComRef<Self> found;
  if (object != nullptr && FAILED(object->QueryInterface(Self::shellId(), found.putVoid()))) {
    return {};
  }
  return found;
}

/// The same for an argument: nothing gives none, any other object fails with TypeMismatch.
template <class Self>
ComRef<Self> argument(IUnknown* object) {
  ComRef<Self> found = unwrap<Self>(object);
  if (object != nullptr && !found) {
    throw Failure(FailureKind::TypeMismatch);
  }
  return found;
}

}  // namespace kob::automation
