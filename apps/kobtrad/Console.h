// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The two streams of the command: what was asked for goes to standard output, all else to standard error.
namespace kob::command {

/// Data, as it stands.
void print(std::string_view text);
/// Whether everything printed so far has reached standard output.
bool flushPrinted();

/// A message of one line: "kobtrad: " and the text.
void tell(std::string_view message);

/// Whether a person can answer a question: both ends are a terminal.
bool canAsk();
/// Puts a question on standard error and reads the answer: `y` yes, `a` yes to this and all to come; all else
/// and the end of the input is no.
class Questioner {
 public:
  bool ask(std::string_view question);

 private:
  bool isYesToAll_ = false;
};

/// A bar on standard error when that is a terminal, and nothing otherwise. Gone when it dies.
class Progress {
 public:
  explicit Progress(std::size_t steps);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress() { clear(); }

  /// The next step begins.
  void step(std::string_view what);
  /// Takes the bar away, to make room for other lines.
  void clear();

 private:
  std::size_t steps_;
  std::size_t done_ = 0;
  bool isShown_ = false;
  bool hasTerminal_;
};

}  // namespace kob::command
