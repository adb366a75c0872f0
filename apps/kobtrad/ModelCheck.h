// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <string>
#include <vector>

namespace kob::command {

struct Finding {
  /// Where in the model, "" for the model itself.
  std::string path;
  /// What is wrong there, and what follows from it.
  std::string problem;
};

/// What a file may hold although it makes no sense: texts that no form can ever show, cells that no path
/// leads to, lists that are missing. In the order of the tree.
std::vector<Finding> check(const KOBModeleTraduction& model);

}  // namespace kob::command
