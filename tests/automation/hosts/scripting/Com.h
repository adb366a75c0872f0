// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>

#include <oaidl.h>
#include <windows.h>

#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

/// The little of COM that the script hosts need: references, values, and members called by their names. It
/// shares nothing with the component's own binding, so that a mistake there is not repeated here.
namespace kob::hosts {

/// A counted reference.
template <class T>
class ComPtr {
 public:
  ComPtr() = default;
  ComPtr(T* object) : object_(object) {
    if (object_ != nullptr) {
      object_->AddRef();
    }
  }
  ComPtr(const ComPtr& other) : ComPtr(other.object_) {}
  ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~ComPtr() {
    if (object_ != nullptr) {
      object_->Release();
    }
  }

  /// Takes over a reference that was counted already.
  static ComPtr adopt(T* object) {
    ComPtr taken;
    taken.object_ = object;
    return taken;
  }

  T* get() const noexcept { return object_; }
  T* operator->() const noexcept { return object_; }
  explicit operator bool() const noexcept { return object_ != nullptr; }
  /// For calls that give a counted reference back; lets go of what was held.
  T** out() {
    *this = ComPtr();
    return &object_;
  }
  void** outVoid() { return reinterpret_cast<void**>(out()); }

 private:
  T* object_ = nullptr;
};

/// A VARIANT that frees what it holds.
class Variant {
 public:
  Variant() { VariantInit(&value_); }
  Variant(TextView text);
  Variant(const char16_t* text) : Variant(TextView(text)) {}
  Variant(std::int32_t number);
  Variant(double number);
  Variant(bool boolean);
  Variant(IDispatch* object);
  Variant(const Variant& other);
  Variant(Variant&& other) noexcept : value_(other.value_) { VariantInit(&other.value_); }
  Variant& operator=(Variant other) noexcept {
    std::swap(value_, other.value_);
    return *this;
  }
  ~Variant() { VariantClear(&value_); }

  VARIANT* get() noexcept { return &value_; }
  const VARIANT* get() const noexcept { return &value_; }
  VARTYPE type() const noexcept { return value_.vt; }

  // Converted as automation converts; throws ComError where it cannot.
  Text text() const;
  std::int32_t number() const;
  bool boolean() const;
  /// Null for nothing and for what is no object.
  ComPtr<IDispatch> object() const;

 private:
  VARIANT value_;
};

/// A call that failed: its HRESULT, the number that came with it (scode), and its description.
struct ComError {
  HRESULT result;
  HRESULT number;
  Text description;
};

/// Throws ComError for a failed HRESULT, with a description of its own.
void check(HRESULT result, TextView what);

/// The identifier of a member, letter case ignored: by IDispatchEx where the object has it.
HRESULT memberId(IDispatch* object, TextView name, DISPID& id);

/// Reads a property.
Variant get(IDispatch* object, TextView name, const std::vector<Variant>& index = {});
/// Calls a method, or reads a property of an object that tells the two apart by itself.
Variant call(IDispatch* object, TextView name, const std::vector<Variant>& arguments = {});
void put(IDispatch* object, TextView name, const Variant& value, const std::vector<Variant>& index = {});

Text textOf(const wchar_t* text);
/// The caller frees it.
BSTR bstrOf(TextView text);

}  // namespace kob::hosts
