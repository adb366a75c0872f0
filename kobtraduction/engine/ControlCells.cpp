// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/engine/ControlCells.h>
#include <kobtraduction/model/FetchCells.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraduction/model/PathMemo.h>
#include <kobtraduction/model/PathSteps.h>

namespace kob {

namespace {

/// What is found below a container is read soon, unless there is so much of it that it would be gone by then.
void fetchChildren(const KOBCellTraduction* cell, std::int32_t langue) noexcept {
  constexpr std::int32_t few = 16;
  const CellList* const children = cell != nullptr ? cell->ColCell().get() : nullptr;
  if (children != nullptr && children->Count() <= few) {
    fetchCells(children->begin(), *children, [langue](const KOBTraductionObj& entry) {
      const TextView text = entry.textAt(langue);
      fetchBytes(text.data(), text.size() * sizeof(char16_t));
    });
  }
}

}  // namespace

std::optional<KOBCellTraduction*> ControlCells::find(const HostRef& control) {
  if (control == nullptr || !control->tellPlace(place_)) {
    previous_ = {};
    return std::nullopt;
  }
  const Start& start = startOf(*place_.container, place_.link);
  previous_ = {control.get(), place_.link, start.cell ? followPath(*start.cell, place_.name) : std::nullopt};
  if (previous_.cell && *previous_.cell != nullptr) {
    // What stands in a container is looked for next.
    fetch((*previous_.cell)->ColCell().get());
  }
  return previous_.cell;
}

const ControlCells::Start& ControlCells::startOf(const HostRef& container, Property link) {
  if (treeChanges_ != treeChanges()) {
    byContainer_.clear();
    byParent_.clear();
    last_ = nullptr;
    previous_ = {};
    treeChanges_ = treeChanges();
  }
  if (last_ != nullptr && last_->container == container && last_->link == link) {
    return *last_;
  }
  Start& start = (link == Property::Container ? byContainer_ : byParent_)[container->identity()];
  if (start.container == nullptr) {
    start = {container, link, cellAt(container, link)};
    if (start.cell) {
      fetchChildren(*start.cell, langue_);
    }
  }
  last_ = &start;
  return start;
}

std::optional<KOBCellTraduction*> ControlCells::cellAt(const HostRef& container, Property link) {
  // A control that told its place has no context, so its path is also what the paths inside it begin with.
  if (previous_.control != nullptr && previous_.link == link &&
      previous_.control->identity() == container->identity()) {
    return previous_.cell;
  }
  return followPath(model_.Racine().get(), paths_.pathInside(container, link));
}

}  // namespace kob
