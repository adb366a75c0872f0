// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "../scripting/ScriptForm.h"

#include <tests/doubles/FormText.h>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace kob::hosts {

/// The form of a case (tests/golden) as objects of a script.
class CaseForm {
 public:
  /// Throws std::runtime_error for what it cannot read.
  explicit CaseForm(std::string_view formText);
  CaseForm(const CaseForm&) = delete;
  CaseForm& operator=(const CaseForm&) = delete;

  const std::vector<ScriptObject>& objects() const noexcept { return objects_; }
  /// The variable of the form itself, and of an object by its id.
  std::string form() const;
  std::string variable(std::string_view id) const;

  /// The form as text, each value read from the live object of a variable.
  using LiveObject = std::function<ComPtr<IDispatch>(const std::string& variable)>;
  std::string print(const LiveObject& live) const;

 private:
  using ObjectText = testing::ObjectText;

  void build(const ObjectText& text, const ObjectText* above);
  void link(const ObjectText& text, const ObjectText* above);
  void list(const ObjectText& text, std::vector<std::string>& controls) const;
  ScriptObject& objectOf(const ObjectText& text);
  std::optional<Value> read(const ObjectText& text, const std::string& key, const LiveObject& live) const;

  std::vector<ObjectText> texts_;
  std::map<const ObjectText*, std::string> variables_;  ///< "" for nothing
  std::vector<ScriptObject> objects_;
};

/// A value as automation holds it; empty for one that the tests' texts cannot say.
std::optional<Value> valueOf(const Variant& held);

}  // namespace kob::hosts
