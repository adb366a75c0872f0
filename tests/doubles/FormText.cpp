// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FormText.h"

#include "Utf8.h"

#include <algorithm>
#include <map>
#include <stdexcept>

namespace kob::testing {

namespace {

using Defaults = std::map<std::string, Value, std::less<>>;

const Defaults& defaultsOf(const ObjectText& object) {
  static const Defaults placed{{"tag", u""}, {"Caption", u""}, {"ToolTipText", u""},
                               {"left", 0},  {"width", 100},   {"visible", true}};
  static const Defaults tabbed{{"tag", u""}, {"left", 0}, {"width", 100}, {"visible", true}, {"Tab", 0}};
  static const Defaults unplaced{{"tag", u""}, {"Caption", u""}, {"ToolTipText", u""}, {"visible", true}};
  static const Defaults page{{"tag", u""},      {"Caption", u""}, {"ToolTipText", u""},
                             {"visible", true}, {"title", u""},   {"tip", u""}};
  static const Defaults keyed{{"Caption", u""}, {"ToolTipText", u""}};
  static const Defaults bare;
  static const std::map<std::string, const Defaults*, std::less<>> kinds{
      {"form", &placed}, {"label", &placed}, {"button", &placed},  {"frame", &placed},  {"group", &placed},
      {"edit", &placed}, {"tabs", &tabbed},  {"toolbar", &placed}, {"menu", &unplaced}, {"action", &unplaced},
      {"page", &page},   {"entry", &keyed},  {"nothing", &bare},   {"object", &bare},
  };
  if (object.isToolButton) {
    return keyed;
  }
  const auto found = kinds.find(object.kind);
  if (found == kinds.end()) {
    badLine(object.line, "no kind of object");
  }
  return *found->second;
}

bool isIdKey(const std::string& key) {
  return key == "in" || key == "parent";
}

bool isProperty(const std::string& key) {
  return key == "title" || key == "tip" || propertyByName(fromUtf8(key)).has_value();
}

void readWord(ObjectText& object, const Word& word) {
  if (isIdKey(word.key) && word.hasValue) {
    (word.key == "in" ? object.in : object.parent) = toUtf8(word.value);
  } else if (word.hasValue && isProperty(word.key)) {
    object.given.push_back({word.key, valueOf(word)});
  } else if (word.key.size() > 1 && word.key.front() == '-' && isProperty(word.key.substr(1))) {
    object.given.push_back({word.key.substr(1), std::nullopt});
  } else if (word.key == "sub") {
    object.isSub = true;
  } else if (word.key == "unlisted") {
    object.isUnlisted = true;
  } else {
    badLine(object.line, "cannot read '" + word.key + "'");
  }
}

ObjectText readObject(const Line& line, const ObjectText* above) {
  const std::vector<Word> words = wordsOf(line);
  ObjectText object;
  object.line = line;
  object.kind = words.front().key;
  if (object.kind != "nothing" && (words.size() < 2 || words[1].hasValue)) {
    badLine(line, "an object has a name");
  }
  object.name = words.size() > 1 ? words[1].value : Text();
  for (std::size_t i = 2; i < words.size(); ++i) {
    readWord(object, words[i]);
  }
  object.isToolButton = object.kind == "button" && above != nullptr && above->kind == "toolbar";
  defaultsOf(object);
  return object;
}

std::string objectLine(const ObjectText& object, const KeyReader& read) {
  std::string text = object.kind;
  if (object.kind == "nothing") {
    return text;
  }
  text += " " + nameText(object.name);
  for (const std::string& key : formKeys()) {
    const GivenText* const given = object.find(key);
    const auto& defaults = defaultsOf(object);
    if (given == nullptr && defaults.find(key) == defaults.end()) {
      continue;
    }
    const std::optional<Value> value = read(object, key);
    if (!value) {
      text += " -" + key;
    } else if (given != nullptr || valueText(*value) != valueText(defaults.find(key)->second)) {
      text += " " + key + "=" + valueText(*value);
    }
  }
  return text + (object.in.empty() ? "" : " in=" + object.in) +
         (object.parent.empty() ? "" : " parent=" + object.parent) + (object.isSub ? " sub" : "") +
         (object.isUnlisted ? " unlisted" : "");
}

void print(std::string& text, const std::vector<ObjectText>& objects, int depth, const KeyReader& read) {
  for (const ObjectText& object : objects) {
    text += std::string(static_cast<std::size_t>(depth) * 2, ' ') + objectLine(object, read) + "\n";
    print(text, object.children, depth + 1, read);
  }
}

const ObjectText* find(const std::vector<ObjectText>& objects, const std::string& above,
                       std::string_view id) {
  for (const ObjectText& object : objects) {
    const std::string path = above + "/" + object.id();
    const bool isEnd =
        path.size() > id.size() && path.ends_with(id) && path[path.size() - id.size() - 1] == '/';
    if (isEnd) {
      return &object;
    }
    if (const ObjectText* const below = find(object.children, path, id)) {
      return below;
    }
  }
  return nullptr;
}

}  // namespace

std::string ObjectText::id() const {
  const GivenText* const index = find("Index");
  const std::optional<std::int32_t> number =
      index != nullptr && index->value ? index->value->asLong() : std::nullopt;
  return toUtf8(name) + (number && *number >= 0 ? "(" + std::to_string(*number) + ")" : "");
}

const GivenText* ObjectText::find(std::string_view key) const {
  const auto found =
      std::find_if(given.begin(), given.end(), [key](const GivenText& one) { return one.key == key; });
  return found == given.end() ? nullptr : &*found;
}

std::optional<Value> ObjectText::valueOf(std::string_view key) const {
  if (const GivenText* const one = find(key)) {
    return one->value;
  }
  const Defaults& defaults = defaultsOf(*this);
  const auto found = defaults.find(key);
  return found == defaults.end() ? std::nullopt : std::optional<Value>(found->second);
}

std::vector<ObjectText> parseForm(std::string_view text) {
  // The objects that the next line may stand below; a vector grows only when nothing below it is open.
  std::vector<ObjectText> objects;
  std::vector<std::vector<ObjectText>*> levels{&objects};
  for (const Line& line : linesOf(text)) {
    levels.resize(static_cast<std::size_t>(line.depth) + 1);
    const ObjectText* const above = line.depth > 0 ? &levels[levels.size() - 2]->back() : nullptr;
    levels.back()->push_back(readObject(line, above));
    levels.push_back(&levels.back()->back().children);
  }
  return objects;
}

const std::vector<std::string>& formKeys() {
  static const std::vector<std::string> keys{"Index", "tag",     "Caption", "ToolTipText", "left",
                                             "width", "visible", "Tab",     "title",       "tip"};
  return keys;
}

std::string printForm(const std::vector<ObjectText>& objects, const KeyReader& read) {
  std::string text;
  print(text, objects, 0, read);
  return text;
}

const ObjectText& findObject(const std::vector<ObjectText>& objects, std::string_view id) {
  const ObjectText* const found = find(objects, "", id);
  if (found == nullptr) {
    throw std::runtime_error("the form has no object " + std::string(id));
  }
  return *found;
}

}  // namespace kob::testing
