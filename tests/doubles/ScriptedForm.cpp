// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ScriptedForm.h"

#include "Utf8.h"

#include <algorithm>
#include <stdexcept>

namespace kob::testing {

namespace {

bool isKeyed(const ObjectText& text) {
  return text.isToolButton || text.kind == "entry";
}

bool isPage(const ObjectText& text) {
  return text.kind == "page";
}

/// Menus and actions belong to the form as a whole.
bool isOfForm(const ObjectText& text) {
  return text.kind == "menu" || text.kind == "action";
}

Text textOf(const ObjectText& text, std::string_view key) {
  const std::optional<Value> value = text.valueOf(key);
  return value ? value->asText().value_or(Text()) : Text();
}

}  // namespace

ScriptedForm::ScriptedForm(std::string_view text) : objects_(parseForm(text)) {
  for (const ObjectText& object : objects_) {
    build(object, nullptr);
  }
  for (const ObjectText& object : objects_) {
    link(object, nullptr);
  }
}

ScriptedForm::~ScriptedForm() {
  for (const auto& object : all_) {
    object->clear();
    object->vanish();
  }
}

std::shared_ptr<ScriptedObject> ScriptedForm::make(std::string label) {
  return all_.emplace_back(std::make_shared<ScriptedObject>(std::move(label), calls_));
}

void ScriptedForm::build(const ObjectText& text, const ObjectText* above) {
  if (text.kind == "nothing") {
    built_[&text] = nullptr;
    return;
  }
  const auto object = make(text.id());
  built_[&text] = object;
  object->answers(isKeyed(text) ? Property::Key : Property::Name, text.name);
  for (const std::string& key : formKeys()) {
    const std::optional<Property> property = propertyByName(fromUtf8(key));
    const std::optional<Value> value = text.valueOf(key);
    // A tabbed control answers the current tab's texts and number, unless its line gives others.
    if (property && value && key != "title" && !(key == "Tab" && text.kind == "tabs")) {
      object->answers(*property, *value);
    }
  }
  for (const ObjectText& child : text.children) {
    build(child, &text);
  }
  if (text.kind == "tabs") {
    buildPages(text, *object);
  }
  const auto isAny = [](const ObjectText&) { return true; };
  if (text.kind == "toolbar") {
    setCollection(*object, Property::Buttons, childrenOf(text, isAny));
  } else if (text.isToolButton) {
    setCollection(*object, Property::ButtonMenus, childrenOf(text, isAny));
  } else if (const auto isSub = [](const ObjectText& child) { return child.isSub; };
             std::any_of(text.children.begin(), text.children.end(), isSub)) {
    setCollection(*object, Property::Controls, childrenOf(text, isSub));
  }
  if (above == nullptr && text.kind == "form") {
    std::vector<HostRef> controls;
    list(text, controls);
    setCollection(*object, Property::Controls, std::move(controls));
  }
}

void ScriptedForm::buildPages(const ObjectText& text, ScriptedObject& object) {
  std::vector<ScriptedObject::Page> pages;
  for (const ObjectText& child : text.children) {
    if (isPage(child)) {
      pages.push_back({textOf(child, "title"), textOf(child, "tip")});
    }
  }
  object.setPages(std::move(pages));
  if (const std::optional<Value> tab = text.valueOf("Tab")) {
    object.set(Property::Tab, *tab);
    calls_.clear();
  }
}

std::vector<HostRef> ScriptedForm::childrenOf(const ObjectText& text,
                                              const std::function<bool(const ObjectText&)>& isWanted) {
  std::vector<HostRef> children;
  for (const ObjectText& child : text.children) {
    if (isWanted(child)) {
      children.push_back(built_.at(&child));
    }
  }
  return children;
}

void ScriptedForm::setCollection(ScriptedObject& object, Property property, std::vector<HostRef> members) {
  const auto collection = make(object.label() + "." + toUtf8(propertyName(property)));
  collection->setMembers(std::move(members));
  object.answers(property, HostRef(collection));
}

void ScriptedForm::list(const ObjectText& text, std::vector<HostRef>& controls) {
  for (const ObjectText& child : text.children) {
    if (!isKeyed(child) && !child.isSub && !child.isUnlisted) {
      controls.push_back(built_.at(&child));
    }
    list(child, controls);
  }
}

void ScriptedForm::link(const ObjectText& text, const ObjectText* above) {
  for (const ObjectText& child : text.children) {
    link(child, &text);
  }
  const auto& object = built_.at(&text);
  if (object == nullptr) {
    return;
  }
  if (!text.parent.empty()) {
    object->answers(Property::Parent, ref(text.parent));
  } else if (!text.in.empty()) {
    object->answers(Property::Container, ref(text.in));
  } else if (isOfForm(text)) {
    object->answers(Property::Parent, form());
  } else if (above != nullptr && !isKeyed(text)) {
    object->answers(Property::Container, HostRef(built_.at(above)));
  }
  for (const GivenText& given : text.given) {
    const std::optional<Property> property = propertyByName(fromUtf8(given.key));
    const bool isBuilt = std::count(formKeys().begin(), formKeys().end(), given.key) != 0;
    if (property && !given.value) {
      object->lacks(*property);
    } else if (property && !isBuilt) {
      object->answers(*property, *given.value);
    }
  }
}

ScriptedObject& ScriptedForm::operator[](std::string_view id) const {
  return *built_.at(&findObject(objects_, id));
}

HostRef ScriptedForm::ref(std::string_view id) const {
  return built_.at(&findObject(objects_, id));
}

ScriptedObject& ScriptedForm::collection(std::string_view id, Property property) const {
  const std::optional<Value> held = (*this)[id].held(property);
  const std::optional<HostRef> object = held ? held->asObject() : std::nullopt;
  if (!object || *object == nullptr) {
    throw std::runtime_error(std::string(id) + " has no " + toUtf8(propertyName(property)));
  }
  return dynamic_cast<ScriptedObject&>(**object);
}

std::optional<Value> ScriptedForm::readKey(const ObjectText& text, const std::string& key) const {
  const auto& object = built_.at(&text);
  const bool isTitle = key == "title";
  if (!isTitle && key != "tip") {
    return object->held(*propertyByName(fromUtf8(key)));
  }
  for (const auto& [tabs, tabbed] : built_) {
    std::size_t position = 0;
    for (const ObjectText& child : tabs->children) {
      if (&child == &text) {
        return isTitle ? tabbed->pages()[position].title : tabbed->pages()[position].tip;
      }
      position += isPage(child) ? 1 : 0;
    }
  }
  return std::nullopt;
}

std::string ScriptedForm::print() const {
  return printForm(objects_,
                   [this](const ObjectText& text, const std::string& key) { return readKey(text, key); });
}

std::string ScriptedForm::callTexts(const std::function<bool(const HostCall&)>& isWanted) const {
  std::string texts;
  for (const HostCall& call : calls_) {
    if (isWanted(call)) {
      texts += call.text() + "\n";
    }
  }
  return texts;
}

std::string ScriptedForm::callsOn(std::string_view id) const {
  const ScriptedObject* const object = &(*this)[id];
  return callTexts([object](const HostCall& call) { return call.object == object; });
}

std::string ScriptedForm::writes() const {
  return callTexts([](const HostCall& call) { return call.writes(); });
}

}  // namespace kob::testing
