// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Export.h>
#include <kobtraduction/base/Text.h>
#include <kobtraduction/engine/Value.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace kob {

/// The properties that the engine asks of host objects: a closed set, so that a binding can switch on it or
/// keep a dispatch identifier for each.
enum class Property : std::uint8_t {
  Name,
  Index,
  Container,
  Parent,
  Tag,
  Caption,
  ToolTipText,
  Left,
  Width,
  Visible,
  Controls,
  Buttons,
  ButtonMenus,
  Key,
  Tabs,
  Tab,
  TabCaption,
  Count,
};

/// How many properties there are; they number from 0.
inline constexpr int propertyCount = static_cast<int>(Property::Count) + 1;

/// A property's name in the letters in which the engine asks for it ("Name", "tag", "left" ...).
KOB_EXPORT TextView propertyName(Property property) noexcept;

/// The property of a name, letter case ignored; empty when the engine knows no such property.
KOB_EXPORT std::optional<Property> propertyByName(TextView name) noexcept;

class HostObject;

/// What leads to an object and what it is called there, as an object without a context tells it at once.
struct PlainPlace {
  /// The object that `link` ("Container" or "Parent") leads to, never nothing; lives as long as the object.
  const HostRef* container = nullptr;
  Property link = Property::Container;
  /// The name as it stands in a path, with its index.
  Text name;
};

/// A form, control, toolbar button, button menu or collection of the host application, as the engine sees it.
///
/// Asking an object for what it does not have is the ordinary case: every operation answers "failed" (an
/// empty value, or false) at the cost of a branch, and throws nothing. Each operation here fails unless a
/// binding overrides it. Called on the host's own thread only; an object whose live counterpart is gone
/// answers "failed" to everything.
class KOB_EXPORT HostObject {
 public:
  HostObject() = default;
  HostObject(const HostObject&) = delete;
  HostObject& operator=(const HostObject&) = delete;
  virtual ~HostObject();

  virtual std::optional<Value> get(Property property);
  virtual bool set(Property property, const Value& value);
  /// A property called with one index: `TabCaption(i)` counts from 0, `ButtonMenus(j)` from 1.
  virtual std::optional<Value> getIndexed(Property property, std::int32_t index);
  virtual bool setIndexed(Property property, std::int32_t index, const Value& value);
  /// The default member called with one index: a collection's item, from 1.
  virtual std::optional<Value> item(std::int32_t index);
  /// The members of a collection, in the host's order; a member may be null.
  virtual std::optional<std::vector<HostRef>> enumerate();

  // Shortcuts for texts, which save the value in between. They answer as get and set do, by calling these
  // unless a binding overrides them too.

  /// Appends a property to `text`; false, and nothing appended, when it cannot be read as a text.
  virtual bool appendText(Property property, Text& text);
  /// The view need not outlive a change of the model: whoever runs an application's code takes a copy first.
  virtual bool assignText(Property property, TextView text);

  // Shortcuts for bindings that know an answer without asking the live object. The engine then saves the
  // questions; without an override they are asked, one by one and in their order.

  /// False when a property is never answered; true when only reading it tells.
  virtual bool mayHave(Property property) const noexcept;
  /// Tells the object's place when its tag reads "" and writing "" to it does nothing; false, and any place,
  /// for all others. Neither this nor reading any property of the object or of what it stands in may run code
  /// of the application.
  virtual bool tellPlace(PlainPlace& place);

  /// Says that the object is asked soon: a binding whose live objects lie apart in memory may have them
  /// fetched meanwhile. Runs no code of the application.
  virtual void fetch() const noexcept;

  /// The same for two references to one live object, different for any two others while both are held.
  virtual const void* identity() const noexcept;
};

/// A collection that holds its members: answers "count", its items and their enumeration.
class KOB_EXPORT HostCollection final : public HostObject {
 public:
  explicit HostCollection(std::vector<HostRef> members) noexcept;

  std::optional<Value> get(Property property) override;
  std::optional<Value> item(std::int32_t index) override;
  std::optional<std::vector<HostRef>> enumerate() override;

 private:
  std::vector<HostRef> members_;
};

}  // namespace kob
