// SPDX-FileCopyrightText: The KOBTraduction authors
#include "ScriptForm.h"

#include <tests/doubles/Lines.h>
#include <tests/doubles/Utf8.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <set>

namespace kob::hosts {

namespace {

using testing::fromUtf8;

Text digits(std::size_t number) {
  return fromUtf8(std::to_string(number));
}

Text vbText(TextView text) {
  Text literal = u"\"";
  for (const char16_t unit : text) {
    if (unit == u'"') {
      literal += u"\"\"";
    } else if (unit < u' ') {
      literal += u"\" & Chr(" + digits(unit) + u") & \"";
    } else {
      literal += unit;
    }
  }
  return literal + u"\"";
}

Text jsText(TextView text) {
  Text literal = u"\"";
  for (const char16_t unit : text) {
    std::array<char, 8> escape{};
    if (unit < u' ' || unit == u'"' || unit == u'\\' || unit >= 0x7F) {
      std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(unit));
      literal += fromUtf8(escape.data());
    } else {
      literal += unit;
    }
  }
  return literal + u"\"";
}

/// VBScript: a class for each set of members, then the objects.
class VbWriter {
 public:
  explicit VbWriter(const ScriptStyle& style) : style_(style) {}

  Text write(const std::vector<ScriptObject>& objects) {
    for (const ScriptObject& object : objects) {
      make(object);
    }
    for (const ScriptObject& object : objects) {
      tie(object);
    }
    return classes_ + statements_;
  }

  /// Those with tabs alone, not tied to anything yet.
  Text writeTabbed(const std::vector<ScriptObject>& objects) {
    for (const ScriptObject& object : objects) {
      if (object.tabs) {
        make(object);
      }
    }
    return classes_ + statements_;
  }

 private:
  void say(const Text& statement) { statements_ += statement + u"\n"; }

  void make(const ScriptObject& object) {
    const Text name = fromUtf8(object.variable);
    say(u"Dim " + name);
    say(u"Set " + name + u" = New " + classOf(object));
    for (const auto& [key, value] : object.fields) {
      say((value.isNothing() ? u"Set " : u"") + name + u"." + fromUtf8(key) + u" = " +
          literalOf(value, ScriptLanguage::VBScript));
    }
    for (std::size_t i = 0; object.tabs && i < object.tabs->size(); ++i) {
      const ScriptTab& tab = (*object.tabs)[i];
      say(name + u".SetTab " + digits(i) + u", " + vbText(tab.title) + u", " + vbText(tab.tip));
    }
    if (object.tabs) {
      say(name + u".shown = " + digits(static_cast<std::size_t>(object.currentTab)));
    }
  }

  void tie(const ScriptObject& object) {
    const Text name = fromUtf8(object.variable);
    for (const auto& [key, other] : object.links) {
      say(u"Set " + name + u"." + fromUtf8(key) + u" = " + fromUtf8(other));
    }
    for (const auto& [key, members] : object.collections) {
      const Text list = name + u"_" + fromUtf8(key);
      const auto item = [](const std::string& member) {
        return member.empty() ? u"Nothing" : fromUtf8(member);
      };
      if (style_.collections == ScriptStyle::Collections::Array && key == "Controls") {
        say(u"Dim " + list + u"(" + digits(members.empty() ? 0 : members.size() - 1) + u")");
        for (std::size_t i = 0; i < members.size(); ++i) {
          say(u"Set " + list + u"(" + digits(i) + u") = " + item(members[i]));
        }
        say(assignment(name, key, list));
        continue;
      }
      const bool isOwn = style_.collections != ScriptStyle::Collections::Enumerated;
      say(u"Dim " + list);
      say(u"Set " + list + u" = " + (isOwn ? u"New " + listClass(members.size()) : u"NewList()"));
      for (std::size_t i = 0; i < members.size(); ++i) {
        say(list + (isOwn ? u".Put " + digits(i + 1) + u", " : u".Add ") + item(members[i]));
      }
      say(u"Set " + assignment(name, key, list));
    }
  }

  Text classOf(const ScriptObject& object) {
    Text body;
    std::set<std::string> has;
    const auto add = [&](const std::string& key) {
      if (has.insert(key).second) {
        body += u"  Public " + fromUtf8(key) + u"\n";
      }
    };
    for (const auto& [key, value] : object.fields) {
      add(key);
    }
    for (const auto& [key, other] : object.links) {
      add(key);
    }
    for (const auto& [key, members] : object.collections) {
      add(key);
    }
    if (object.tabs) {
      body += tabMembers(object.tabs->size());
    }
    for (const std::string& key : object.missing) {
      if (style_.raises && has.insert(key).second) {
        body += raisingMember(fromUtf8(key));
      }
    }
    const auto [found, isNew] = names_.try_emplace(body, u"Kind" + digits(names_.size() + 1));
    if (isNew) {
      classes_ += u"Class " + found->second + u"\n" + body + u"End Class\n";
    }
    return found->second;
  }

  static Text assignment(const Text& object, const std::string& key, const Text& value) {
    return object + u"." + fromUtf8(key) + u" = " + value;
  }

  static Text raisingMember(const Text& name) {
    return u"  Public Property Get " + name + u"\n    Err.Raise 438\n  End Property\n" +
           u"  Public Property Let " + name + u"(value)\n    Err.Raise 438\n  End Property\n";
  }

  static Text tabMembers(std::size_t count) {
    const Text n = digits(count);
    const auto ofShown = [](const Text& name, const Text& from) {
      return u"  Public Property Get " + name + u"\n    " + name + u" = " + from +
             u"(shown)\n  End Property\n" + u"  Public Property Let " + name + u"(value)\n    " + from +
             u"(shown) = value\n  End Property\n";
    };
    const auto indexed = [](const Text& name, const Text& from) {
      return u"  Public Property Get " + name + u"(i)\n    " + name + u" = " + from +
             u"(i)\n  End Property\n" + u"  Public Property Let " + name + u"(i, value)\n    " + from +
             u"(i) = value\n  End Property\n";
    };
    return u"  Dim titles(" + n + u")\n  Dim tips(" + n + u")\n  Public shown\n" +
           u"  Public Sub SetTab(i, title, tip)\n    titles(i) = title\n    tips(i) = tip\n  End Sub\n" +
           u"  Public Property Get Tabs\n    Tabs = " + n + u"\n  End Property\n" +
           u"  Public Property Get Tab\n    Tab = shown\n  End Property\n" +
           u"  Public Property Let Tab(value)\n    If value < 0 Or value >= " + n +
           u" Then\n      Err.Raise 380\n    End If\n    shown = value\n  End Property\n" +
           ofShown(u"Caption", u"titles") + ofShown(u"ToolTipText", u"tips") +
           indexed(u"TabCaption", u"titles") + indexed(u"TabTip", u"tips");
  }

  Text listClass(std::size_t count) {
    Text name = u"List" + digits(count);
    if (lists_.insert(count).second) {
      classes_ += u"Class " + name + u"\n  Dim items(" + digits(count) + u")\n  Public Property Get Count\n" +
                  u"    Count = " + digits(count) + u"\n  End Property\n" +
                  u"  Public Default Property Get Item(i)\n    Set Item = items(i)\n  End Property\n" +
                  u"  Public Sub Put(i, value)\n    Set items(i) = value\n  End Sub\nEnd Class\n";
    }
    return name;
  }

  ScriptStyle style_;
  std::map<Text, Text> names_;
  std::set<std::size_t> lists_;
  Text classes_;
  Text statements_;
};

/// How JScript makes a collection of the items of an array.
const char16_t* jsList(ScriptStyle::Collections collections) {
  switch (collections) {
    case ScriptStyle::Collections::Enumerated:
      return u"  var all = NewList(), i;\n  for (i = 0; i < items.length; i++) all.Add(items[i]);\n  return "
             u"all;\n";
    case ScriptStyle::Collections::Array:
      return u"  return items;\n";
    case ScriptStyle::Collections::OwnClass:
      break;
  }
  return u"  var all = function (i) { return items[i - 1]; };\n"
         u"  all.Count = items.length;\n  all.Item = all;\n  return all;\n";
}

/// Under which name a script is handed what it is to have in a variable.
Text handed(const ScriptObject& object) {
  return u"made_" + fromUtf8(object.variable);
}

Text jScript(const std::vector<ScriptObject>& objects, const ScriptStyle& style) {
  Text text = Text(u"function list(items) {\n") + jsList(style.collections) + u"}\n";
  for (const ScriptObject& object : objects) {
    text += u"var " + fromUtf8(object.variable) + u" = ";
    if (object.tabs) {
      text += handed(object) + u";\n";
      continue;
    }
    text += u"{";
    const char16_t* separator = u"";
    for (const auto& [key, value] : object.fields) {
      text += separator + fromUtf8(key) + u": " + literalOf(value, ScriptLanguage::JScript);
      separator = u", ";
    }
    text += u"};\n";
  }
  for (const ScriptObject& object : objects) {
    const Text name = fromUtf8(object.variable);
    for (const auto& [key, other] : object.links) {
      text += name + u"." + fromUtf8(key) + u" = " + fromUtf8(other) + u";\n";
    }
    for (const auto& [key, members] : object.collections) {
      text += name + u"." + fromUtf8(key) + u" = list([";
      for (std::size_t i = 0; i < members.size(); ++i) {
        text += (i > 0 ? u", " : u"") + (members[i].empty() ? Text(u"null") : fromUtf8(members[i]));
      }
      text += u"]);\n";
    }
  }
  return text;
}

void runForm(ScriptEngine& engine, TextView script) {
  if (const std::optional<ScriptError> error = engine.run(script)) {
    throw ComError{error->number, error->number, error->message(u"form")};
  }
}

}  // namespace

Text literalOf(const Value& value, ScriptLanguage language) {
  const bool isVb = language == ScriptLanguage::VBScript;
  if (const Text* const text = value.text()) {
    return isVb ? vbText(*text) : jsText(*text);
  }
  if (value.isNothing()) {
    return isVb ? u"Nothing" : u"null";
  }
  return fromUtf8(testing::valueText(value));
}

std::unique_ptr<ScriptEngine> makeForm(ScriptEngine& engine, const std::vector<ScriptObject>& objects,
                                       const ScriptStyle& style) {
  if (style.language == ScriptLanguage::VBScript) {
    runForm(engine, VbWriter(style).write(objects));
    return nullptr;
  }
  std::unique_ptr<ScriptEngine> tabbed;
  if (std::any_of(objects.begin(), objects.end(), [](const auto& one) { return one.tabs.has_value(); })) {
    tabbed = std::make_unique<ScriptEngine>(ScriptLanguage::VBScript);
    runForm(*tabbed, VbWriter(style).writeTabbed(objects));
  }
  for (const ScriptObject& object : objects) {
    if (object.tabs) {
      engine.add(handed(object), tabbed->variable(fromUtf8(object.variable)).object().get());
    }
  }
  runForm(engine, jScript(objects, style));
  return tabbed;
}

}  // namespace kob::hosts
