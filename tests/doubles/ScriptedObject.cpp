// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ScriptedObject.h"

#include "Lines.h"
#include "Utf8.h"

#include <utility>

namespace kob::testing {

std::string HostCall::text() const {
  const std::string name = object->label() + "." + toUtf8(propertyName(property));
  const std::string at = "(" + std::to_string(index) + ")";
  switch (kind) {
    case Kind::Get:
      return "get " + name;
    case Kind::Set:
      return "set " + name + " = " + valueText(value);
    case Kind::GetIndexed:
      return "get " + name + at;
    case Kind::SetIndexed:
      return "set " + name + at + " = " + valueText(value);
    case Kind::Item:
      return "item " + object->label() + at;
    case Kind::Enumerate:
      break;
  }
  return "enumerate " + object->label();
}

ScriptedObject::ScriptedObject(std::string label, HostCalls& calls)
    : label_(std::move(label)), calls_(calls) {}

ScriptedObject::~ScriptedObject() = default;

void ScriptedObject::answers(Property property, Value value) {
  slot(property) = Slot();
  slot(property).value = std::move(value);
}

void ScriptedObject::lacks(Property property) {
  slot(property) = Slot();
  slot(property).isLacking = true;
}

void ScriptedObject::answersInTurn(Property property, std::deque<std::optional<Value>> answers) {
  slot(property).turns = std::move(answers);
}

void ScriptedObject::failsFromRead(Property property, int read) {
  slot(property).readsLeft = read - 1;
}

void ScriptedObject::refusesFromWrite(Property property, int write) {
  slot(property).writesLeft = write - 1;
}

void ScriptedObject::clear() {
  slots_ = {};
  members_.reset();
  before_ = nullptr;
}

bool ScriptedObject::passes(std::optional<int>& left) {
  if (!left) {
    return true;
  }
  if (*left == 0) {
    return false;
  }
  --*left;
  return true;
}

bool ScriptedObject::note(HostCall::Kind kind, Property property, std::int32_t index, const Value& value) {
  calls_.push_back({this, kind, property, index, value});
  if (before_) {
    before_(HostCall(calls_.back()));
  }
  return !vanished_;
}

const ScriptedObject::Page* ScriptedObject::currentPage() const {
  const bool has = pages_ && tab_ >= 0 && static_cast<std::size_t>(tab_) < pages_->size();
  return has ? &(*pages_)[static_cast<std::size_t>(tab_)] : nullptr;
}

ScriptedObject::Page* ScriptedObject::currentPage() {
  return const_cast<Page*>(std::as_const(*this).currentPage());
}

std::optional<Value> ScriptedObject::held(Property property) const {
  const Slot& here = slot(property);
  if (here.value || here.isLacking) {
    return here.value;
  }
  if (property == Property::Count && members_) {
    return Value(static_cast<std::int32_t>(members_->size()));
  }
  if (!pages_) {
    return std::nullopt;
  }
  switch (property) {
    case Property::Tabs:
      return Value(static_cast<std::int32_t>(pages_->size()));
    case Property::Tab:
      return Value(tab_);
    case Property::Caption:
      return currentPage() != nullptr ? std::optional<Value>(currentPage()->title) : std::nullopt;
    case Property::ToolTipText:
      return currentPage() != nullptr ? std::optional<Value>(currentPage()->tip) : std::nullopt;
    default:
      return std::nullopt;
  }
}

std::optional<Value> ScriptedObject::get(Property property) {
  if (!note(HostCall::Kind::Get, property)) {
    return std::nullopt;
  }
  Slot& here = slot(property);
  if (!passes(here.readsLeft)) {
    return std::nullopt;
  }
  if (here.turns.empty()) {
    return held(property);
  }
  std::optional<Value> answer = here.turns.front();
  if (here.turns.size() > 1) {
    here.turns.pop_front();
  }
  return answer;
}

bool ScriptedObject::store(Property property, const Value& value) {
  if (pages_ && property == Property::Tab && !slot(property).value) {
    const std::optional<std::int32_t> tab = value.asLong();
    if (!tab || *tab < 0 || static_cast<std::size_t>(*tab) >= pages_->size()) {
      return false;
    }
    tab_ = *tab;
    return true;
  }
  Page* const page = currentPage();
  if (page != nullptr && (property == Property::Caption || property == Property::ToolTipText)) {
    (property == Property::Caption ? page->title : page->tip) = value.asText().value_or(Text());
    return true;
  }
  if (!held(property)) {
    return false;
  }
  slot(property).value = value;
  return true;
}

bool ScriptedObject::set(Property property, const Value& value) {
  return note(HostCall::Kind::Set, property, 0, value) && passes(slot(property).writesLeft) &&
         store(property, value);
}

std::optional<Value> ScriptedObject::getIndexed(Property property, std::int32_t index) {
  if (!note(HostCall::Kind::GetIndexed, property, index) || !passes(slot(property).readsLeft)) {
    return std::nullopt;
  }
  const std::optional<Value> collection = slot(property).value;
  const std::optional<HostRef> object = collection ? collection->asObject() : std::nullopt;
  const auto* const members = object ? dynamic_cast<const ScriptedObject*>(object->get()) : nullptr;
  if (members == nullptr || index < 1 || static_cast<std::size_t>(index) > members->members().size()) {
    return std::nullopt;
  }
  return Value(members->members()[static_cast<std::size_t>(index) - 1]);
}

bool ScriptedObject::setIndexed(Property property, std::int32_t index, const Value& value) {
  if (!note(HostCall::Kind::SetIndexed, property, index, value) || !passes(slot(property).writesLeft)) {
    return false;
  }
  const std::optional<Text> title = value.asText();
  const bool has = property == Property::TabCaption && title && pages_ && index >= 0 &&
                   static_cast<std::size_t>(index) < pages_->size();
  if (has) {
    (*pages_)[static_cast<std::size_t>(index)].title = *title;
  }
  return has;
}

std::optional<Value> ScriptedObject::item(std::int32_t index) {
  if (!note(HostCall::Kind::Item, Property::Count, index) || !members_ || index < 1 ||
      static_cast<std::size_t>(index) > members_->size()) {
    return std::nullopt;
  }
  return Value((*members_)[static_cast<std::size_t>(index) - 1]);
}

std::optional<std::vector<HostRef>> ScriptedObject::enumerate() {
  return note(HostCall::Kind::Enumerate, Property::Count) ? members_ : std::nullopt;
}

}  // namespace kob::testing
