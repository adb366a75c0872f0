// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Contest.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>

namespace kob::bench {

namespace {

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t half = values.size() / 2;
  return values.size() % 2 == 1 ? values[half] : (values[half - 1] + values[half]) / 2;
}

double secondsOf(const std::function<void()>& run) {
  const auto begin = std::chrono::steady_clock::now();
  run();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

}  // namespace

void compete(const std::string& job, double count, int rounds, const std::vector<Contender>& contenders) {
  std::vector<std::vector<double>> times(contenders.size());
  for (int round = 0; round <= rounds; ++round) {
    for (std::size_t i = 0; i < contenders.size(); ++i) {
      const double seconds = secondsOf(contenders[i].run);
      if (round > 0) {
        times[i].push_back(seconds);
      }
    }
  }
  std::printf("\n%s\n%-46s %13s %15s %8s %8s\n", job.c_str(), "", "median", "", "ratio", "fastest");
  for (std::size_t i = 0; i < contenders.size(); ++i) {
    std::vector<double> ratios;
    for (std::size_t round = 0; round < times[i].size(); ++round) {
      ratios.push_back(times[i][round] / times.back()[round]);
    }
    const double each = median(times[i]) / count;
    const double fastest = *std::min_element(times[i].begin(), times[i].end()) /
                           *std::min_element(times.back().begin(), times.back().end());
    std::printf("  %-44s %10.0f ns %12.0f /s %8.2f %8.2f\n", contenders[i].name.c_str(), each * 1e9, 1 / each,
                median(ratios), fastest);
  }
  std::fflush(stdout);
}

}  // namespace kob::bench
