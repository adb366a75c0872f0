// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/base/MetBefore.h>
#include <kobtraduction/component/Global_Util.h>
#include <kobtraduction/engine/ControlName.h>
#include <kobtraduction/engine/ControlPath.h>
#include <kobtraduction/engine/GatheredControls.h>
#include <kobtraduction/engine/HarvestedControl.h>
#include <kobtraduction/engine/HostModes.h>
#include <kobtraduction/engine/TagMarkers.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <algorithm>
#include <exception>
#include <optional>

namespace kob {

namespace {

using CellRef = std::shared_ptr<KOBCellTraduction>;

/// The names of a control's containers, outermost first.
using Chain = std::vector<Text>;

void report(StepMarker step) {
  Global_Util::messageBoxes().notice(u"ERREUR " + decimal(step));
}

/// The cell below which forms stand: the root, or the module's cell, made when it is missing.
CellRef moduleCell(const KOBModeleTraduction& model, TextView module) {
  if (module.empty()) {
    return model.Racine();
  }
  CellRef cell = model.Racine()->GetCell(module);
  return cell != nullptr ? cell : model.Racine()->AddNoeuds(module);
}

/// The form's own cell, made or brought up to date. The form's tag is its context as it stands, and its tool
/// tip is not recorded.
CellRef formCell(const CellRef& parent, const HostRef& form, const Text& formName) {
  CellRef known = mustBeSet(parent).GetCell(formName);
  const Text caption = must(readText(form, Property::Caption));
  const Text tag = must(readText(form, Property::Tag));
  const std::int32_t width = positionIndicator(must(readDouble(form, Property::Width)));
  std::int32_t ignored = 0;
  if (known != nullptr) {
    known->UpdateCtrl({}, caption, 0, width, ignored, {}, tag);
    return known;
  }
  parent->AddCtrl(formName, {}, caption, 0, width, ignored, {}, tag);
  return parent->GetCell(formName);
}

/// The containers of a control of a form, up to the object that is named like the form. They are found by
/// name, unlike the elements of a path: a frame that bears its form's name ends the chain too.
class ContainerChain {
 public:
  ContainerChain(const Text& formName, bool onlyVisible, StepMarker& step)
      : formName_(formName), onlyVisible_(onlyVisible), step_(step) {}

  /// Empty when a container is hidden and hidden controls are left out.
  std::optional<Chain> of(const HostRef& control) {
    step_ = 42;
    names_.clear();
    step_ = 421;
    HostRef container;
    skip(container, readObject(control, Property::Container));
    if (container == nullptr) {
      followParents(control);
    } else if (!followContainers(std::move(container))) {
      return std::nullopt;
    }
    std::reverse(names_.begin(), names_.end());
    return std::move(names_);
  }

 private:
  /// Skip mode: the chain ends where a link is missing.
  void followParents(const HostRef& control) {
    HostRef parent;
    skip(parent, readObject(control, Property::Parent));
    MetBefore metBefore;
    while (parent != nullptr && !metBefore(parent->identity()) && nameOf(parent) != formName_) {
      names_.push_back(elementName(parent));
      HostRef next;
      skip(next, readObject(parent, Property::Parent));
      parent = std::move(next);
    }
  }

  /// Handler mode once the first container was looked at; only its name, index and visibility are forgiven.
  /// False when a container is hidden.
  bool followContainers(HostRef container) {
    step_ = 422;
    MetBefore metBefore;
    Text name = nameOf(container);
    while (name != formName_ && !metBefore(container->identity())) {
      step_ = 423;
      Text element = elementName(container);
      bool shown = true;
      if (onlyVisible_) {
        skip(shown, readBoolean(container, Property::Visible));
      }
      if (!shown) {
        return false;
      }
      step_ = 424;
      names_.push_back(std::move(element));
      step_ = 425;
      container = must(readObject(container, Property::Container));
      step_ = 422;
      name = must(readText(container, Property::Name));
    }
    return true;
  }

  static Text nameOf(const HostRef& object) {
    Text name;
    skip(name, readText(object, Property::Name));
    return name;
  }

  const Text& formName_;
  bool onlyVisible_;
  StepMarker& step_;
  Chain names_;
};

/// Everything that holds a control, the form included; skip mode throughout.
Chain wholeChain(const HostRef& control, StepMarker& step) {
  step = 42;
  Property link = Property::Container;
  step = 421;
  HostRef holder;
  skip(holder, readObject(control, link));
  if (holder == nullptr) {
    link = Property::Parent;
    skip(holder, readObject(control, link));
  }
  Chain names;
  MetBefore metBefore;
  while (holder != nullptr && !metBefore(holder->identity())) {
    names.push_back(elementName(holder));
    HostRef next;
    skip(next, readObject(holder, link));
    holder = std::move(next);
  }
  std::reverse(names.begin(), names.end());
  return names;
}

void harvestForm(const KOBModeleTraduction& model, const HostRef& form, TextView module, bool onlyVisible,
                 const HostRef& onlyContainer, StepMarker& step) {
  step = 1;
  const Text formName = must(readText(form, Property::Name));
  step = 2;
  const CellRef parent = moduleCell(model, module);
  step = 3;
  const CellRef top = formCell(parent, form, formName);
  ControlPaths paths(module);
  Text wantedStart;
  if (onlyContainer != nullptr) {
    wantedStart = paths.pathOf(onlyContainer);
  }
  const std::vector<HostRef> controls = gatherControls(form, RecordBinding::Unbound);
  step = 4;
  ContainerChain containers(formName, onlyVisible, step);
  KeptTexts kept;
  for (const HostRef& control : controls) {
    fetchBehind(controls, control);
    // Character for character, so that Frame10 passes for Frame1.
    if (onlyContainer != nullptr && !TextView(paths.pathOf(control)).starts_with(wantedStart)) {
      continue;
    }
    step = 41;
    HarvestedControl harvested = readControl(control, kept);
    bool shown = true;
    if (onlyVisible) {
      skip(shown, readBoolean(control, Property::Visible));
    }
    if (isExcluded(harvested.context) || harvested.isToBeSkipped() || !shown) {
      continue;
    }
    const std::optional<Chain> chain = containers.of(control);
    if (!chain) {
      continue;
    }
    recordControl(control, std::move(harvested), *chain, top, kept, HarvestScope::Form, step);
    step = 46;
  }
}

void harvestControl(const KOBModeleTraduction& model, const HostRef& control, TextView module,
                    StepMarker& step) {
  step = 2;
  const CellRef top = moduleCell(model, module);
  KeptTexts kept;
  HarvestedControl harvested = readControl(control, kept);
  if (harvested.isToBeSkipped()) {
    return;
  }
  const Chain chain = wholeChain(control, step);
  recordControl(control, std::move(harvested), chain, top, kept, HarvestScope::Control, step);
}

}  // namespace

void KOBModeleTraduction::UpdateWithForm(const HostRef& dlg, TextView module, bool onlyVisible,
                                         const HostRef& OnlyContainer) {
  StepMarker step = 0;
  try {
    harvestForm(*this, dlg, module, onlyVisible, OnlyContainer, step);
  } catch (const std::exception&) {
    report(step);
  }
}

void KOBModeleTraduction::UpdateWithCtrl(const HostRef& Ctrl, TextView module) {
  StepMarker step = 0;
  try {
    harvestControl(*this, Ctrl, module, step);
  } catch (const std::exception&) {
    report(step);
  }
}

}  // namespace kob
