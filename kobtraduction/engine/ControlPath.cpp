// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/MetBefore.h>
#include <kobtraduction/engine/ControlName.h>
#include <kobtraduction/engine/ControlPath.h>
#include <kobtraduction/engine/HostModes.h>
#include <kobtraduction/engine/TagMarkers.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <vector>

namespace kob {

namespace {

/// Paths longer than this (in units) are not kept: in a form nested thousands of levels deep their total
/// length would grow with the square of the depth.
constexpr std::size_t longestKept = 4096;

}  // namespace

Text ControlPaths::pathOf(const HostRef& control) {
  // Which link leads to the form is decided once, by the control itself, for the whole chain.
  HostRef container;
  skip(container, readObject(control, Property::Container));
  const bool followsContainer = container != nullptr;
  if (!followsContainer) {
    skip(container, readObject(control, Property::Parent));
  }
  Text path = container == nullptr ? module_
              : followsContainer   ? containerPath(container, Property::Container, byContainer_)
                                   : containerPath(container, Property::Parent, byParent_);
  path += u'\\';
  path += elementName(control);
  Text tag;
  skip(tag, readText(control, Property::Tag));
  const TextView context = readMarkers(tag).context;
  if (!context.empty()) {
    path += u'\\';
    path += context;
  }
  return path;
}

Text ControlPaths::containerPath(const HostRef& container, Property link, KnownPaths& known) const {
  if (const auto found = known.find(container->identity()); found != known.end()) {
    return found->second.path;
  }
  Text path = module_;
  std::vector<Text> names;
  bool isWhole = true;
  MetBefore metBefore;
  for (HostRef current = container; current != nullptr;) {
    if (const auto found = known.find(current->identity()); found != known.end()) {
      path = found->second.path;
      break;
    }
    if (metBefore(current->identity())) {
      isWhole = false;
      break;
    }
    names.push_back(elementName(current));
    HostRef next;
    skip(next, readObject(current, link));
    current = std::move(next);
  }
  for (auto outer = names.rbegin(); outer != names.rend(); ++outer) {
    path += u'\\';
    path += *outer;
  }
  if (isWhole && path.size() <= longestKept) {
    known.emplace(container->identity(), Known{container, path});
  }
  return path;
}

Text KOBModeleTraduction::GetPath(const HostRef& Ctrl, TextView module) const {
  return ControlPaths(module).pathOf(Ctrl);
}

}  // namespace kob
