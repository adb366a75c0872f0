// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "LoadedServer.h"

#include <tests/automation/hosts/scripting/Counted.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace kob::testing {

/// One call of a member of a DispatchDouble.
class Call {
 public:
  Call(WORD how, DISPPARAMS& parameters, VARIANT* result)
      : how_(how), parameters_(parameters), result_(result) {}

  bool isPut() const { return (how_ & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0; }
  bool isMethod() const { return (how_ & DISPATCH_METHOD) != 0; }
  UINT count() const { return parameters_.cArgs; }
  /// Counted from 0 as they stand between parentheses; the value that is assigned is the last.
  Variant argument(UINT number) const;
  /// Gives a value to the caller.
  HRESULT give(const Variant& value) const;
  /// Gives what no honest host would.
  HRESULT giveRaw(const VARIANT& value) const;

 private:
  WORD how_;
  DISPPARAMS& parameters_;
  VARIANT* result_;
};

using Member = std::function<HRESULT(const Call&)>;

/// A host's object that is made of members, which can be told to fail, and that notes what it is asked. Names
/// are found in any letter case.
class DispatchDouble final : public hosts::Counted<IDispatch> {
 public:
  DispatchDouble() = default;

  /// A property that can be read and assigned.
  void set(TextView name, Variant value);
  void set(TextView name, const ComPtr<DispatchDouble>& object);
  void setFunction(TextView name, Member member);
  /// The default member.
  void setDefault(Member member) { special_[DISPID_VALUE] = std::move(member); }
  void setEnumerator(Member member) { special_[DISPID_NEWENUM] = std::move(member); }
  /// What a property holds now.
  Variant value(TextView name) const;
  /// The object describes itself so.
  void setType(ComPtr<ITypeInfo> type) { type_ = std::move(type); }
  /// How often a name was looked up.
  int lookUps = 0;
  /// Everything fails with this result from now on.
  void die(HRESULT result) { dead_ = result; }
  /// Kinds of calls by name, in order: "get tag", "put tag" ...; the default member is "item".
  std::vector<std::string> calls;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID reserved, LCID locale, WORD flags,
                                   DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                   UINT* wrongArgument) override;

 private:
  struct Property {
    Text name;
    Variant value;
    Member member;
  };

  Property& property(TextView name);

  HRESULT dead_ = S_OK;
  ComPtr<ITypeInfo> type_;
  /// A member's number is its place, from 1.
  std::vector<Property> properties_;
  std::map<DISPID, Member> special_;
};

ComPtr<DispatchDouble> makeDouble();

/// A collection with a count and a default item, and with an enumerator if so wanted.
ComPtr<DispatchDouble> makeCollection(const std::vector<ComPtr<DispatchDouble>>& members,
                                      bool isEnumerated = false);

}  // namespace kob::testing
