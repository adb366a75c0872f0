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

const Text& ControlPaths::pathOf(const HostRef& control) {
  // Which link leads to the form is decided once, by the control itself, for the whole chain.
  HostRef container;
  skip(container, readObject(control, Property::Container));
  const bool followsContainer = container != nullptr;
  if (!followsContainer) {
    skip(container, readObject(control, Property::Parent));
  }
  if (container == nullptr) {
    path_ = module_;
    begun_ = nullptr;
  } else {
    pathInside(container, followsContainer ? Property::Container : Property::Parent);
  }
  path_ += u'\\';
  appendElementName(path_, control);
  Text tag;
  appendText(tag, control, Property::Tag);
  const TextView context = readMarkers(tag).context;
  if (!context.empty()) {
    path_ += u'\\';
    path_ += context;
  }
  return path_;
}

const Text& ControlPaths::pathInside(const HostRef& container, Property link) {
  startWith(container, link, link == Property::Container ? byContainer_ : byParent_);
  return path_;
}

void ControlPaths::startWith(const HostRef& container, Property link, KnownPaths& known) {
  if (begun_ != nullptr && begunLink_ == link && begun_->container->identity() == container->identity()) {
    path_.resize(begunLength_);
    return;
  }
  findOrWrite(container, link, known);
  const auto found = known.find(container->identity());
  begun_ = found != known.end() ? &found->second : nullptr;
  begunLink_ = link;
  begunLength_ = path_.size();
}

void ControlPaths::findOrWrite(const HostRef& container, Property link, KnownPaths& known) {
  if (const auto found = known.find(container->identity()); found != known.end()) {
    path_ = found->second.path;
    return;
  }
  path_ = module_;
  std::vector<Text> names;
  bool isWhole = true;
  MetBefore metBefore;
  for (HostRef current = container; current != nullptr;) {
    if (const auto found = known.find(current->identity()); found != known.end()) {
      path_ = found->second.path;
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
    path_ += u'\\';
    path_ += *outer;
  }
  if (isWhole && path_.size() <= longestKept) {
    known.emplace(container->identity(), Known{container, path_});
  }
}

Text KOBModeleTraduction::GetPath(const HostRef& Ctrl, TextView module) const {
  return ControlPaths(module).pathOf(Ctrl);
}

}  // namespace kob
