// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Console.h"

#include <cstdio>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace kob::command {

namespace {

bool isTerminal(std::FILE* stream) {
#ifdef _WIN32
  return _isatty(_fileno(stream)) != 0;
#else
  return isatty(fileno(stream)) != 0;
#endif
}

void write(std::FILE* stream, std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), stream);
}

/// A line of standard input without its end; false at the end of the input.
bool readLine(std::string& line) {
  line.clear();
  int unit = 0;
  while ((unit = std::getchar()) != EOF && unit != '\n') {
    line += static_cast<char>(unit);
  }
  return unit != EOF || !line.empty();
}

}  // namespace

void print(std::string_view text) {
  write(stdout, text);
}

bool flushPrinted() {
  return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

void tell(std::string_view message) {
  // What was printed before it stands before it, also where both streams are one.
  std::fflush(stdout);
  write(stderr, "kobtrad: ");
  write(stderr, message);
  write(stderr, "\n");
}

bool canAsk() {
  return isTerminal(stdin) && isTerminal(stderr);
}

bool Questioner::ask(std::string_view question) {
  if (isYesToAll_) {
    return true;
  }
  std::fflush(stdout);
  write(stderr, question);
  write(stderr, "\n[y]es, [n]o, yes to [a]ll? ");
  std::fflush(stderr);
  std::string answer;
  if (!readLine(answer)) {
    write(stderr, "\n");
    return false;
  }
  isYesToAll_ = answer == "a" || answer == "A" || answer == "all";
  return isYesToAll_ || answer == "y" || answer == "Y" || answer == "yes";
}

Progress::Progress(std::size_t steps) : steps_(steps), hasTerminal_(steps > 1 && isTerminal(stderr)) {}

void Progress::step(std::string_view what) {
  if (!hasTerminal_) {
    return;
  }
  constexpr std::size_t width = 24;
  const std::size_t full = done_ * width / steps_;
  ++done_;
  isShown_ = true;
  std::string line = "\r\033[K[" + std::string(full, '#') + std::string(width - full, '.') + "] " +
                     std::to_string(done_) + " of " + std::to_string(steps_) + "  ";
  // A name that is too long for the line would leave a part of it behind; its end says most.
  constexpr std::size_t room = 40;
  line += what.size() > room ? std::string(what.substr(what.size() - room)) : std::string(what);
  write(stderr, line);
  std::fflush(stderr);
}

void Progress::clear() {
  if (isShown_) {
    write(stderr, "\r\033[K");
    std::fflush(stderr);
    isShown_ = false;
  }
}

}  // namespace kob::command
