// SPDX-FileCopyrightText: The KOBTraduction authors
#include "HostVocabulary.h"

namespace kob::testing {

HostRef hostOf(const ComPtr<DispatchDouble>& object) {
  return automation::hostOf(static_cast<IUnknown*>(object.get()));
}

std::optional<Text> textOf(const HostRef& object, Property property) {
  const std::optional<Value> value = object->get(property);
  return value ? value->asText() : std::nullopt;
}

std::optional<std::int32_t> longOf(const HostRef& object, Property property) {
  const std::optional<Value> value = object->get(property);
  return value ? value->asLong() : std::nullopt;
}

Variant raw(VARTYPE type) {
  Variant value;
  value.get()->vt = type;
  return value;
}

Variant array(const std::vector<ComPtr<DispatchDouble>>& elements, LONG lowest, VARTYPE type) {
  SAFEARRAYBOUND bound = {static_cast<ULONG>(elements.size()), lowest};
  Variant value = raw(static_cast<VARTYPE>(VT_ARRAY | type));
  value.get()->parray = SafeArrayCreate(type, 1, &bound);
  for (const ComPtr<DispatchDouble>& element : elements) {
    LONG place = lowest++;
    Variant held(static_cast<IDispatch*>(element.get()));
    SafeArrayPutElement(
        value.get()->parray, &place,
        type == VT_VARIANT ? static_cast<void*>(held.get()) : static_cast<void*>(element.get()));
  }
  return value;
}

std::string namesOf(const std::optional<std::vector<HostRef>>& members) {
  if (!members) {
    return "failed";
  }
  std::string names;
  for (const HostRef& member : *members) {
    const std::optional<Text> name = member != nullptr ? textOf(member, Property::Name) : Text(u"nothing");
    names += (names.empty() ? "" : " ") + (name ? toUtf8(*name) : "?");
  }
  return names;
}

ComPtr<DispatchDouble> named(TextView name) {
  ComPtr<DispatchDouble> object = makeDouble();
  object->set(u"Name", Variant(name));
  return object;
}

}  // namespace kob::testing
