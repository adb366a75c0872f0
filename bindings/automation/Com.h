// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Base.h"

#include <kobtraduction/base/Text.h>

#include <cstddef>
#include <new>
#include <utility>

/// Owners of what the automation interfaces count or allocate.
namespace kob::automation {

/// Holds one reference to a COM object, or none.
template <class T>
class ComRef {
 public:
  ComRef() noexcept = default;
  /// Takes a reference of its own.
  explicit ComRef(T* object) noexcept : object_(object) {
    if (object_ != nullptr) {
      object_->AddRef();
    }
  }
  /// Takes over the caller's reference.
  static ComRef adopt(T* object) noexcept {
    ComRef adopted;
    adopted.object_ = object;
    return adopted;
  }
  ComRef(const ComRef& other) noexcept : ComRef(other.object_) {}
  ComRef(ComRef&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComRef& operator=(ComRef other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~ComRef() {
    if (object_ != nullptr) {
      object_->Release();
    }
  }

  T* get() const noexcept { return object_; }
  T* operator->() const noexcept { return object_; }
  explicit operator bool() const noexcept { return object_ != nullptr; }
  /// Gives the reference to the caller.
  T* detach() noexcept { return std::exchange(object_, nullptr); }
  /// Where a function puts a reference; only while there is none.
  T** put() noexcept { return &object_; }
  void** putVoid() noexcept { return reinterpret_cast<void**>(&object_); }

 private:
  T* object_ = nullptr;
};

/// The interface of an object, or none.
template <class T>
ComRef<T> query(IUnknown* object) noexcept {
  ComRef<T> found;
  if (object != nullptr && FAILED(object->QueryInterface(__uuidof(T), found.putVoid()))) {
    return {};
  }
  return found;
}

inline const wchar_t* wide(const char16_t* text) noexcept {
  return reinterpret_cast<const wchar_t*>(text);
}

/// A string of a host; none is "".
inline TextView viewOf(BSTR string) noexcept {
  return string != nullptr ? TextView(reinterpret_cast<const char16_t*>(string), SysStringLen(string))
                           : TextView();
}

/// A new string, which the caller frees.
inline BSTR newBstr(TextView text) {
  BSTR string = SysAllocStringLen(wide(text.data()), static_cast<UINT>(text.size()));
  if (string == nullptr) {
    throw std::bad_alloc();
  }
  return string;
}

class Bstr {
 public:
  Bstr() noexcept = default;
  explicit Bstr(TextView text) : string_(newBstr(text)) {}
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  ~Bstr() { SysFreeString(string_); }

  BSTR get() const noexcept { return string_; }
  BSTR* put() noexcept { return &string_; }
  TextView view() const noexcept { return viewOf(string_); }

 private:
  BSTR string_ = nullptr;
};

/// A VARIANT that clears what it holds.
class Variant {
 public:
  Variant() noexcept { VariantInit(&variant_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  ~Variant() { VariantClear(&variant_); }

  VARIANT& operator*() noexcept { return variant_; }
  const VARIANT& operator*() const noexcept { return variant_; }
  VARIANT* operator->() noexcept { return &variant_; }
  VARIANT* get() noexcept { return &variant_; }
  const VARIANT* get() const noexcept { return &variant_; }

 private:
  VARIANT variant_;
};

}  // namespace kob::automation
