// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/engine/HostObject.h>

#include <array>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kob::testing {

class ScriptedObject;

/// One operation that the engine asked of a scripted object.
struct HostCall {
  enum class Kind { Get, Set, GetIndexed, SetIndexed, Item, Enumerate };

  const ScriptedObject* object;
  Kind kind;
  Property property;
  std::int32_t index;
  Value value;

  bool writes() const noexcept { return kind == Kind::Set || kind == Kind::SetIndexed; }
  /// "get cmdOk.Caption", "set cmdOk.left = 12", "get Open.ButtonMenus(1)", "item tbMain.Buttons(2)",
  /// "enumerate FrmMain.Controls".
  std::string text() const;
};

using HostCalls = std::vector<HostCall>;

/// A host object that does what a test says: each property may be there, absent, failing from the n-th read
/// or write on, or answering a series of values. It notes every call.
class ScriptedObject final : public HostObject {
 public:
  struct Page {
    Text title;
    Text tip;
  };

  ScriptedObject(std::string label, HostCalls& calls);
  ~ScriptedObject() override;

  /// What tests and messages call it.
  const std::string& label() const noexcept { return label_; }

  // The script.

  void answers(Property property, Value value);
  void lacks(Property property);
  /// One answer for each read, the last one for all later ones; an empty one fails.
  void answersInTurn(Property property, std::deque<std::optional<Value>> answers);
  /// Reads fail from the n-th on, counted from now (1 = the next one).
  void failsFromRead(Property property, int read);
  void refusesFromWrite(Property property, int write);
  void refuses(Property property) { refusesFromWrite(property, 1); }
  /// From now on everything fails.
  void vanish() noexcept { vanished_ = true; }
  /// Runs before each call is answered.
  void before(std::function<void(const HostCall&)> action) { before_ = std::move(action); }

  /// Makes it a collection of these members.
  void setMembers(std::vector<HostRef> members) { members_ = std::move(members); }
  /// Makes it a tabbed control: Tabs, Tab, and Caption and ToolTipText of the tab that is current.
  void setPages(std::vector<Page> pages) { pages_ = std::move(pages); }

  // What is there now.

  std::optional<Value> held(Property property) const;
  const std::vector<HostRef>& members() const { return *members_; }
  const std::vector<Page>& pages() const { return *pages_; }
  /// Lets go of everything: objects that hold one another would never die.
  void clear();

  // As a host object.
  std::optional<Value> get(Property property) override;
  bool set(Property property, const Value& value) override;
  std::optional<Value> getIndexed(Property property, std::int32_t index) override;
  bool setIndexed(Property property, std::int32_t index, const Value& value) override;
  std::optional<Value> item(std::int32_t index) override;
  std::optional<std::vector<HostRef>> enumerate() override;

 private:
  struct Slot {
    std::optional<Value> value;
    std::deque<std::optional<Value>> turns;
    bool isLacking = false;
    std::optional<int> readsLeft;
    std::optional<int> writesLeft;
  };

  Slot& slot(Property property) { return slots_[static_cast<std::size_t>(property)]; }
  const Slot& slot(Property property) const { return slots_[static_cast<std::size_t>(property)]; }
  /// Notes the call; whether the object still answers.
  bool note(HostCall::Kind kind, Property property, std::int32_t index = 0, const Value& value = {});
  /// Whether the script lets this read / write through.
  static bool passes(std::optional<int>& left);
  Page* currentPage();
  const Page* currentPage() const;
  bool store(Property property, const Value& value);

  std::string label_;
  HostCalls& calls_;
  std::array<Slot, propertyCount> slots_;
  std::optional<std::vector<HostRef>> members_;
  std::optional<std::vector<Page>> pages_;
  std::int32_t tab_ = 0;
  std::function<void(const HostCall&)> before_;
  bool vanished_ = false;
};

}  // namespace kob::testing
