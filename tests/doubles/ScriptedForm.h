// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "FormText.h"
#include "ScriptedObject.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kob::testing {

/// Scripted host objects built from the text of a form (FormText.h). It owns them: a reference taken out of
/// it answers nothing more once the form is gone.
class ScriptedForm {
 public:
  explicit ScriptedForm(std::string_view text);
  ScriptedForm(const ScriptedForm&) = delete;
  ScriptedForm& operator=(const ScriptedForm&) = delete;
  ~ScriptedForm();

  /// The first object of the text.
  HostRef form() const { return ref(objects_.front().id()); }
  /// An object by its id ("cmdOk(1)"), or by the end of its path ("Frame1/cmdOk(1)").
  ScriptedObject& operator[](std::string_view id) const;
  HostRef ref(std::string_view id) const;
  /// The collection behind "Controls", "Buttons" or "ButtonMenus" of an object.
  ScriptedObject& collection(std::string_view id, Property property) const;

  /// The form as text, as it is now.
  std::string print() const;

  HostCalls& calls() noexcept { return calls_; }
  /// The calls that a condition picks, one per line.
  std::string callTexts(const std::function<bool(const HostCall&)>& isWanted) const;
  /// The calls on one object, and the writes on all of them.
  std::string callsOn(std::string_view id) const;
  std::string writes() const;

 private:
  std::shared_ptr<ScriptedObject> make(std::string label);
  void build(const ObjectText& text, const ObjectText* above);
  void buildPages(const ObjectText& text, ScriptedObject& object);
  std::vector<HostRef> childrenOf(const ObjectText& text,
                                  const std::function<bool(const ObjectText&)>& isWanted);
  void setCollection(ScriptedObject& object, Property property, std::vector<HostRef> members);
  void list(const ObjectText& text, std::vector<HostRef>& controls);
  void link(const ObjectText& text, const ObjectText* above);
  std::optional<Value> readKey(const ObjectText& text, const std::string& key) const;

  std::vector<ObjectText> objects_;
  std::map<const ObjectText*, std::shared_ptr<ScriptedObject>> built_;
  std::vector<std::shared_ptr<ScriptedObject>> all_;
  HostCalls calls_;
};

}  // namespace kob::testing
