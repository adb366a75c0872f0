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

  /// The path of a form, a control or a control record; never fails. It lives until the next one is asked
  /// for.
  const Text& pathOf(const HostRef& control);
  /// What the paths of the controls in a container begin with, `link` being what leads from one to the next.
  /// It lives until the next one is asked for.
  const Text& pathInside(const HostRef& container, Property link);

 private:
  struct Known {
    /// Keeps the identity from being given to another object.
    HostRef container;
    Text path;
  };
  using KnownPaths = std::unordered_map<const void*, Known>;

  /// Makes path_ the path of a container.
  void startWith(const HostRef& container, Property link, KnownPaths& known);
  void findOrWrite(const HostRef& container, Property link, KnownPaths& known);

  Text module_;
  /// One buffer for all paths: most calls need no memory of their own.
  Text path_;
  KnownPaths byContainer_;
  KnownPaths byParent_;
  /// Siblings mostly follow one another: the known container that path_ begins with, and how much of it is
  /// that container's.
  const Known* begun_ = nullptr;
  Property begunLink_ = Property::Container;
  std::size_t begunLength_ = 0;
};

}  // namespace kob
