// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include "Report.h"

#include <QString>

#include <functional>

namespace kob::fidelity {

struct RunOptions {
  /// Only every n-th form of all, counted in order over all applications.
  int sample = 1;
  /// Told before each form: its application and its file.
  std::function<void(const QString& application, const QString& form)> progress;
};

/// Puts applications through the procedure, one after the other.
class Run {
 public:
  explicit Run(RunOptions options) : options_(std::move(options)) {}

  /// Checks the application in a folder and returns its report.
  QString check(const QString& folder);

  const Sums& sums() const noexcept { return sums_; }

 private:
  RunOptions options_;
  Sums sums_;
  int formsSeen_ = 0;
};

}  // namespace kob::fidelity
