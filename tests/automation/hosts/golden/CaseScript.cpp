// SPDX-FileCopyrightText: The KOBTraduction authors
#include "CaseScript.h"

#include <kobtraduction/engine/HostObject.h>
#include <tests/doubles/Utf8.h>

#include <algorithm>

namespace kob::hosts {

namespace {

using testing::ObjectText;

bool isKeyed(const ObjectText& text) {
  return text.isToolButton || text.kind == "entry";
}

bool isPage(const ObjectText& text) {
  return text.kind == "page";
}

bool isSub(const ObjectText& text) {
  return text.isSub;
}

Text textOf(const ObjectText& text, std::string_view key) {
  const std::optional<Value> value = text.valueOf(key);
  return value ? value->asText().value_or(Text()) : Text();
}

/// The name under which a form's text and its live object both know a property.
std::optional<Property> propertyOf(const std::string& key) {
  return propertyByName(testing::fromUtf8(key));
}

}  // namespace

CaseForm::CaseForm(std::string_view formText) : texts_(testing::parseForm(formText)) {
  for (const ObjectText& text : texts_) {
    build(text, nullptr);
  }
  for (const ObjectText& text : texts_) {
    link(text, nullptr);
  }
}

std::string CaseForm::form() const {
  return variables_.at(&texts_.front());
}

std::string CaseForm::variable(std::string_view id) const {
  return variables_.at(&testing::findObject(texts_, id));
}

ScriptObject& CaseForm::objectOf(const ObjectText& text) {
  const std::string& variable = variables_.at(&text);
  return *std::find_if(objects_.begin(), objects_.end(),
                       [&variable](const ScriptObject& one) { return one.variable == variable; });
}

void CaseForm::build(const ObjectText& text, const ObjectText* above) {
  if (text.kind == "nothing") {
    variables_[&text] = "";
    return;
  }
  ScriptObject object;
  object.variable = "o" + std::to_string(objects_.size() + 1);
  variables_[&text] = object.variable;
  object.fields.emplace_back(isKeyed(text) ? "Key" : "Name", text.name);
  const bool isTabbed = text.kind == "tabs";
  for (const std::string& key : testing::formKeys()) {
    const std::optional<Value> value = text.valueOf(key);
    if (propertyOf(key) && value && !(key == "Tab" && isTabbed)) {
      object.fields.emplace_back(key, *value);
    }
  }
  for (const testing::GivenText& given : text.given) {
    const auto& keys = testing::formKeys();
    if (!given.value) {
      object.missing.push_back(given.key);
      std::erase_if(object.fields, [&given](const auto& field) { return field.first == given.key; });
    } else if (propertyOf(given.key) && std::count(keys.begin(), keys.end(), given.key) == 0) {
      object.fields.emplace_back(given.key, *given.value);
    }
  }
  if (isTabbed) {
    object.tabs.emplace();
    for (const ObjectText& child : text.children) {
      if (isPage(child)) {
        object.tabs->push_back({textOf(child, "title"), textOf(child, "tip")});
      }
    }
    object.currentTab = text.valueOf("Tab").value_or(0).asLong().value_or(0);
  }
  objects_.push_back(std::move(object));
  for (const ObjectText& child : text.children) {
    build(child, &text);
  }
  auto& collections = objectOf(text).collections;
  const auto members = [this, &text](const std::function<bool(const ObjectText&)>& isWanted) {
    std::vector<std::string> variables;
    for (const ObjectText& child : text.children) {
      if (isWanted(child)) {
        variables.push_back(variables_.at(&child));
      }
    }
    return variables;
  };
  const auto isAny = [](const ObjectText&) { return true; };
  if (text.kind == "toolbar") {
    collections["Buttons"] = members(isAny);
  } else if (text.isToolButton) {
    collections["ButtonMenus"] = members(isAny);
  } else if (std::any_of(text.children.begin(), text.children.end(), isSub)) {
    collections["Controls"] = members(isSub);
  }
  if (above == nullptr && text.kind == "form") {
    list(text, collections["Controls"] = {});
  }
}

void CaseForm::list(const ObjectText& text, std::vector<std::string>& controls) const {
  for (const ObjectText& child : text.children) {
    if (!isKeyed(child) && !child.isSub && !child.isUnlisted) {
      controls.push_back(variables_.at(&child));
    }
    list(child, controls);
  }
}

void CaseForm::link(const ObjectText& text, const ObjectText* above) {
  for (const ObjectText& child : text.children) {
    link(child, &text);
  }
  if (text.kind == "nothing") {
    return;
  }
  ScriptObject& object = objectOf(text);
  if (!text.parent.empty()) {
    object.links["Parent"] = variable(text.parent);
  } else if (!text.in.empty()) {
    object.links["Container"] = variable(text.in);
  } else if (text.kind == "menu" || text.kind == "action") {
    object.links["Parent"] = form();
  } else if (above != nullptr && !isKeyed(text)) {
    object.links["Container"] = variables_.at(above);
  }
  // What a line says itself holds, whatever stands above or below it.
  for (const testing::GivenText& given : text.given) {
    object.links.erase(given.key);
    object.collections.erase(given.key);
  }
}

std::string CaseForm::print(const LiveObject& live) const {
  return testing::printForm(texts_, [this, &live](const ObjectText& text, const std::string& key) {
    return read(text, key, live);
  });
}

std::optional<Value> CaseForm::read(const ObjectText& text, const std::string& key,
                                    const LiveObject& live) const {
  const bool isTitle = key == "title";
  try {
    if (!isTitle && key != "tip") {
      return valueOf(get(live(variables_.at(&text)).get(), testing::fromUtf8(key)));
    }
    for (const auto& [tabs, variable] : variables_) {
      std::int32_t position = 0;
      for (const ObjectText& child : tabs->children) {
        if (&child == &text) {
          return valueOf(
              call(live(variable).get(), isTitle ? u"TabCaption" : u"TabTip", {Variant(position)}));
        }
        position += isPage(child) ? 1 : 0;
      }
    }
  } catch (const ComError&) {
    return std::nullopt;
  }
  return std::nullopt;
}

std::optional<Value> valueOf(const Variant& held) {
  switch (held.type()) {
    case VT_BSTR:
      return held.text();
    case VT_BOOL:
      return held.boolean();
    case VT_I2:
    case VT_I4:
      return held.number();
    case VT_R8:
      return held.get()->dblVal;
    case VT_EMPTY:
    case VT_NULL:
    case VT_DISPATCH:
      return Value();
    default:
      return std::nullopt;
  }
}

}  // namespace kob::hosts
