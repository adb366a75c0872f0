// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Contest.h"

#include <sys/resource.h>

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <numeric>
#include <utility>

namespace bench {

namespace {

double secondsOf(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

}  // namespace

/// The processor time of this thread, on which all that is timed runs, and of the commands that it has run:
/// what others do on the machine meanwhile does not count, which would otherwise hit whoever needs longer
/// than a time slice more often than the others.
double now(Clock clock) {
  timespec time{};
  clock_gettime(clock == Clock::Thread ? CLOCK_THREAD_CPUTIME_ID : CLOCK_MONOTONIC, &time);
  rusage commands{};
  getrusage(RUSAGE_CHILDREN, &commands);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9 +
         secondsOf(commands.ru_utime) + secondsOf(commands.ru_stime);
}

const Series* Measured::find(const std::string& name) const {
  const auto found = std::find_if(series.begin(), series.end(),
                                  [&](const Series& candidate) { return candidate.name == name; });
  return found != series.end() ? &*found : nullptr;
}

double median(std::vector<double> values) {
  if (values.empty()) {
    return 0;
  }
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double pairedRatio(const Series& subject, const Series& reference) {
  std::vector<double> ratios;
  for (std::size_t i = 0; i < subject.seconds.size() && i < reference.seconds.size(); ++i) {
    ratios.push_back(subject.seconds[i] / reference.seconds[i]);
  }
  return median(std::move(ratios));
}

Contest::Contest(std::string what, std::string size) {
  measured_.what = std::move(what);
  measured_.size = std::move(size);
}

void Contest::add(const std::string& name, std::int64_t operations, std::function<void(int)> run,
                  std::function<void(int)> prepare) {
  measured_.series.push_back({name, {}});
  contenders_.push_back({static_cast<double>(operations), std::move(run), std::move(prepare)});
}

void Contest::addBytes(const std::string& name, std::function<double()> measure) {
  measured_.unit = Unit::Bytes;
  measured_.series.push_back({name, {}});
  contenders_.push_back({1, {}, {}, std::move(measure)});
}

void Contest::addTimed(const std::string& name, std::function<double()> measure) {
  measured_.series.push_back({name, {}});
  contenders_.push_back({1, {}, {}, std::move(measure)});
}

double Contest::round() {
  double first = 0;
  std::vector<std::size_t> order(contenders_.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::shuffle(order.begin(), order.end(), orders_);
  for (const std::size_t i : order) {
    const double seconds = turn(contenders_[i]);
    measured_.series[i].seconds.push_back(seconds / (contenders_[i].operations * passes_));
    if (i == 0) {
      first = seconds;
    }
  }
  return first;
}

void Contest::warmUp() {
  for (const Contender& contender : contenders_) {
    turn(contender);
  }
}

double Contest::turn(const Contender& contender) const {
  if (contender.measure) {
    return contender.measure();
  }
  double total = 0;
  for (int pass = 0; pass < passes_; ++pass) {
    if (contender.prepare) {
      contender.prepare(pass);
    }
    const double start = now(clock_);
    contender.run(pass);
    total += now(clock_) - start;
    if (settle_) {
      settle_();
    }
  }
  return total;
}

}  // namespace bench
