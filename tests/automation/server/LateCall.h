// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "LoadedServer.h"

#include <vector>

namespace kob::testing {

/// One call by name, with everything that can be told about it.
class LateCall {
 public:
  LateCall(IDispatch* object, TextView member) : object_(object), member_(member) {}

  /// As they stand between parentheses.
  std::vector<Variant> arguments;
  /// Names of the last arguments.
  std::vector<Text> names;

  // What came back.
  Variant result;
  HRESULT number = S_OK;
  Text source;
  Text description;

  /// Reads a property or calls a method.
  HRESULT call() { return invoke(DISPATCH_METHOD | DISPATCH_PROPERTYGET); }
  /// Assigns the last argument.
  HRESULT put() { return invoke(DISPATCH_PROPERTYPUT); }
  HRESULT putReference() { return invoke(DISPATCH_PROPERTYPUTREF); }

 private:
  HRESULT invoke(WORD how);

  IDispatch* object_;
  Text member_;
};

/// An argument that is left out.
Variant missing();
/// The host's own variable, by reference.
Variant reference(VARIANT& variable);

}  // namespace kob::testing
