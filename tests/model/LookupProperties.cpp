// SPDX-FileCopyrightText: The KOBTraduction authors
#include "HostEdits.h"

#include <rapidcheck/gtest.h>

#include <vector>

namespace kob::test {
namespace {

/// Steps over lists of about `positions` items, with names among the first `names`.
rc::Gen<std::vector<Step>> steps(int positions, int names) {
  return rc::gen::container<std::vector<Step>>(rc::gen::construct<Step>(
      rc::gen::inRange(0, HostEdits::kinds), rc::gen::inRange(0, 3), rc::gen::inRange(0, 24),
      rc::gen::inRange(0, positions), rc::gen::inRange(0, names)));
}

void staysRight(int bulk, const std::vector<Step>& steps) {
  HostEdits edits(bulk);
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const std::string wrong = edits.apply(steps[i]);
    if (!wrong.empty()) {
      RC_LOG() << "step " << i << ": " << wrong << '\n';
      RC_FAIL("the list does not answer as a walk does");
    }
  }
  RC_ASSERT(edits.compareAll() == "");
}

RC_GTEST_PROP(Lookup, OfShortListsEqualsAWalkWhateverAHostDoes, ()) {
  staysRight(0, *steps(12, 24));
}

RC_GTEST_PROP(Lookup, OfManyDuplicatesEqualsAWalkWhateverAHostDoes, ()) {
  staysRight(0, *steps(6, 7));
}

RC_GTEST_PROP(Lookup, OfListsThatGrowLongEqualsAWalkWhateverAHostDoes, ()) {
  staysRight(*rc::gen::inRange(0, 80), *steps(100, 120));
}

RC_GTEST_PROP(Lookup, OfLongListsEqualsAWalkWhateverAHostDoes, ()) {
  staysRight(*rc::gen::inRange(300, 1500), *steps(1500, 424));
}

}  // namespace
}  // namespace kob::test
