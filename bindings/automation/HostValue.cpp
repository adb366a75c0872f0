// SPDX-FileCopyrightText: The KOBTraduction authors
#include "HostValue.h"

#include "ArrayObject.h"
#include "DispatchObject.h"
#include "VariantValue.h"

#include <memory>

namespace kob::automation {

namespace {

/// What an uninitialised variable reads as.
std::optional<Value> emptyValue(ValueKind kind) {
  switch (kind) {
    case ValueKind::Text:
      return Value(TextView());
    case ValueKind::Number:
      return Value(std::int32_t{0});
    case ValueKind::Boolean:
      return Value(false);
    case ValueKind::Object:
      break;
  }
  return Value();
}

std::optional<Value> fromObject(IDispatch* object, ValueKind kind) {
  if (object == nullptr) {
    return Value();
  }
  if (kind == ValueKind::Object) {
    return Value(HostRef(std::make_shared<DispatchObject>(object)));
  }
  return DispatchObject(object).defaultValue(kind);
}

std::optional<Value> fromUnknown(IUnknown* object, ValueKind kind) {
  const ComRef<IDispatch> dispatch = query<IDispatch>(object);
  return object == nullptr || dispatch ? fromObject(dispatch.get(), kind) : std::nullopt;
}

/// Numbers of the types that are neither a 32-bit integer nor a double. As a text they read as the host's
/// system would write them, in no particular country.
std::optional<Value> fromOther(const VARIANT& value, ValueKind kind) {
  Variant converted;
  const VARTYPE type = kind == ValueKind::Text ? VT_BSTR : VT_R8;
  if (FAILED(VariantChangeTypeEx(converted.get(), const_cast<VARIANT*>(&value), LOCALE_INVARIANT, 0, type))) {
    return std::nullopt;
  }
  if (type == VT_BSTR) {
    return Value(viewOf(V_BSTR(converted.get())));
  }
  return Value(V_R8(converted.get()));
}

std::optional<Value> fromPlain(const VARIANT& value, ValueKind kind) {
  switch (V_VT(&value)) {
    case VT_EMPTY:
      return emptyValue(kind);
    case VT_NULL:
      return Value();
    case VT_BSTR:
      return Value(viewOf(V_BSTR(&value)));
    case VT_BOOL:
      return Value(V_BOOL(&value) != VARIANT_FALSE);
    case VT_I2:
      return Value(std::int32_t{V_I2(&value)});
    case VT_I4:
    case VT_INT:
      return Value(static_cast<std::int32_t>(V_I4(&value)));
    case VT_R8:
      return Value(V_R8(&value));
    case VT_DISPATCH:
      return fromObject(V_DISPATCH(&value), kind);
    case VT_UNKNOWN:
      return fromUnknown(V_UNKNOWN(&value), kind);
    case VT_I1:
    case VT_UI1:
    case VT_UI2:
    case VT_UI4:
    case VT_UINT:
    case VT_I8:
    case VT_UI8:
    case VT_R4:
    case VT_CY:
    case VT_DATE:
    case VT_DECIMAL:
      return fromOther(value, kind);
    default:
      return std::nullopt;
  }
}

}  // namespace

ValueKind kindOf(Property property) noexcept {
  switch (property) {
    case Property::Container:
    case Property::Parent:
    case Property::Controls:
    case Property::Buttons:
    case Property::ButtonMenus:
      return ValueKind::Object;
    case Property::Index:
    case Property::Left:
    case Property::Width:
    case Property::Tabs:
    case Property::Tab:
    case Property::Count:
      return ValueKind::Number;
    case Property::Visible:
      return ValueKind::Boolean;
    case Property::Name:
    case Property::Tag:
    case Property::Caption:
    case Property::ToolTipText:
    case Property::Key:
    case Property::TabCaption:
      break;
  }
  return ValueKind::Text;
}

HostRef hostOf(const VARIANT& argument) {
  return hostOf(objectOf(argument));
}

HostRef hostOf(IUnknown* object) {
  const ComRef<IDispatch> dispatch = query<IDispatch>(object);
  return dispatch ? std::make_shared<DispatchObject>(dispatch.get()) : nullptr;
}

std::optional<Value> fromVariant(const VARIANT& value, ValueKind kind) {
  const VARIANT& found = resolved(value);
  if ((V_VT(&found) & VT_ARRAY) != 0) {
    return kind == ValueKind::Object ? ArrayObject::make(found) : std::nullopt;
  }
  if ((V_VT(&found) & VT_BYREF) == 0) {
    return fromPlain(found, kind);
  }
  Variant copied;
  if (V_BYREF(&found) == nullptr || FAILED(VariantCopyInd(copied.get(), const_cast<VARIANT*>(&found)))) {
    return std::nullopt;
  }
  return fromPlain(*copied, kind);
}

bool toVariant(const Value& value, VARIANT& place) {
  if (const Text* const text = value.text()) {
    putText(place, *text);
    return true;
  }
  if (value.isNothing()) {
    putObject(place, nullptr);
    return true;
  }
  const std::optional<double> number = value.asDouble();
  if (!number) {
    return false;
  }
  const std::optional<std::int32_t> integer = value.asLong();
  if (integer && *integer == *number) {
    putLong(place, *integer);
  } else {
    V_VT(&place) = VT_R8;
    V_R8(&place) = *number;
  }
  return true;
}

}  // namespace kob::automation
