// SPDX-FileCopyrightText: The KOBTraduction authors
#include <kobtraduction/engine/ControlCells.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraduction/model/PathMemo.h>
#include <kobtraduction/model/PathSteps.h>

namespace kob {

std::optional<KOBCellTraduction*> ControlCells::find(const HostRef& control) {
  if (control == nullptr || !control->tellPlace(place_)) {
    return std::nullopt;
  }
  const Start& start = startOf(*place_.container, place_.link);
  return start.cell ? followPath(*start.cell, place_.name) : std::nullopt;
}

const ControlCells::Start& ControlCells::startOf(const HostRef& container, Property link) {
  if (treeChanges_ != treeChanges()) {
    byContainer_.clear();
    byParent_.clear();
    last_ = nullptr;
    treeChanges_ = treeChanges();
  }
  if (last_ != nullptr && last_->container == container && last_->link == link) {
    return *last_;
  }
  Start& start = (link == Property::Container ? byContainer_ : byParent_)[container->identity()];
  if (start.container == nullptr) {
    start = {container, link, followPath(model_.Racine().get(), paths_.pathInside(container, link))};
  }
  last_ = &start;
  return start;
}

}  // namespace kob
