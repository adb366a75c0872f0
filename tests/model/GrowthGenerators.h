// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "DamagedModels.h"

#include <rapidcheck/gtest.h>

#include <utility>
#include <vector>

/// What random DamagedModels are made from.
namespace kob::test {

/// A number below `end`, whatever the size of the case.
inline rc::Gen<int> below(int end) {
  return rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, end));
}

/// Up to so many steps of the first `kinds` kinds.
inline rc::Gen<std::vector<Growth>> steps(int kinds, int most) {
  return rc::gen::mapcat(below(most), [kinds](int count) {
    return rc::gen::container<std::vector<Growth>>(
        static_cast<std::size_t>(count),
        rc::gen::construct<Growth>(below(kinds), below(64), below(64), below(64), below(4096)));
  });
}

/// Damage is rare enough that many models are whole.
inline rc::Gen<std::vector<Growth>> anySteps() {
  using Parts = std::pair<std::vector<Growth>, std::vector<Growth>>;
  return rc::gen::map(rc::gen::pair(steps(DamagedModels::harmless, 20), steps(DamagedModels::kinds, 6)),
                      [](Parts parts) {
                        parts.first.insert(parts.first.end(), parts.second.begin(), parts.second.end());
                        return parts.first;
                      });
}

/// Mostly six.
inline int anyLanguageCount() {
  return *rc::gen::weightedElement<int>({{6, 6}, {2, 7}, {1, 2}, {1, 9}, {1, 1}, {1, 0}, {1, 10}});
}

}  // namespace kob::test
