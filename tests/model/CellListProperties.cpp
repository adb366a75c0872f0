// SPDX-FileCopyrightText: The KOBTraduction authors
#include "HostEdits.h"

#include <rapidcheck/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace kob::test {
namespace {

RC_GTEST_PROP(SortedInsertion, KeepsEverySequenceOfNamesInOrder, ()) {
  ModelTestScope scope;
  const auto numbers = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 120));
  const CellRef node = KOBCellTraduction::createNode();
  Texts expected;
  for (const int number : numbers) {
    const Text wanted = HostEdits::name(number);
    const bool isFree = std::none_of(expected.begin(), expected.end(),
                                     [&](const Text& one) { return upper(one) == upper(wanted); });
    RC_ASSERT((node->AddNoeuds(wanted) != nullptr) == isFree);
    if (isFree) {
      expected.push_back(wanted);
    }
  }
  std::sort(expected.begin(), expected.end(),
            [](const Text& a, const Text& b) { return upper(a) < upper(b); });
  RC_ASSERT(names(node) == expected);
}

RC_GTEST_PROP(SortedInsertion, IntoAnyListGoesBeforeTheFirstGreaterName, ()) {
  ModelTestScope scope;
  const auto standing = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 400));
  const auto added = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 400));
  const CellRef node = KOBCellTraduction::createNode();
  Texts expected;
  for (const int number : standing) {
    append(node, named(HostEdits::name(number)));
    expected.push_back(HostEdits::name(number));
  }
  for (const int number : added) {
    const Text wanted = HostEdits::name(number);
    node->ColCell()->insertSorted(named(wanted));
    expected.insert(std::find_if(expected.begin(), expected.end(),
                                 [&](const Text& one) { return upper(one) > upper(wanted); }),
                    wanted);
  }
  RC_ASSERT(names(node) == expected);
}

RC_GTEST_PROP(SortedInsertion, SeesEveryRenameAndRemoval, ()) {
  ModelTestScope scope;
  const auto standing = *rc::gen::container<std::vector<int>>(300, rc::gen::inRange(24, 424));
  const auto moves = *rc::gen::container<std::vector<std::pair<int, int>>>(
      rc::gen::pair(rc::gen::inRange(0, 300), rc::gen::inRange(0, 424)));
  const CellRef node = KOBCellTraduction::createNode();
  Texts expected;
  const auto insert = [&](const Text& wanted) {
    node->ColCell()->insertSorted(named(wanted));
    expected.insert(std::find_if(expected.begin(), expected.end(),
                                 [&](const Text& one) { return upper(one) > upper(wanted); }),
                    wanted);
  };
  for (const int number : standing) {
    insert(HostEdits::name(number));
  }
  for (const auto& [index, number] : moves) {
    const auto at = static_cast<std::size_t>(index) % expected.size();
    const auto position = static_cast<std::int32_t>(at) + 1;
    switch (number % 3) {
      case 0:
        node->ColCell()->Item(position)->setnom(HostEdits::name(number));
        expected[at] = HostEdits::name(number);
        break;
      case 1:
        if (expected.size() > 1) {
          node->ColCell()->Remove(position);
          expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(at));
        }
        break;
      default:
        insert(HostEdits::name(number));
    }
  }
  RC_ASSERT(names(node) == expected);
}

}  // namespace
}  // namespace kob::test
