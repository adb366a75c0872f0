// SPDX-FileCopyrightText: The KOBTraduction authors
#include "FormFile.h"

#include <windows.h>

#include <tests/doubles/Utf8.h>

#include <algorithm>
#include <charconv>
#include <set>
#include <stdexcept>

namespace kob::hosts {

namespace {

using testing::toUtf8;

Text decoded(std::string_view bytes) {
  constexpr UINT westEuropean = 1252;
  const int size =
      MultiByteToWideChar(westEuropean, 0, bytes.data(), static_cast<int>(bytes.size()), nullptr, 0);
  Text text(static_cast<std::size_t>(size), u'\0');
  MultiByteToWideChar(westEuropean, 0, bytes.data(), static_cast<int>(bytes.size()),
                      reinterpret_cast<wchar_t*>(text.data()), size);
  return text;
}

TextView trimmed(TextView text) {
  const auto isBlank = [](char16_t unit) { return unit == u' ' || unit == u'\t' || unit == u'\r'; };
  while (!text.empty() && isBlank(text.front())) {
    text.remove_prefix(1);
  }
  while (!text.empty() && isBlank(text.back())) {
    text.remove_suffix(1);
  }
  return text;
}

/// Takes the first word off a line.
TextView takeWord(TextView& line) {
  const std::size_t end = std::min(line.find(u' '), line.size());
  const TextView word = line.substr(0, end);
  line = trimmed(line.substr(end));
  return word;
}

std::string small(TextView name) {
  std::string letters = toUtf8(name);
  std::transform(letters.begin(), letters.end(), letters.begin(), [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
  });
  return letters;
}

class Reader {
 public:
  std::unique_ptr<FormBlock> read(TextView text) {
    while (!text.empty()) {
      const std::size_t end = std::min(text.find(u'\n'), text.size());
      take(trimmed(text.substr(0, end)));
      if (isOver_) {
        return std::move(form_);
      }
      text.remove_prefix(std::min(end + 1, text.size()));
    }
    throw std::runtime_error("the form does not end");
  }

 private:
  void take(TextView line) {
    TextView rest = line;
    const TextView word = takeWord(rest);
    if (word == u"Begin") {
      auto block = std::make_unique<FormBlock>();
      block->kind = toUtf8(takeWord(rest));
      block->name = takeWord(rest);
      open(std::move(block), &FormBlock::objects);
    } else if (open_.empty()) {
      return;
    } else if (word == u"BeginProperty") {
      auto block = std::make_unique<FormBlock>();
      block->name = takeWord(rest);
      open(std::move(block), &FormBlock::groups);
    } else if (line == u"End" || line == u"EndProperty") {
      open_.pop_back();
      isOver_ = open_.empty();
    } else if (const std::size_t equals = line.find(u'='); equals != TextView::npos) {
      open_.back()->values[small(trimmed(line.substr(0, equals)))] = trimmed(line.substr(equals + 1));
    }
  }

  void open(std::unique_ptr<FormBlock> block, std::vector<std::unique_ptr<FormBlock>> FormBlock::*below) {
    FormBlock* const opened = block.get();
    if (open_.empty()) {
      form_ = std::move(block);
    } else {
      (open_.back()->*below).push_back(std::move(block));
    }
    open_.push_back(opened);
  }

  std::unique_ptr<FormBlock> form_;
  std::vector<FormBlock*> open_;
  bool isOver_ = false;
};

/// What a value is: `"text"`, `"file":offset` (kept elsewhere), `$"file":offset` (a text kept elsewhere), a
/// number.
struct FormValue {
  std::optional<Text> text;
  std::optional<double> number;
  bool isTextElsewhere = false;
};

FormValue valueOf(const FormBlock& block, const std::string& key) {
  FormValue value;
  const auto found = block.values.find(key);
  if (found == block.values.end()) {
    return value;
  }
  TextView raw = found->second;
  value.isTextElsewhere = raw.starts_with(u"$\"");
  if (value.isTextElsewhere) {
    return value;
  }
  if (!raw.starts_with(u'"')) {
    const std::string digits = toUtf8(raw.substr(0, raw.find(u' ')));
    double number = 0;
    if (std::from_chars(digits.data(), digits.data() + digits.size(), number).ec == std::errc()) {
      value.number = number;
    }
    return value;
  }
  Text text;
  for (raw.remove_prefix(1); !raw.empty(); raw.remove_prefix(1)) {
    const bool isQuote = raw.front() == u'"';
    if (isQuote && !raw.substr(1).starts_with(u'"')) {
      if (raw.substr(1).starts_with(u':')) {
        return value;
      }
      break;
    }
    if (isQuote) {
      raw.remove_prefix(1);
    }
    text += raw.front();
  }
  value.text = text;
  return value;
}

class LiveFormBuilder {
 public:
  explicit LiveFormBuilder(const ElsewhereTexts& elsewhere) : elsewhere_(elsewhere) {}

  std::vector<ScriptObject> build(const FormBlock& form) {
    ScriptObject object = named(form.name, "Name");
    object.fields.emplace_back("Caption", textOf(form, "caption", form.name).value_or(Text()));
    object.fields.emplace_back("ToolTipText", u"");
    object.fields.emplace_back("tag", textOf(form, "tag", form.name).value_or(Text()));
    object.fields.emplace_back("left", numberOf(form, "clientleft").value_or(0));
    object.fields.emplace_back("width", numberOf(form, "clientwidth").value_or(0));
    object.fields.emplace_back("visible", true);
    form_ = object.variable;
    objects_.push_back(std::move(object));
    addAll(form, form_, form.name);
    objects_.front().collections["Controls"] = controls_;
    return std::move(objects_);
  }

 private:
  ScriptObject named(const Text& name, const char* key) {
    ScriptObject object;
    object.variable = "o" + std::to_string(++count_);
    object.fields.emplace_back(key, name);
    return object;
  }

  std::optional<Text> textOf(const FormBlock& block, const std::string& key, const Text& path) const {
    const FormValue value = valueOf(block, key);
    if (value.isTextElsewhere) {
      const auto found = elsewhere_.find(path);
      return found == elsewhere_.end() ? std::nullopt : std::optional(found->second);
    }
    return value.number ? Value(*value.number).asText() : value.text;
  }

  static std::optional<double> numberOf(const FormBlock& block, const std::string& key) {
    return valueOf(block, key).number;
  }

  void addAll(const FormBlock& above, const std::string& container, const Text& pathAbove) {
    for (const auto& block : above.objects) {
      const Text path = pathAbove + u"/" + block->name;
      const std::size_t place = objects_.size();
      objects_.push_back(control(*block, container, path));
      controls_.push_back(objects_[place].variable);
      addButtons(*block, place);
      // A copy: the objects move when there are more of them.
      addAll(*block, std::string(objects_[place].variable), path);
    }
  }

  ScriptObject control(const FormBlock& block, const std::string& container, const Text& path) {
    static const std::set<std::string> withCaption{"VB.Label",        "VB.CommandButton", "VB.CheckBox",
                                                   "VB.OptionButton", "VB.Frame",         "VB.Menu"};
    ScriptObject object = named(block.name, "Name");
    const bool isTabbed = block.kind == "TabDlg.SSTab";
    if (const auto index = numberOf(block, "index")) {
      object.fields.emplace_back("Index", static_cast<std::int32_t>(*index));
    }
    object.fields.emplace_back("tag", textOf(block, "tag", path).value_or(Text()));
    bool isPlaced = false;
    for (const char* const key : {"left", "width"}) {
      if (const auto number = numberOf(block, key)) {
        object.fields.emplace_back(key, *number);
        isPlaced = true;
      }
    }
    object.fields.emplace_back("visible", numberOf(block, "visible").value_or(-1) != 0);
    const std::optional<Text> caption = textOf(block, "caption", path);
    const std::optional<Text> tip = textOf(block, "tooltiptext", path);
    if (!isTabbed && (caption || withCaption.count(block.kind) != 0)) {
      object.fields.emplace_back("Caption", caption.value_or(Text()));
    }
    if (!isTabbed && (tip || isPlaced)) {
      object.fields.emplace_back("ToolTipText", tip.value_or(Text()));
    }
    if (block.kind == "VB.Menu") {
      object.links["Parent"] = form_;
    } else {
      object.links["Container"] = container;
    }
    if (isTabbed) {
      addTabs(block, object, tip.value_or(Text()));
    }
    return object;
  }

  void addTabs(const FormBlock& block, ScriptObject& object, const Text& tip) const {
    std::vector<ScriptTab> tabs;
    const int count = static_cast<int>(numberOf(block, "tabs").value_or(3));
    for (int i = 0; i < count; ++i) {
      const std::string number = std::to_string(i);
      const Text ownTitle = u"Tab " + testing::fromUtf8(number);
      tabs.push_back({textOf(block, "tabcaption(" + number + ")", {}).value_or(ownTitle), tip});
    }
    object.tabs = std::move(tabs);
    object.currentTab = static_cast<int>(numberOf(block, "tab").value_or(0));
  }

  void addButtons(const FormBlock& block, std::size_t place) {
    if (const FormBlock* const buttons = block.group(u"Buttons")) {
      objects_[place].collections["Buttons"];
      for (const auto& button : buttons->groups) {
        addButton(*button, place);
      }
    }
    if (const FormBlock* const pages = block.group(u"Tabs")) {
      // A tab strip of another family: its Tabs are objects and not a number.
      objects_[place].collections["Tabs"];
      for (const auto& page : pages->groups) {
        ScriptObject object = keyed(*page, "caption", {});
        objects_[place].collections["Tabs"].push_back(object.variable);
        objects_.push_back(std::move(object));
      }
    }
  }

  void addButton(const FormBlock& block, std::size_t toolbar) {
    const std::optional<Text> tip = textOf(block, "object.tooltiptext", {});
    ScriptObject button =
        keyed(block, "caption", tip ? *tip : textOf(block, "tooltiptext", {}).value_or(Text()));
    button.collections["ButtonMenus"];
    const std::size_t place = objects_.size();
    objects_[toolbar].collections["Buttons"].push_back(button.variable);
    objects_.push_back(std::move(button));
    if (const FormBlock* const menus = block.group(u"ButtonMenus")) {
      for (const auto& menu : menus->groups) {
        ScriptObject entry = keyed(*menu, "text", {});
        objects_[place].collections["ButtonMenus"].push_back(entry.variable);
        objects_.push_back(std::move(entry));
      }
    }
  }

  ScriptObject keyed(const FormBlock& block, const std::string& captionKey, const Text& tip) {
    ScriptObject object = named(textOf(block, "key", {}).value_or(Text()), "Key");
    object.fields.emplace_back("Caption", textOf(block, captionKey, {}).value_or(Text()));
    object.fields.emplace_back("ToolTipText", tip);
    return object;
  }

  const ElsewhereTexts& elsewhere_;
  std::vector<ScriptObject> objects_;
  std::vector<std::string> controls_;
  std::string form_;
  int count_ = 0;
};

}  // namespace

const FormBlock* FormBlock::group(TextView groupName) const {
  const auto found = std::find_if(groups.begin(), groups.end(),
                                  [groupName](const auto& one) { return equalUpper(one->name, groupName); });
  return found == groups.end() ? nullptr : found->get();
}

std::unique_ptr<FormBlock> readFormFile(std::string_view bytes) {
  return Reader().read(decoded(bytes));
}

std::vector<ScriptObject> liveForm(const FormBlock& form, const ElsewhereTexts& elsewhere) {
  return LiveFormBuilder(elsewhere).build(form);
}

}  // namespace kob::hosts
