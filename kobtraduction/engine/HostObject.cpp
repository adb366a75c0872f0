// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/engine/HostObject.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace kob {

namespace {

/// In the order of Property, and in the letters in which hosts are asked.
constexpr TextView names[] = {
    u"Name",        u"Index", u"Container", u"Parent",  u"tag",        u"Caption",
    u"ToolTipText", u"left",  u"width",     u"visible", u"Controls",   u"Buttons",
    u"ButtonMenus", u"Key",   u"Tabs",      u"Tab",     u"TabCaption", u"count",
};
static_assert(std::size(names) == propertyCount);

}  // namespace

TextView propertyName(Property property) noexcept {
  return names[static_cast<int>(property)];
}

std::optional<Property> propertyByName(TextView name) noexcept {
  const auto* const found = std::find_if(std::begin(names), std::end(names),
                                         [name](TextView known) { return equalUpper(known, name); });
  if (found == std::end(names)) {
    return std::nullopt;
  }
  return static_cast<Property>(found - std::begin(names));
}

HostObject::~HostObject() = default;

std::optional<Value> HostObject::get(Property /*property*/) {
  return std::nullopt;
}

bool HostObject::set(Property /*property*/, const Value& /*value*/) {
  return false;
}

std::optional<Value> HostObject::getIndexed(Property /*property*/, std::int32_t /*index*/) {
  return std::nullopt;
}

bool HostObject::setIndexed(Property /*property*/, std::int32_t /*index*/, const Value& /*value*/) {
  return false;
}

std::optional<Value> HostObject::item(std::int32_t /*index*/) {
  return std::nullopt;
}

std::optional<std::vector<HostRef>> HostObject::enumerate() {
  return std::nullopt;
}

bool HostObject::appendText(Property property, Text& text) {
  const std::optional<Value> value = get(property);
  if (value && value->text() != nullptr) {
    text += *value->text();
    return true;
  }
  const std::optional<Text> converted = value ? value->asText() : std::nullopt;
  if (converted) {
    text += *converted;
  }
  return converted.has_value();
}

bool HostObject::assignText(Property property, TextView text) {
  return set(property, Value(text));
}

bool HostObject::mayHave(Property /*property*/) const noexcept {
  return true;
}

bool HostObject::tellPlace(PlainPlace& /*place*/) {
  return false;
}

void HostObject::fetch() const noexcept {}

const void* HostObject::identity() const noexcept {
  return this;
}

HostCollection::HostCollection(std::vector<HostRef> members) noexcept : members_(std::move(members)) {}

std::optional<Value> HostCollection::get(Property property) {
  if (property != Property::Count) {
    return std::nullopt;
  }
  return Value(static_cast<std::int32_t>(members_.size()));
}

std::optional<Value> HostCollection::item(std::int32_t index) {
  if (index < 1 || static_cast<std::size_t>(index) > members_.size()) {
    return std::nullopt;
  }
  return Value(members_[static_cast<std::size_t>(index) - 1]);
}

std::optional<std::vector<HostRef>> HostCollection::enumerate() {
  return members_;
}

}  // namespace kob
