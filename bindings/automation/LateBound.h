// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Com.h"

#include <cstdint>
#include <optional>

namespace kob::automation {

/// A host's object, asked by the names of its members. Error information that the host leaves when it fails
/// is dropped: it must not be taken for an error of the call that the host itself made.
class LateBound {
 public:
  explicit LateBound(IDispatch* object) noexcept : object_(object) {}

  IDispatch* object() const noexcept { return object_.get(); }

  /// Whether the object has the names of script objects, which come and go.
  bool isExtended() const noexcept { return extended() != nullptr; }
  /// The number of a member, letter case ignored where the object can do that.
  std::optional<DISPID> find(const Bstr& name) const;
  /// The same; DISP_E_UNKNOWNNAME when there is no such member.
  HRESULT find(const Bstr& name, DISPID& member) const;

  HRESULT read(DISPID member, VARIANT& value) const;
  HRESULT readAt(DISPID member, std::int32_t index, VARIANT& value) const;
  // The value stays the caller's.
  HRESULT assign(DISPID member, VARIANT& value) const;
  HRESULT assignAt(DISPID member, std::int32_t index, VARIANT& value) const;
  HRESULT call(DISPID member, WORD flags, DISPPARAMS& parameters, VARIANT* result) const;

  /// Whether the host's own code failed, and did not merely refuse the way in which it was asked.
  static bool isRaised(HRESULT result) noexcept;

 private:
  /// None for an object that has names of one kind only.
  IDispatchEx* extended() const noexcept;

  ComRef<IDispatch> object_;
  mutable ComRef<IDispatchEx> extended_;
  mutable bool isExtendedAsked_ = false;
};

}  // namespace kob::automation
