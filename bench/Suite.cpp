// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Suite.h"

namespace bench {

void Suite::add(const std::string& name, std::function<void(const std::function<void(Contest&)>&)> play) {
  benchmark::RegisterBenchmark(name.c_str(),
                               [this, play = std::move(play)](benchmark::State& state) {
                                 play([&](Contest& contest) { run(state, contest); });
                               })
      ->UseManualTime()
      ->Iterations(settings_.rounds)
      ->Unit(benchmark::kMicrosecond);
}

void Suite::run(benchmark::State& state, Contest& contest) {
  contest.warmUp();
  for ([[maybe_unused]] auto iteration : state) {
    state.SetIterationTime(contest.round());
  }
  for (const Series& series : contest.measured().series) {
    state.counters[series.name] = benchmark::Counter(median(series.seconds));
  }
  results_.push_back(contest.measured());
}

}  // namespace bench
