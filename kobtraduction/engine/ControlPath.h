// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>
#include <kobtraduction/engine/HostObject.h>

#include <unordered_map>

namespace kob {

/// Writes the paths of the controls of one call. The path of a container is built once per call, by the
/// object's identity; everything else is read from the host every time. Internal.
class ControlPaths {
 public:
  explicit ControlPaths(TextView module) : module_(module) {}

  /// The path of a form, a control or a control record; never fails.
  Text pathOf(const HostRef& control);

 private:
  struct Known {
    /// Keeps the identity from being given to another object.
    HostRef container;
    Text path;
  };
  using KnownPaths = std::unordered_map<const void*, Known>;

  Text containerPath(const HostRef& container, Property link, KnownPaths& known) const;

  Text module_;
  KnownPaths byContainer_;
  KnownPaths byParent_;
};

}  // namespace kob
