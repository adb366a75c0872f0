// SPDX-FileCopyrightText: The KOBTraduction authors
#include "VariantValue.h"

#include "Errors.h"

#include <cstring>

namespace kob::automation {

namespace {

/// The same value as a type; locale-independent.
void convert(Variant& to, const VARIANT& from, VARTYPE type) {
  if (FAILED(
          VariantChangeTypeEx(to.get(), const_cast<VARIANT*>(&resolved(from)), LOCALE_INVARIANT, 0, type))) {
    throw Failure(FailureKind::TypeMismatch);
  }
}

constexpr int mostReferences = 8;

}  // namespace

const VARIANT& resolved(const VARIANT& value) noexcept {
  static const VARIANT none = {};
  const VARIANT* at = &value;
  for (int i = 0; i < mostReferences; ++i) {
    if (V_VT(at) != (VT_BYREF | VT_VARIANT)) {
      return *at;
    }
    at = V_VARIANTREF(at);
    if (at == nullptr) {
      return none;
    }
  }
  return none;
}

bool isMissing(const VARIANT& value) noexcept {
  const VARIANT& found = resolved(value);
  return V_VT(&found) == VT_ERROR && V_ERROR(&found) == DISP_E_PARAMNOTFOUND;
}

IUnknown* objectOf(const VARIANT& value) {
  const VARIANT& found = resolved(value);
  switch (V_VT(&found)) {
    case VT_EMPTY:
    case VT_NULL:
      return nullptr;
    case VT_DISPATCH:
      return V_DISPATCH(&found);
    case VT_UNKNOWN:
      return V_UNKNOWN(&found);
    case VT_BYREF | VT_DISPATCH:
      return V_DISPATCHREF(&found) != nullptr ? *V_DISPATCHREF(&found) : nullptr;
    case VT_BYREF | VT_UNKNOWN:
      return V_UNKNOWNREF(&found) != nullptr ? *V_UNKNOWNREF(&found) : nullptr;
    default:
      if (isMissing(found)) {
        return nullptr;
      }
      throw Failure(FailureKind::TypeMismatch);
  }
}

std::int32_t longOf(const VARIANT& value) {
  Variant converted;
  convert(converted, value, VT_I4);
  return V_I4(converted.get());
}

double doubleOf(const VARIANT& value) {
  Variant converted;
  convert(converted, value, VT_R8);
  return V_R8(converted.get());
}

bool booleanOf(const VARIANT& value) {
  Variant converted;
  convert(converted, value, VT_BOOL);
  return V_BOOL(converted.get()) != VARIANT_FALSE;
}

Text textOf(const VARIANT& value) {
  const VARIANT& found = resolved(value);
  if (V_VT(&found) == VT_BSTR) {
    return Text(viewOf(V_BSTR(&found)));
  }
  Variant converted;
  convert(converted, found, VT_BSTR);
  return Text(viewOf(V_BSTR(converted.get())));
}

void putText(VARIANT& place, TextView text) {
  V_BSTR(&place) = newBstr(text);
  V_VT(&place) = VT_BSTR;
}

void putLong(VARIANT& place, std::int32_t number) noexcept {
  V_VT(&place) = VT_I4;
  V_I4(&place) = number;
}

void putObject(VARIANT& place, IDispatch* object) noexcept {
  V_VT(&place) = VT_DISPATCH;
  V_DISPATCH(&place) = object;
}

void assignLong(VARIANT* place, std::int32_t number) {
  if (place == nullptr || isMissing(*place)) {
    return;
  }
  for (int i = 0; i < mostReferences && V_VT(place) == (VT_BYREF | VT_VARIANT); ++i) {
    place = V_VARIANTREF(place);
    if (place == nullptr) {
      return;
    }
  }
  Variant value;
  putLong(*value, number);
  if ((V_VT(place) & VT_BYREF) == 0) {
    if (FAILED(VariantCopy(place, value.get()))) {
      throw Failure(FailureKind::TypeMismatch);
    }
    return;
  }
  const auto type = static_cast<VARTYPE>(V_VT(place) & ~VT_BYREF);
  void* const target = V_BYREF(place);
  Variant converted;
  convert(converted, *value, type);
  if (target == nullptr) {
    return;
  }
  switch (type) {
    case VT_BSTR:
      SysFreeString(*static_cast<BSTR*>(target));
      *static_cast<BSTR*>(target) = V_BSTR(converted.get());
      V_VT(converted.get()) = VT_EMPTY;
      break;
    case VT_I1:
    case VT_UI1:
      std::memcpy(target, &V_UI1(converted.get()), sizeof(std::uint8_t));
      break;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
      std::memcpy(target, &V_I2(converted.get()), sizeof(std::int16_t));
      break;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR:
      std::memcpy(target, &V_I4(converted.get()), sizeof(std::int32_t));
      break;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
      std::memcpy(target, &V_I8(converted.get()), sizeof(std::int64_t));
      break;
    case VT_DECIMAL: {
      // Its first two bytes are the type of the variant that it lies in.
      const WORD kept = static_cast<DECIMAL*>(target)->wReserved;
      std::memcpy(target, &V_DECIMAL(converted.get()), sizeof(DECIMAL));
      static_cast<DECIMAL*>(target)->wReserved = kept;
      break;
    }
    default:
      throw Failure(FailureKind::TypeMismatch);
  }
}

}  // namespace kob::automation
