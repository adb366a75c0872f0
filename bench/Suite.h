// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Contest.h"

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

namespace bench {

/// How thorough a run is.
struct Settings {
  int rounds = 15;
  /// Leaves out the sizes that take long to set up.
  bool quick = false;
};

/// The contests of one run, registered with Google Benchmark under the names by which they are filtered, and
/// what came out of them.
class Suite {
 public:
  explicit Suite(Settings settings) : settings_(settings) {}

  const Settings& settings() const noexcept { return settings_; }
  const std::vector<Measured>& results() const noexcept { return results_; }

  /// `play` sets up a contest and has it run by `run`; whatever it sets up lives until it returns.
  void add(const std::string& name, std::function<void(const std::function<void(Contest&)>& run)> play);

 private:
  void run(benchmark::State& state, Contest& contest);

  Settings settings_;
  std::vector<Measured> results_;
};

// The subjects, each in a file of its own.
void addApplying(Suite& suite);
void addHarvesting(Suite& suite);
void addControlPaths(Suite& suite);
void addLookup(Suite& suite);
void addEditing(Suite& suite);
void addPersistence(Suite& suite);
void addMerging(Suite& suite);

}  // namespace bench
