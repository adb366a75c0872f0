// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace bench {

/// What one contender needed for one operation, in seconds (or in bytes), round by round.
struct Series {
  std::string name;
  std::vector<double> seconds;
};

/// Which time counts: that of the processor, or that of the wall where waiting is part of the work.
enum class Clock { Thread, Wall };
/// Seconds on that clock, from some time on.
double now(Clock clock);
/// What is measured.
enum class Unit { Seconds, Bytes };

/// What one contender must and should cost, as a multiple of what another one costs, or in all when there is
/// no other.
struct Target {
  std::string subject;
  std::string reference;
  double must;
  /// 0: there is none.
  double aim = 0;
};

/// The outcome of a contest. The first series is the component's own.
struct Measured {
  std::string what;
  std::string size;
  std::vector<Series> series;
  std::vector<Target> targets;
  Unit unit = Unit::Seconds;

  const Series* find(const std::string& name) const;
};

double median(std::vector<double> values);

/// The median of the ratios of two series, taken round by round: what slows the machine down for a while
/// slows both down.
double pairedRatio(const Series& subject, const Series& reference);

/// Several ways of doing the same work, timed in turn in one process: A B C, C A B, ... Each round has an
/// order of its own, the same ones in every run: whoever comes right after a contender that gives much memory
/// back, or that fills the caches, finds another machine than the others.
class Contest {
 public:
  Contest(std::string what, std::string size);

  /// Each round runs a contender this many times, telling it the number of the pass; 1 unless it is set.
  void setPasses(int passes) { passes_ = passes; }
  /// Called after every pass, and never timed.
  void setSettle(std::function<void()> settle) { settle_ = std::move(settle); }

  void setClock(Clock clock) { clock_ = clock; }

  /// `run` does `operations` operations. `prepare` is called before each pass, and never timed.
  void add(const std::string& name, std::int64_t operations, std::function<void(int pass)> run,
           std::function<void(int pass)> prepare = {});
  /// A contender whose figure is not a time: `measure` tells it, in bytes.
  void addBytes(const std::string& name, std::function<double()> measure);
  /// A contender that times itself: `measure` tells the seconds of one operation, by now().
  void addTimed(const std::string& name, std::function<double()> measure);
  void expect(Target target) { measured_.targets.push_back(std::move(target)); }

  /// One turn of everybody; the seconds that the first one needed.
  double round();
  /// A round that does not count.
  void warmUp();
  const Measured& measured() const noexcept { return measured_; }

 private:
  struct Contender {
    double operations;
    std::function<void(int)> run;
    std::function<void(int)> prepare;
    std::function<double()> measure = {};
  };

  double turn(const Contender& contender) const;

  Measured measured_;
  std::vector<Contender> contenders_;
  std::minstd_rand orders_;
  std::function<void()> settle_;
  Clock clock_ = Clock::Thread;
  int passes_ = 1;
};

}  // namespace bench
