// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "../scripting/ScriptForm.h"

#include <kobtraduction/base/Text.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kob::hosts {

/// A block of a form file: an object (Begin), or a group of properties (BeginProperty).
struct FormBlock {
  std::string kind;  ///< the class; empty for a group of properties
  Text name;
  std::map<std::string, Text> values;  ///< as they stand behind "=", by their names in small letters
  std::vector<std::unique_ptr<FormBlock>> groups;
  std::vector<std::unique_ptr<FormBlock>> objects;

  const FormBlock* group(TextView groupName) const;
};

/// The form of a file in Windows-1252; throws std::runtime_error where it does not end.
std::unique_ptr<FormBlock> readFormFile(std::string_view bytes);

/// Texts that a file keeps elsewhere, by the names of the objects that hold them ("Form/Frame/Label").
using ElsewhereTexts = std::map<Text, Text>;

/// The objects of the live form that a file describes, the form first, each followed by what stands in it
/// (README.md has the rules).
std::vector<ScriptObject> liveForm(const FormBlock& form, const ElsewhereTexts& elsewhere);

}  // namespace kob::hosts
