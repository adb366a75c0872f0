// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Com.h"

#include <kobtraduction/engine/HostObject.h>

#include <array>
#include <atomic>

namespace kob::automation {

/// The numbers of the engine's properties in all objects of one class.
class ClassMembers {
 public:
  ClassMembers() noexcept;

  /// DISPID_UNKNOWN for a property that the class does not have, `notAsked` when that is not known yet.
  DISPID of(Property property) const noexcept {
    return members_[at(property)].load(std::memory_order_relaxed);
  }
  void set(Property property, DISPID member) noexcept {
    members_[at(property)].store(member, std::memory_order_relaxed);
  }

  static constexpr DISPID notAsked = -0x7FFFFFFF;

 private:
  static std::size_t at(Property property) noexcept { return static_cast<std::size_t>(property); }

  std::array<std::atomic<DISPID>, propertyCount> members_;
};

/// What is known of an object's class; it stays for good. Null for an object whose members may be its own:
/// only a class that describes itself, and says that no member can be added to its objects, has one number
/// for a name in all of them. Any thread.
ClassMembers* classMembersOf(IDispatch& object) noexcept;

}  // namespace kob::automation
