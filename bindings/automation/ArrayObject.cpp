// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ArrayObject.h"

#include "HostValue.h"

#include <memory>
#include <utility>

namespace kob::automation {

namespace {

SAFEARRAY* arrayOf(const VARIANT& variant) noexcept {
  if ((V_VT(&variant) & VT_BYREF) == 0) {
    return V_ARRAY(&variant);
  }
  return V_ARRAYREF(&variant) != nullptr ? *V_ARRAYREF(&variant) : nullptr;
}

}  // namespace

std::optional<Value> ArrayObject::make(const VARIANT& variant) {
  SAFEARRAY* const array = arrayOf(variant);
  if (array == nullptr || SafeArrayGetDim(array) != 1) {
    return std::nullopt;
  }
  return Value(HostRef(std::make_shared<ArrayObject>(variant)));
}

ArrayObject::ArrayObject(const VARIANT& array) {
  // A copy that fails leaves Empty, which is an array without elements.
  VariantCopyInd(array_.get(), const_cast<VARIANT*>(&array));
}

SAFEARRAY* ArrayObject::array() const noexcept {
  return (V_VT(array_.get()) & VT_ARRAY) != 0 ? V_ARRAY(array_.get()) : nullptr;
}

LONG ArrayObject::lowest() const noexcept {
  LONG bound = 0;
  SafeArrayGetLBound(array(), 1, &bound);
  return bound;
}

LONG ArrayObject::count() const noexcept {
  LONG bound = 0;
  return array() != nullptr && SUCCEEDED(SafeArrayGetUBound(array(), 1, &bound)) ? bound - lowest() + 1 : 0;
}

std::optional<Value> ArrayObject::get(Property property) {
  return property == Property::Count ? std::optional(Value(static_cast<std::int32_t>(count())))
                                     : std::nullopt;
}

std::optional<Value> ArrayObject::item(std::int32_t index) {
  return index < 1 || index > count() ? std::nullopt : element(lowest() + (index - 1));
}

std::optional<std::vector<HostRef>> ArrayObject::enumerate() {
  std::vector<HostRef> members;
  for (std::int32_t i = 1; i <= count(); ++i) {
    const std::optional<Value> member = item(i);
    // What is no object is a member that is nothing.
    members.push_back(member ? member->asObject().value_or(nullptr) : nullptr);
  }
  return members;
}

std::optional<Value> ArrayObject::element(LONG number) const {
  VARTYPE type = VT_EMPTY;
  if (array() == nullptr || FAILED(SafeArrayGetVartype(array(), &type))) {
    return std::nullopt;
  }
  Variant found;
  void* const to =
      type == VT_VARIANT ? static_cast<void*>(found.get()) : static_cast<void*>(&V_BYREF(found.get()));
  if (type == VT_DECIMAL || type == VT_RECORD || FAILED(SafeArrayGetElement(array(), &number, to))) {
    return std::nullopt;
  }
  if (type != VT_VARIANT) {
    V_VT(found.get()) = type;
  }
  return fromVariant(*found, ValueKind::Object);
}

}  // namespace kob::automation
