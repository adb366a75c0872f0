// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/engine/ControlPath.h>
#include <kobtraduction/engine/HostObject.h>

#include <cstdint>
#include <optional>
#include <unordered_map>

namespace kob {

class KOBCellTraduction;
class KOBModeleTraduction;

/// Finds the cells of the controls of one call without writing their paths: exactly what
/// model.GetCell(paths.pathOf(control)) answers, going on from the cell that the container's path leads to.
/// That cell is kept by the container's identity until a tree of the thread changes. Internal.
class ControlCells {
 public:
  /// Model and paths must outlive this. The texts in `langue` are those that are read next.
  ControlCells(const KOBModeleTraduction& model, ControlPaths& paths, std::int32_t langue) noexcept
      : model_(model), paths_(paths), langue_(langue) {}

  /// Null for no cell. Empty when only the whole path tells; no property of the control was read then. The
  /// cell is there until the host's code runs or a tree changes. The control must live until the end of the
  /// next call.
  std::optional<KOBCellTraduction*> find(const HostRef& control);

 private:
  struct Start {
    /// Keeps the identity from being given to another object.
    HostRef container;
    Property link;
    std::optional<KOBCellTraduction*> cell;
  };

  using Starts = std::unordered_map<const void*, Start>;

  const Start& startOf(const HostRef& container, Property link);
  std::optional<KOBCellTraduction*> cellAt(const HostRef& container, Property link);

  const KOBModeleTraduction& model_;
  ControlPaths& paths_;
  const std::int32_t langue_;
  PlainPlace place_;
  Starts byContainer_;
  Starts byParent_;
  /// Siblings mostly follow one another,
  const Start* last_ = nullptr;
  /// and the first of them their container.
  struct Previous {
    const HostObject* control = nullptr;
    Property link = Property::Container;
    std::optional<KOBCellTraduction*> cell;
  } previous_;
  std::uint64_t treeChanges_ = 0;
};

}  // namespace kob
