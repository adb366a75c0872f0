// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "tests/model/ModelVocabulary.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace kob::testing {

/// The same numbers for the same seed on every machine.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : numbers_(seed) {}

  /// 0 .. sides - 1.
  std::int32_t roll(std::int32_t sides) {
    return static_cast<std::int32_t>(numbers_() % static_cast<std::uint32_t>(sides));
  }
  /// Once in `sides` times.
  bool rarely(std::int32_t sides) { return roll(sides) == 0; }
  template <class Item>
  const Item& pick(const std::vector<Item>& items) {
    return items[static_cast<std::size_t>(roll(static_cast<std::int32_t>(items.size())))];
  }

 private:
  std::mt19937 numbers_;
};

/// Few, so that they meet: doubled, empty, and such as paths stumble over.
Text anyName(Dice& dice);
Text anyText(Dice& dice);

/// Fills an empty model; some cells are damaged in the ways that a host can damage them.
void fillRandomly(KOBModeleTraduction& model, Dice& dice);

/// All that a model holds, a line for each cell.
std::string printed(const KOBModeleTraduction& model);

}  // namespace kob::testing
