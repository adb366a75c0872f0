// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "ClassMembers.h"
#include "HostValue.h"
#include "LateBound.h"

#include <kobtraduction/engine/HostObject.h>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace kob::automation {

/// A live object of an automation host. Whatever the host answers that is of no use (an error, an object that
/// is gone, a value that makes no sense) is a failed operation.
///
/// A name is looked up once per object and call: an object of this class lives no longer than one call of the
/// component. What was not found is looked for again, since a script may add it meanwhile. For compiled
/// classes that are closed a name is looked up once and for all.
class DispatchObject final : public HostObject {
 public:
  explicit DispatchObject(IDispatch* object) : object_(object) {}

  std::optional<Value> get(Property property) override;
  bool set(Property property, const Value& value) override;
  std::optional<Value> getIndexed(Property property, std::int32_t index) override;
  bool setIndexed(Property property, std::int32_t index, const Value& value) override;
  std::optional<Value> item(std::int32_t index) override;
  std::optional<std::vector<HostRef>> enumerate() override;
  bool appendText(Property property, Text& text) override;
  bool assignText(Property property, TextView text) override;
  const void* identity() const noexcept override;

  /// What the object stands for where a text or a number is expected.
  std::optional<Value> defaultValue(ValueKind kind);

 private:
  std::optional<DISPID> memberOf(Property property);
  std::optional<DISPID> lookUp(Property property);
  std::optional<std::vector<HostRef>> byEnumerator() const;
  std::optional<std::vector<HostRef>> byCount();
  /// How many members an array of a script language has, which is an object with the names "0", "1" ...
  std::optional<std::int32_t> length() const;
  std::optional<Value> element(std::int32_t number) const;

  LateBound object_;
  mutable ComRef<IUnknown> identity_;
  std::array<DISPID, propertyCount> members_{};
  ClassMembers* class_ = nullptr;
  bool isClassAsked_ = false;
  /// A bit for each property whose member is known.
  std::uint32_t known_ = 0;
  static_assert(propertyCount <= 32);
};

}  // namespace kob::automation
