// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kob::bench {

/// Somebody who does a job, and how often one run of it does what is counted.
struct Contender {
  std::string name;
  std::function<void()> run;
};

/// Lets everybody do the same job in turn, A B C, A B C, ..., after one round that does not count. Prints for
/// each the median time of one of `count` things, how many that is in a second, the median of the ratios to
/// the last contender, taken round by round, and the ratio of the fastest times, which a busy machine
/// disturbs least.
void compete(const std::string& job, double count, int rounds, const std::vector<Contender>& contenders);

}  // namespace kob::bench
