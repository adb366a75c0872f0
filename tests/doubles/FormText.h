// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Lines.h"

#include <kobtraduction/engine/HostObject.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A form as text: one object per line, `kind name property=value ...`, indented below its container.
///
///   form FrmMain Caption="Accueil" width=600
///     frame Frame1 left=10
///       button cmdOk Index=1 Caption="OK" tag="Vente[C]"
///     toolbar tbMain
///       button Open Caption="Ouvrir"
///
/// tests/golden/README.md has the kinds and what each of them answers when its line does not say so.
namespace kob::testing {

/// A property as a line gives it: its name and its value, empty for `-name` (the object does not have it).
struct GivenText {
  std::string key;
  std::optional<Value> value;
};

struct ObjectText {
  Line line;
  std::string kind;
  Text name;
  std::vector<GivenText> given;
  std::string in;           ///< another container than the object above
  std::string parent;       ///< a Parent, and no Container
  bool isSub = false;       ///< stands in the Controls of its container, not of the form
  bool isUnlisted = false;  ///< stands in no Controls
  std::vector<ObjectText> children;

  /// Its name, with its Index when it has one: what `in=` and tests call it.
  std::string id() const;
  /// What the line gives for a key; null when it gives none.
  const GivenText* find(std::string_view key) const;
  /// What the line gives, else what the kind has; empty when the object does not have it.
  std::optional<Value> valueOf(std::string_view key) const;
  bool isToolButton = false;
};

/// The objects without anything above them; throws std::runtime_error for what it cannot read.
std::vector<ObjectText> parseForm(std::string_view text);

/// The property keys of a line, in the order in which they are printed.
const std::vector<std::string>& formKeys();

/// Reads one key of a live object; empty when it does not have it.
using KeyReader = std::function<std::optional<Value>(const ObjectText&, const std::string& key)>;

/// The text of live objects: what their lines gave, as it is now, and what differs from the kind's own
/// values.
std::string printForm(const std::vector<ObjectText>& objects, const KeyReader& read);

/// The object of that id, or of that end of a path of ids joined by "/"; throws when there is none.
const ObjectText& findObject(const std::vector<ObjectText>& objects, std::string_view id);

}  // namespace kob::testing
