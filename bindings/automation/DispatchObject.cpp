// SPDX-FileCopyrightText: The KOBTraduction authors
#include "DispatchObject.h"

#include "VariantValue.h"

#include <cstddef>

namespace kob::automation {

namespace {

/// The names of all properties, made once: look-ups are most of what is asked of a host.
class PropertyNames {
 public:
  PropertyNames() {
    for (int i = 0; i < propertyCount; ++i) {
      *names_[i].put() = newBstr(propertyName(static_cast<Property>(i)));
    }
  }
  const Bstr& of(Property property) const noexcept { return names_[static_cast<int>(property)]; }

 private:
  Bstr names_[propertyCount];
};

const Bstr& nameOf(Property property) {
  static const PropertyNames names;
  return names.of(property);
}

/// The object of a value that a host gave, or none.
IUnknown* objectIn(const VARIANT& value) noexcept {
  const VARIANT& found = resolved(value);
  return V_VT(&found) == VT_DISPATCH || V_VT(&found) == VT_UNKNOWN ? V_UNKNOWN(&found) : nullptr;
}

/// A member of a collection; what is no object is a member that is nothing.
HostRef memberFrom(const std::optional<Value>& value) {
  return value ? value->asObject().value_or(nullptr) : nullptr;
}

}  // namespace

const void* DispatchObject::identity() const noexcept {
  if (!identity_) {
    identity_ = query<IUnknown>(object_.object());
  }
  return identity_ ? static_cast<const void*>(identity_.get()) : object_.object();
}

std::optional<DISPID> DispatchObject::memberOf(Property property) {
  const auto at = static_cast<std::size_t>(property);
  const std::uint32_t bit = 1U << at;
  if ((known_ & bit) == 0) {
    const std::optional<DISPID> found = lookUp(property);
    if (!found) {
      return std::nullopt;
    }
    members_[at] = *found;
    known_ |= bit;
  }
  return members_[at];
}

std::optional<DISPID> DispatchObject::lookUp(Property property) {
  if (!isClassAsked_) {
    class_ = object_.isExtended() ? nullptr : classMembersOf(*object_.object());
    isClassAsked_ = true;
  }
  if (class_ == nullptr) {
    return object_.find(nameOf(property));
  }
  DISPID member = class_->of(property);
  if (member == ClassMembers::notAsked) {
    const HRESULT found = object_.find(nameOf(property), member);
    if (FAILED(found) && found != DISP_E_UNKNOWNNAME) {
      // This object is gone; it tells nothing about its class.
      return std::nullopt;
    }
    class_->set(property, FAILED(found) ? DISPID_UNKNOWN : member);
    member = class_->of(property);
  }
  return member != DISPID_UNKNOWN ? std::optional(member) : std::nullopt;
}

std::optional<Value> DispatchObject::get(Property property) {
  Variant value;
  const std::optional<DISPID> member = memberOf(property);
  if (member) {
    return SUCCEEDED(object_.read(*member, *value)) ? fromVariant(*value, kindOf(property)) : std::nullopt;
  }
  const std::optional<std::int32_t> count = property == Property::Count ? length() : std::nullopt;
  return count ? std::optional(Value(*count)) : std::nullopt;
}

bool DispatchObject::set(Property property, const Value& value) {
  Variant given;
  if (!toVariant(value, *given)) {
    return false;
  }
  const std::optional<DISPID> member = memberOf(property);
  return member && SUCCEEDED(object_.assign(*member, *given));
}

bool DispatchObject::appendText(Property property, Text& text) {
  const std::optional<DISPID> member = memberOf(property);
  Variant value;
  if (!member || FAILED(object_.read(*member, *value))) {
    return false;
  }
  if (V_VT(value.get()) == VT_BSTR) {
    text += viewOf(V_BSTR(value.get()));
    return true;
  }
  const std::optional<Value> converted = fromVariant(*value, kindOf(property));
  const std::optional<Text> asText = converted ? converted->asText() : std::nullopt;
  if (asText) {
    text += *asText;
  }
  return asText.has_value();
}

bool DispatchObject::assignText(Property property, TextView text) {
  Variant given;
  putText(*given, text);
  const std::optional<DISPID> member = memberOf(property);
  return member && SUCCEEDED(object_.assign(*member, *given));
}

std::optional<Value> DispatchObject::getIndexed(Property property, std::int32_t index) {
  const std::optional<DISPID> member = memberOf(property);
  if (!member) {
    return std::nullopt;
  }
  Variant value;
  const HRESULT done = object_.readAt(*member, index, *value);
  if (SUCCEEDED(done)) {
    return fromVariant(*value, kindOf(property));
  }
  // A plain member takes no index: what it holds does. A script's member that holds an array even raises.
  Variant whole;
  const bool isOwnFailure = LateBound::isRaised(done) && !object_.isExtended();
  if (isOwnFailure || FAILED(object_.read(*member, *whole))) {
    return std::nullopt;
  }
  const std::optional<Value> list = fromVariant(*whole, ValueKind::Object);
  const HostRef members = memberFrom(list);
  return members != nullptr ? members->item(index) : std::nullopt;
}

bool DispatchObject::setIndexed(Property property, std::int32_t index, const Value& value) {
  const std::optional<DISPID> member = memberOf(property);
  Variant given;
  if (!member || !toVariant(value, *given)) {
    return false;
  }
  const HRESULT done = object_.assignAt(*member, index, *given);
  if (SUCCEEDED(done) || LateBound::isRaised(done)) {
    return SUCCEEDED(done);
  }
  Variant whole;
  if (FAILED(object_.read(*member, *whole))) {
    return false;
  }
  const ComRef<IDispatch> list = query<IDispatch>(objectIn(*whole));
  if (!list) {
    return false;
  }
  const LateBound members(list.get());
  if (SUCCEEDED(members.assignAt(DISPID_VALUE, index, *given))) {
    return true;
  }
  const std::optional<DISPID> element = members.find(Bstr(decimal(index)));
  return element && SUCCEEDED(members.assign(*element, *given));
}

std::optional<Value> DispatchObject::item(std::int32_t index) {
  // A script's array raises an error when it is called, which its host would show.
  if (object_.isExtended() && !memberOf(Property::Count) && length()) {
    return element(index - 1);
  }
  Variant value;
  const HRESULT done = object_.readAt(DISPID_VALUE, index, *value);
  if (SUCCEEDED(done)) {
    return fromVariant(*value, ValueKind::Object);
  }
  return !LateBound::isRaised(done) && length() ? element(index - 1) : std::nullopt;
}

std::optional<Value> DispatchObject::defaultValue(ValueKind kind) {
  Variant value;
  // No further than one object: one that stands for itself would never end.
  if (FAILED(object_.read(DISPID_VALUE, *value)) || objectIn(*value) != nullptr) {
    return std::nullopt;
  }
  return fromVariant(*value, kind);
}

std::optional<std::vector<HostRef>> DispatchObject::enumerate() {
  std::optional<std::vector<HostRef>> members = byEnumerator();
  return members ? std::move(members) : byCount();
}

std::optional<std::vector<HostRef>> DispatchObject::byEnumerator() const {
  Variant value;
  DISPPARAMS none{};
  if (FAILED(object_.call(DISPID_NEWENUM, DISPATCH_METHOD | DISPATCH_PROPERTYGET, none, value.get()))) {
    return std::nullopt;
  }
  const ComRef<IEnumVARIANT> enumerator = query<IEnumVARIANT>(objectIn(*value));
  if (!enumerator) {
    return std::nullopt;
  }
  std::vector<HostRef> members;
  for (;;) {
    Variant item;
    ULONG fetched = 0;
    const HRESULT next = enumerator->Next(1, item.get(), &fetched);
    if (FAILED(next)) {
      SetErrorInfo(0, nullptr);
      return std::nullopt;
    }
    if (next != S_OK || fetched == 0) {
      return members;
    }
    members.push_back(memberFrom(fromVariant(*item, ValueKind::Object)));
  }
}

std::optional<std::vector<HostRef>> DispatchObject::byCount() {
  const std::optional<Value> told = get(Property::Count);
  const std::optional<std::int32_t> count = told ? told->asLong() : std::nullopt;
  if (!count) {
    return std::nullopt;
  }
  std::vector<HostRef> members;
  for (std::int32_t i = 1; i <= *count; ++i) {
    const std::optional<Value> member = item(i);
    if (!member) {
      return std::nullopt;
    }
    members.push_back(memberFrom(member));
  }
  return members;
}

std::optional<std::int32_t> DispatchObject::length() const {
  const std::optional<DISPID> member = object_.find(Bstr(u"length"));
  Variant value;
  if (!member || FAILED(object_.read(*member, *value))) {
    return std::nullopt;
  }
  const std::optional<Value> told = fromVariant(*value, ValueKind::Number);
  return told ? told->asLong() : std::nullopt;
}

std::optional<Value> DispatchObject::element(std::int32_t number) const {
  const std::optional<DISPID> member = object_.find(Bstr(decimal(number)));
  Variant value;
  const bool isRead = member && SUCCEEDED(object_.read(*member, *value));
  return isRead ? fromVariant(*value, ValueKind::Object) : std::nullopt;
}

}  // namespace kob::automation
