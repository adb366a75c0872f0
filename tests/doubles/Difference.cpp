// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Difference.h"

#include <algorithm>
#include <vector>

namespace kob::testing {

namespace {

constexpr std::size_t around = 2;

std::vector<std::string_view> split(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

struct Marked {
  char mark;
  std::string_view line;
};

/// Both texts in one, by their longest common subsequence of lines.
std::vector<Marked> merged(const std::vector<std::string_view>& a, const std::vector<std::string_view>& b) {
  std::vector<std::vector<std::size_t>> common(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
  for (std::size_t i = a.size(); i-- > 0;) {
    for (std::size_t j = b.size(); j-- > 0;) {
      common[i][j] = a[i] == b[j] ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
    }
  }
  std::vector<Marked> lines;
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < a.size() || j < b.size()) {
    if (i < a.size() && j < b.size() && a[i] == b[j]) {
      lines.push_back({' ', a[i]});
      ++i;
      ++j;
    } else if (j == b.size() || (i < a.size() && common[i + 1][j] >= common[i][j + 1])) {
      lines.push_back({'-', a[i++]});
    } else {
      lines.push_back({'+', b[j++]});
    }
  }
  return lines;
}

}  // namespace

std::string difference(std::string_view expected, std::string_view seen) {
  if (expected == seen) {
    return {};
  }
  const std::vector<Marked> lines = merged(split(expected), split(seen));
  std::string text;
  bool isCut = false;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::size_t first = i < around ? 0 : i - around;
    const std::size_t last = std::min(i + around + 1, lines.size());
    const bool isNear = std::any_of(lines.begin() + static_cast<std::ptrdiff_t>(first),
                                    lines.begin() + static_cast<std::ptrdiff_t>(last),
                                    [](const Marked& line) { return line.mark != ' '; });
    if (isNear) {
      text += isCut ? "  ...\n" : "";
      text += std::string(1, lines[i].mark) + " " + std::string(lines[i].line) + "\n";
    }
    isCut = !isNear;
  }
  return text.empty() ? "  the texts differ in their last line break only\n" : text;
}

}  // namespace kob::testing
