// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "CommandBoxes.h"

#include <kobtraduction/model/KOBModeleTraduction.h>

#include <string>
#include <vector>

namespace kob::command {

/// What became of one text that a form shows.
struct HarvestedText {
  enum class Outcome {
    New,        ///< the model did not hold it
    Changed,    ///< the model held another text
    Unchanged,  ///< the model held just this one
    Refused,    ///< the model holds another text, and keeps it: the question was answered No
    LeftOut,    ///< the model has no place for it, as a message stands at that path
  };
  Outcome outcome;
  Text path;
  /// Which text of the control.
  Text name;
  /// What the model held before; "" when that was nothing.
  Text before;
  /// What the form shows.
  Text shown;
};

/// Records a form in the model as UpdateWithForm does, and tells what became of each of its texts.
std::vector<HarvestedText> harvest(KOBModeleTraduction& model, const HostRef& form, TextView module);

/// One line for a text, with its line break: what became of it, where, and what.
std::string describe(const HarvestedText& text);

}  // namespace kob::command
