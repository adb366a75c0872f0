// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "DispatchDouble.h"

#include <bindings/automation/HostValue.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The words in which tests ask live objects of a host, as the engine does.
namespace kob::testing {

HostRef hostOf(const ComPtr<DispatchDouble>& object);
std::optional<Text> textOf(const HostRef& object, Property property);
std::optional<std::int32_t> longOf(const HostRef& object, Property property);

/// A value of that type whose content is zero.
Variant raw(VARTYPE type);
/// An array of a host that begins at `lowest`; `type` is VT_VARIANT or VT_DISPATCH.
Variant array(const std::vector<ComPtr<DispatchDouble>>& elements, LONG lowest = 0,
              VARTYPE type = VT_VARIANT);
ComPtr<DispatchDouble> named(TextView name);
/// The names of a collection's members, "nothing" for one that is none; "failed" when there is no collection.
std::string namesOf(const std::optional<std::vector<HostRef>>& members);

/// An object of a host, and how the engine sees it.
class HostObjectTest : public ::testing::Test {
 protected:
  ComPtr<DispatchDouble> object_ = makeDouble();
  HostRef host_ = hostOf(object_);
};

}  // namespace kob::testing
