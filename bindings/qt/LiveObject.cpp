// SPDX-FileCopyrightText: The KOBTraduction authors
#include "LiveObject.h"

#include "FetchObject.h"
#include "Naming.h"
#include "QtValue.h"

#include <kobtraductionqt/KOBTraductionQt.h>

#include <algorithm>
#include <utility>

namespace kob::qt {

namespace {

constexpr char tagName[] = "tag";
constexpr char indexName[] = "Index";

bool isText(Property property) noexcept {
  return property == Property::Caption || property == Property::ToolTipText;
}

/// Whether the application, or somebody before, gave the object a property of these names.
bool hasTagOrIndex(const QObject& object) {
  const QList<QByteArray> names = object.dynamicPropertyNames();
  return std::any_of(names.begin(), names.end(),
                     [](const QByteArray& name) { return name == tagName || name == indexName; });
}

}  // namespace

LiveObject::LiveObject(QObject& object, HostRef owner, Link link)
    : object_(&object), data_(dataOf(object)), owner_(std::move(owner)), link_(link) {}

std::optional<Value> LiveObject::get(Property property) {
  QObject* const object = live();
  if (object == nullptr) {
    return std::nullopt;
  }
  switch (property) {
    case Property::Name:
      return Value(toText(ownName(*object)));
    case Property::Index:
      return index();
    case Property::Tag: {
      const std::optional<QVariant> tag = dynamicProperty(*object, tagName);
      return tag ? fromVariant(*tag) : Value(Text());
    }
    case Property::Container:
      return link_ == Link::Container ? std::optional<Value>(Value(owner_)) : std::nullopt;
    case Property::Parent:
      return link_ == Link::Parent ? std::optional<Value>(Value(owner_)) : std::nullopt;
    default:
      return read(property);
  }
}

bool LiveObject::set(Property property, const Value& value) {
  QObject* const object = live();
  if (object == nullptr) {
    return false;
  }
  if (property == Property::Tag) {
    return writeTag(*object, value);
  }
  if (isText(property)) {
    const std::optional<QString> text = asQString(value);
    return text && writeText(property, *text);
  }
  return write(property, value);
}

std::optional<Value> LiveObject::getIndexed(Property property, std::int32_t index) {
  return live() == nullptr ? std::nullopt : readIndexed(property, index);
}

bool LiveObject::setIndexed(Property property, std::int32_t index, const Value& value) {
  return live() != nullptr && writeIndexed(property, index, value);
}

bool LiveObject::appendText(Property property, Text& text) {
  QObject* const object = live();
  if (object == nullptr) {
    return false;
  }
  if (property == Property::Name) {
    text += units(ownName(*object));
    return true;
  }
  return (property == Property::Tag && object->dynamicPropertyNames().isEmpty()) ||
         HostObject::appendText(property, text);
}

bool LiveObject::assignText(Property property, TextView text) {
  QObject* const object = live();
  if (object == nullptr) {
    return false;
  }
  if (property == Property::Tag) {
    return (text.empty() && object->dynamicPropertyNames().isEmpty()) || writeTag(*object, Value(text));
  }
  return isText(property) ? writeText(property, toQString(text)) : write(property, Value(text));
}

bool LiveObject::mayHave(Property property) const noexcept {
  return property != Property::Controls && property != Property::Buttons && property != Property::Tabs;
}

bool LiveObject::tellPlace(PlainPlace& place) {
  const QObject* const object = live();
  if (object == nullptr || owner_ == nullptr || link_ == Link::None || hasTagOrIndex(*object)) {
    return false;
  }
  place.container = &owner_;
  place.link = link_ == Link::Container ? Property::Container : Property::Parent;
  place.name = units(ownName(*object));
  if (index_ >= 0) {
    place.name += u'(' + decimal(index_) + u')';
  }
  return true;
}

void LiveObject::fetch() const noexcept {
  fetchGuarded(object_);
  fetchData(data_);
}

const void* LiveObject::identity() const noexcept {
  const QObject* const object = live();
  return object != nullptr && !secondFace_ ? static_cast<const void*>(object) : this;
}

std::optional<Value> LiveObject::readIndexed(Property, std::int32_t) {
  return std::nullopt;
}

bool LiveObject::writeIndexed(Property, std::int32_t, const Value&) {
  return false;
}

bool LiveObject::write(Property, const Value&) {
  return false;
}

std::optional<std::int32_t> LiveObject::indexOfApplication() const {
  const std::optional<QVariant> set = dynamicProperty(*live(), indexName);
  if (!set) {
    return std::nullopt;
  }
  const std::optional<std::int32_t> number = fromVariant(*set).asLong();
  return number && *number >= 0 ? number : std::nullopt;
}

Text LiveObject::nameInPath() const {
  Text name = toText(ownName(*live()));
  const std::optional<std::int32_t> number = index_ >= 0 ? index_ : indexOfApplication();
  if (number) {
    name += u'(' + decimal(*number) + u')';
  }
  return name;
}

std::optional<Value> LiveObject::index() const {
  if (index_ >= 0) {
    return Value(index_);
  }
  const std::optional<QVariant> set = dynamicProperty(*live(), indexName);
  return set ? std::optional<Value>(fromVariant(*set)) : std::nullopt;
}

bool LiveObject::writeTag(QObject& object, const Value& value) {
  const std::optional<QString> text = asQString(value);
  if (!text) {
    return false;
  }
  const std::optional<QVariant> present = dynamicProperty(object, tagName);
  const QString presentText = present ? present->toString() : QString();
  if (presentText == *text) {
    return true;
  }
  // The engine blanks a tag and puts its text back: a tag that is not a text must not become one by that.
  if (text->isEmpty()) {
    blankedTag_ = std::make_unique<QVariant>(*present);
    object.setProperty(tagName, u""_qs);
  } else if (blankedTag_ != nullptr && presentText.isEmpty() && blankedTag_->toString() == *text) {
    object.setProperty(tagName, *std::exchange(blankedTag_, nullptr));
  } else {
    object.setProperty(tagName, *text);
  }
  return true;
}

}  // namespace kob::qt
