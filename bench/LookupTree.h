// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <memory>
#include <string>
#include <vector>

namespace bench {

/// A cell three levels below the root: its names and a text for it.
struct Leaf {
  std::string form;
  std::string frame;
  std::string control;
  std::string text;

  kob::Text path() const;
};

/// A model to look things up in.
class LookupTree {
 public:
  /// The root has `perLevel` forms; one of them has `perLevel` frames, and one of these as many controls.
  static LookupTree hot(int perLevel);
  /// `entries` controls, ten in a frame, a hundred in a form.
  static LookupTree wide(int entries);

  const kob::KOBModeleTraduction& model() const noexcept { return *model_; }
  /// The cells of the third level.
  const std::vector<Leaf>& leaves() const noexcept { return leaves_; }
  /// `count` of them, spread evenly, repeated when there are fewer.
  std::vector<Leaf> hotLeaves(int count) const;

 private:
  LookupTree();
  void fillFrame(kob::KOBCellTraduction& frame, const Leaf& place, int count);

  std::unique_ptr<kob::KOBModeleTraduction> model_;
  std::vector<Leaf> leaves_;
};

}  // namespace bench
