// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/engine/ControlName.h>
#include <kobtraduction/engine/HarvestedControl.h>
#include <kobtraduction/engine/HostModes.h>
#include <kobtraduction/engine/TagMarkers.h>
#include <kobtraduction/model/KOBCellTraduction.h>

#include <utility>

namespace kob {

namespace {

using CellRef = std::shared_ptr<KOBCellTraduction>;

/// Harvests a tabbed control: each tab is shown in turn, in the host's own numbering, and the tab that was
/// current is put back. Every read and write is in handler mode.
class TabHarvest {
 public:
  TabHarvest(const HostRef& control, HarvestedControl harvested, const KeptTexts& kept, HarvestScope scope,
             StepMarker& step)
      : control_(control), harvested_(std::move(harvested)), kept_(kept), scope_(scope), step_(step) {}

  /// `parent` is the cell of the container, `known` the control's cell or none.
  void record(const CellRef& parent, CellRef known) {
    if (scope_ == HarvestScope::Form) {
      step_ = 451;
    }
    last_ = must(readLong(control_, Property::Tabs)) - 1;
    const std::int16_t saved = must(readInteger(control_, Property::Tab));
    const bool hasContext = !harvested_.context.empty();
    if (known == nullptr) {
      step_ = 4511;
      hasContext ? addWithContext(parent) : addWithoutContext(parent);
    } else {
      step_ = 4512;
      hasContext ? updateWithContext(std::move(known)) : updateWithoutContext(*known);
    }
    must(write(control_, Property::Tab, Value(std::int32_t{saved})));
  }

 private:
  void addWithoutContext(const CellRef& parent) {
    step_ = 45111;
    eachTab(451111, [&](const Text& tabName) {
      step_ = 451112;
      if (const CellRef cell = add(parent, harvested_.name, tabName)) {
        cell->setContexte(false);
      }
    });
  }

  /// Each tab is added below the cell that the tab before it gave, so the tabs nest one in another. Models
  /// hold them that way, and applying looks for them that way.
  void addWithContext(const CellRef& parent) {
    step_ = 45112;
    CellRef cell = mustBeSet(parent).AddNoeuds(harvested_.name);
    eachTab(451121, [&](const Text& tabName) {
      cell = add(cell, harvested_.context, tabName);
      step_ = 451122;
      markContext(cell);
    });
  }

  void updateWithoutContext(KOBCellTraduction& known) {
    step_ = 45121;
    eachTab(451211, [&](const Text& tabName) {
      update(known.shared_from_this(), tabName);
      known.setContexte(false);
    });
  }

  void updateWithContext(CellRef cell) {
    step_ = 45122;
    CellRef tagCell = cell->GetCell(harvested_.context);
    if (tagCell == nullptr) {
      step_ = 451221;
      eachTab(4512211, [&](const Text& tabName) {
        step_ = 4512212;
        cell = add(cell, harvested_.context, tabName);
      });
      return;
    }
    // An unchanged tab gives no cell, and the next one is then handled on nothing: harvesting such a control
    // twice ends with that failure.
    step_ = 451222;
    eachTab(4512221, [&](const Text& tabName) {
      step_ = 4512222;
      tagCell = update(tagCell, tabName);
      markContext(tagCell);
    });
  }

  template <class Record>
  void eachTab(StepMarker step, Record record) {
    for (std::int32_t tab = 0; tab <= last_; ++tab) {
      step_ = step;
      must(write(control_, Property::Tab, Value(tab)));
      caption_ = must(readText(control_, Property::Caption));
      toolTip_ = must(readText(control_, Property::ToolTipText));
      if (kept_.toolTip) {
        toolTip_.clear();
      }
      if (kept_.caption) {
        caption_.clear();
      }
      record(harvested_.name + u'(' + decimal(tab) + u')');
    }
  }

  CellRef add(const CellRef& parent, const Text& name, const Text& tabName) const {
    std::int32_t ignored = 0;
    return mustBeSet(parent).AddCtrl(name, toolTip_, caption_, harvested_.left, harvested_.width, ignored, {},
                                     tabName);
  }

  CellRef update(const CellRef& cell, const Text& tabName) const {
    std::int32_t ignored = 0;
    return mustBeSet(cell).UpdateCtrl(toolTip_, caption_, harvested_.left, harvested_.width, ignored, {},
                                      tabName);
  }

  static void markContext(const CellRef& cell) {
    if (cell != nullptr) {
      cell->setContexte(true);
      mustBeSet(cell->parentcell()).setContexte(true);
    }
  }

  const HostRef& control_;
  HarvestedControl harvested_;
  const KeptTexts& kept_;
  HarvestScope scope_;
  StepMarker& step_;
  std::int32_t last_ = -1;
  Text caption_;
  Text toolTip_;
};

}  // namespace

std::int32_t positionIndicator(std::optional<double> value) noexcept {
  return value.has_value() && *value > 0 ? 1 : -1;
}

HarvestedControl readControl(const HostRef& control, KeptTexts& kept) {
  HarvestedControl harvested;
  Text tag;
  skip(harvested.caption, readText(control, Property::Caption));
  skip(harvested.toolTip, readText(control, Property::ToolTipText));
  skip(harvested.name, readText(control, Property::Name));
  skip(tag, readText(control, Property::Tag));
  const TagMarkers markers = readMarkers(tag);
  if (markers.keepCaption) {
    harvested.caption.clear();
    kept.caption = true;
  }
  if (markers.keepToolTip) {
    harvested.toolTip.clear();
    kept.toolTip = true;
  }
  harvested.context = markers.context;
  harvested.left = positionIndicator(readDouble(control, Property::Left));
  harvested.width = positionIndicator(readDouble(control, Property::Width));
  appendIndex(harvested.name, control);
  return harvested;
}

void recordControl(const HostRef& control, HarvestedControl harvested, const std::vector<Text>& chain,
                   std::shared_ptr<KOBCellTraduction> top, const KeptTexts& kept, HarvestScope scope,
                   StepMarker& step) {
  step = 43;
  CellRef cell = std::move(top);
  // Below a container that had to be created nothing can exist: no more looking.
  bool created = false;
  for (const Text& name : chain) {
    step = 431;
    CellRef child = created ? nullptr : mustBeSet(cell).GetCell(name);
    if (child == nullptr) {
      created = true;
      child = mustBeSet(cell).AddNoeuds(name);
    }
    cell = std::move(child);
  }
  step = 44;
  CellRef known = created ? nullptr : mustBeSet(cell).GetCell(harvested.name);
  step = 45;
  double tabs = 0;
  skip(tabs, readDouble(control, Property::Tabs));
  if (tabs > 0) {
    TabHarvest(control, std::move(harvested), kept, scope, step).record(cell, std::move(known));
    return;
  }
  step = 452;
  std::int32_t ignored = 0;
  if (known == nullptr) {
    step = 4521;
    mustBeSet(cell).AddCtrl(harvested.name, harvested.toolTip, harvested.caption, harvested.left,
                            harvested.width, ignored, {}, harvested.context);
  } else {
    step = 4522;
    known->UpdateCtrl(harvested.toolTip, harvested.caption, harvested.left, harvested.width, ignored, {},
                      harvested.context);
  }
}

}  // namespace kob
