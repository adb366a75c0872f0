// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "ScriptEngine.h"

#include <kobtraduction/base/Text.h>
#include <kobtraduction/engine/Value.h>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kob::hosts {

/// A tab of a tabbed control.
struct ScriptTab {
  Text title;
  Text tip;
};

/// A live object as a script has it: what its members are. Objects are named by the variable that holds them.
struct ScriptObject {
  std::string variable;
  std::vector<std::pair<std::string, Value>> fields;  ///< properties that hold a value
  std::vector<std::string> missing;                   ///< properties that it does not have, or that fail
  std::map<std::string, std::string> links;           ///< Container, Parent: the variable of another object
  /// Controls, Buttons, ButtonMenus: the variables of the members; "" for nothing.
  std::map<std::string, std::vector<std::string>> collections;
  /// Tabs, Tab, TabCaption(i), TabTip(i), and Caption and ToolTipText of the current tab.
  std::optional<std::vector<ScriptTab>> tabs;
  int currentTab = 0;
};

/// How a script writes what there are several ways to write.
struct ScriptStyle {
  ScriptLanguage language = ScriptLanguage::VBScript;
  enum class Collections {
    OwnClass,    ///< Count and a default Item(i), without an enumerator
    Enumerated,  ///< the application's: Count, Item and an enumerator
    Array,       ///< arrays of JScript; in VBScript only Controls, for what the others have it cannot index
  } collections = Collections::OwnClass;
  bool raises = false;  ///< a missing property is there, and raises an error (VBScript)
};

/// Runs the statements that make the objects and tie them together. An object of JScript has no property that
/// is assigned with an index, nor, in the version of the language that every engine knows, one that runs
/// code: the tabbed controls of its forms are objects of VBScript, as those of an application are the
/// application's. Their engine is what is returned, to be kept as long as the form; none where there are
/// none. Throws ComError.
std::unique_ptr<ScriptEngine> makeForm(ScriptEngine& engine, const std::vector<ScriptObject>& objects,
                                       const ScriptStyle& style);

/// A value as the language writes it.
Text literalOf(const Value& value, ScriptLanguage language);

}  // namespace kob::hosts
